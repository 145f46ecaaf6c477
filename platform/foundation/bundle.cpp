// SPDX-License-Identifier: MIT
#include "platform/foundation/bundle.h"

#include "platform/foundation/info_property_list.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QHash>
#include <QLocale>
#include <QMutex>
#include <QTranslator>

#include <dlfcn.h>

#include <utility>

namespace halvern {

namespace {

// The translation catalogues' only context; a table name other than the default one is a context of that
// name.
constexpr char kDefaultTable[] = "Localizable";

struct LoadedBundles {
    QMutex mutex;
    QHash<QString, std::shared_ptr<Bundle>> byPath;
    std::shared_ptr<Bundle> main;
};

LoadedBundles& loadedBundles()
{
    static LoadedBundles bundles;
    return bundles;
}

bool staysInside(const QString& name)
{
    return !name.isEmpty() && QDir::isRelativePath(name) &&
           !QDir::cleanPath(name).startsWith(QLatin1String(".."));
}

} // namespace

std::shared_ptr<Bundle> Bundle::load(const QString& path, QString* why)
{
    const QString folder = QFileInfo(path).absoluteFilePath();
    const std::optional<QVariantMap> info = readInfoPropertyList(folder + QStringLiteral("/Info.plist"), why);
    if (!info)
        return nullptr;
    std::shared_ptr<Bundle> bundle(new Bundle(folder, *info));
    bundle->loadTranslations();
    return bundle;
}

std::shared_ptr<Bundle> Bundle::bundleContaining(const void* address)
{
    LoadedBundles& bundles = loadedBundles();
    const QMutexLocker lock(&bundles.mutex);
    Dl_info module{};
    if (dladdr(address, &module) != 0 && module.dli_fname) {
        const QString folder = QFileInfo(QFile::decodeName(module.dli_fname)).absolutePath();
        if (const auto known = bundles.byPath.value(folder))
            return known;
        if (QFileInfo::exists(folder + QStringLiteral("/Info.plist"))) {
            if (auto loaded = load(folder))
                return bundles.byPath.insert(folder, loaded).value();
        }
    }
    return bundles.main;
}

void Bundle::setMainBundle(std::shared_ptr<Bundle> bundle)
{
    LoadedBundles& bundles = loadedBundles();
    const QMutexLocker lock(&bundles.mutex);
    bundles.main = std::move(bundle);
}

Bundle::Bundle(QString path, QVariantMap info) : path_(std::move(path)), info_(std::move(info)) {}

Bundle::~Bundle() = default;

void Bundle::loadTranslations()
{
    const QString resources = path_ + QStringLiteral("/Resources");
    const QString name = QFileInfo(QDir(path_).dirName()).completeBaseName();
    auto translator = std::make_unique<QTranslator>();
    if (translator->load(QLocale(), name, QStringLiteral("_"), resources))
        translator_ = std::move(translator);
    auto english = std::make_unique<QTranslator>();
    if (english->load(name + QStringLiteral("_en"), resources))
        english_ = std::move(english);
}

std::optional<QString> Bundle::bundleIdentifier() const
{
    const QVariant identifier = info_.value(QStringLiteral("CFBundleIdentifier"));
    if (identifier.typeId() != QMetaType::QString)
        return std::nullopt;
    return identifier.toString();
}

std::optional<QString> Bundle::executablePath() const
{
    const QString name = info_.value(QStringLiteral("CFBundleExecutable")).toString();
    if (!staysInside(name))
        return std::nullopt;
    return path_ + QLatin1Char('/') + name;
}

QVariant Bundle::objectForInfoDictionaryKey(const QString& key) const
{
    return info_.value(key);
}

std::optional<QString> Bundle::pathForResource(const QString& name) const
{
    if (!staysInside(name))
        return std::nullopt;
    const QString path = path_ + QStringLiteral("/Resources/") + name;
    if (!QFileInfo::exists(path))
        return std::nullopt;
    return path;
}

QString Bundle::localizedString(const QString& key, const QString& value, const QString& table) const
{
    const QByteArray context = table.isEmpty() ? QByteArray(kDefaultTable) : table.toUtf8();
    const QByteArray source = key.toUtf8();
    for (const QTranslator* translator : {translator_.get(), english_.get()}) {
        if (!translator)
            continue;
        const QString found = translator->translate(context.constData(), source.constData());
        if (!found.isEmpty())
            return found;
    }
    return value.isEmpty() ? key : value;
}

} // namespace halvern
