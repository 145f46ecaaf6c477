// SPDX-License-Identifier: MIT
#pragma once

#include "platform/foundation/export.h"

#include <QString>
#include <QVariantMap>

#include <memory>
#include <optional>

class QTranslator;

namespace HALVERN_EXPORT halvern {

/// A bundle folder: Info.plist, a loadable module and Resources/ with layouts, translations (NAME_de.qm and
/// so on in the folder NAME.pde) and the help book. Main thread only, except the plain look-ups of loaded
/// data (identifier, paths, Info.plist values), which any thread may call.
class Bundle {
public:
    /// Reads the folder's Info.plist and the translations for the user's languages. Null if there is no
    /// readable Info.plist with a dictionary in it; `why`, if given, then says so in a sentence.
    static std::shared_ptr<Bundle> load(const QString& path, QString* why = nullptr);

    /// The bundle whose module holds the code or data at `address`; the main bundle if that is in no bundle's
    /// module; null if there is none either. Each folder is loaded once.
    static std::shared_ptr<Bundle> bundleContaining(const void* address);

    /// The bundle that stands for the program itself: code linked into it finds its resources there.
    static void setMainBundle(std::shared_ptr<Bundle> bundle);

    ~Bundle();

    QString bundlePath() const { return path_; }

    /// bundleIdentifier: nothing if the property list has none.
    std::optional<QString> bundleIdentifier() const;

    /// The path of the module that CFBundleExecutable names; nothing if it names none or a path that leaves
    /// the folder.
    std::optional<QString> executablePath() const;

    /// objectForInfoDictionaryKey: a string, number, boolean, list or map; invalid if absent.
    QVariant objectForInfoDictionaryKey(const QString& key) const;

    /// The path of a file under Resources/; nothing if there is no such file or the name leaves the folder.
    std::optional<QString> pathForResource(const QString& name) const;

    /// localizedStringForKey:value:table: the translation of `key`. A look-up that finds nothing answers
    /// `value`, or the key itself if `value` is empty. A null `table` names the default table.
    QString localizedString(const QString& key, const QString& value = QString(),
                            const QString& table = QString()) const;

private:
    Bundle(QString path, QVariantMap info);
    void loadTranslations();

    QString path_;
    QVariantMap info_;
    std::unique_ptr<QTranslator> translator_;
    std::unique_ptr<QTranslator> english_;
};

} // namespace halvern
