// SPDX-License-Identifier: MIT
#pragma once

#include "dialog/page/layout.h"

#include <QStringList>

namespace halvern {

/// The layouts that there are: the program's own, and the user's, each a small file. Main thread only; reads
/// and writes files at once.
class LayoutLibrary {
public:
    LayoutLibrary();

    /// All of them, the user's last; a photo a page is not among them.
    const QList<Layout>& layouts() const { return layouts_; }

    /// A sentence for each of the user's files that holds none.
    const QStringList& problems() const { return problems_; }

    /// By its id, which may be measures; the one of a photo a page has none. Nothing if there is none such.
    std::optional<Layout> find(const QString& id) const;

    /// The sentence about an id that find() does not know.
    QString unknownText(const QString& id) const;

    /// Keeps a layout of the user's under a name, in the place of one of the user's with that name. The
    /// sentence about what failed; empty on success, and the layout's id in `id`.
    QString save(Layout layout, const QString& name, QString* id);

    /// Deletes one of the user's. The sentence about what failed, or empty.
    QString remove(const QString& id);

    /// Where the user's are.
    static QString ownFolder();

private:
    void readAgain();

    QList<Layout> layouts_;
    QStringList problems_;
};

} // namespace halvern
