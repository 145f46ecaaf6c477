#include "platform/foundation/user_defaults.h"

#include "platform/foundation/log.h"

#include <QSettings>

#include <memory>

namespace halvern {

namespace {

std::unique_ptr<QSettings> openSettings()
{
    return std::make_unique<QSettings>(QSettings::IniFormat, QSettings::UserScope, QStringLiteral("halvern"),
                                       QStringLiteral("print"));
}

} // namespace

UserDefaults& UserDefaults::standardUserDefaults()
{
    static UserDefaults defaults;
    return defaults;
}

QString UserDefaults::globalDomain()
{
    return QStringLiteral("Global");
}

QVariantMap UserDefaults::persistentDomain(const QString& domain) const
{
    const std::unique_ptr<QSettings> settings = openSettings();
    settings->beginGroup(domain);
    QVariantMap values;
    const QStringList keys = settings->allKeys();
    for (const QString& key : keys)
        values.insert(key, settings->value(key));
    return values;
}

void UserDefaults::setPersistentDomain(const QVariantMap& values, const QString& domain)
{
    const std::unique_ptr<QSettings> settings = openSettings();
    settings->remove(domain);
    settings->beginGroup(domain);
    for (auto it = values.cbegin(); it != values.cend(); ++it)
        settings->setValue(it.key(), it.value());
    settings->endGroup();
    settings->sync();
    if (settings->status() != QSettings::NoError)
        logLine(QStringLiteral("could not write the user's defaults to %1").arg(settings->fileName()));
}

QVariant UserDefaults::objectForKey(const QString& key) const
{
    return persistentDomain(globalDomain()).value(key);
}

} // namespace halvern
