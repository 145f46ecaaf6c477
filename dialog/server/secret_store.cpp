// SPDX-License-Identifier: MIT
#include "dialog/server/secret_store.h"

#include <QCoreApplication>
#include <QDBusArgument>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusMetaType>
#include <QDBusObjectPath>
#include <QDBusVariant>
#include <QMap>

namespace halvern {

/// A secret as the bus carries it.
struct BusSecret {
    QDBusObjectPath session;
    QByteArray parameters;
    QByteArray value;
    QString type;
};

using BusAttributes = QMap<QString, QString>;

static QDBusArgument& operator<<(QDBusArgument& argument, const BusSecret& secret)
{
    argument.beginStructure();
    argument << secret.session << secret.parameters << secret.value << secret.type;
    argument.endStructure();
    return argument;
}

static const QDBusArgument& operator>>(const QDBusArgument& argument, BusSecret& secret)
{
    argument.beginStructure();
    argument >> secret.session >> secret.parameters >> secret.value >> secret.type;
    argument.endStructure();
    return argument;
}

} // namespace halvern

Q_DECLARE_METATYPE(halvern::BusSecret)

namespace halvern::secret_store {

namespace {

constexpr int kMilliseconds = 3000;

struct SecretStoreWords {
    Q_DECLARE_TR_FUNCTIONS(SecretStore)
};

QString interfaceName(const char* name)
{
    return QStringLiteral("org.freedesktop.Secret.") + QLatin1StringView(name);
}

QDBusMessage call(const QString& path, const QString& interface, const char* method,
                  const QVariantList& arguments)
{
    QDBusMessage message = QDBusMessage::createMethodCall(QStringLiteral("org.freedesktop.secrets"), path,
                                                          interface, QLatin1StringView(method));
    message.setArguments(arguments);
    return QDBusConnection::sessionBus().call(message, QDBus::Block, kMilliseconds);
}

QVariant property(const QString& path, const char* interface, const char* name)
{
    const QDBusMessage answer = call(path, QStringLiteral("org.freedesktop.DBus.Properties"), "Get",
                                     {interfaceName(interface), QLatin1StringView(name)});
    return answer.arguments().value(0).value<QDBusVariant>().variant();
}

const QString kServicePath = QStringLiteral("/org/freedesktop/secrets");
const QString kCollectionPath = QStringLiteral("/org/freedesktop/secrets/aliases/default");

// The secrets travel as they are: the bus is the user's own, and nobody else reads on it.
std::optional<QDBusObjectPath> openSession()
{
    const QDBusMessage answer = call(kServicePath, interfaceName("Service"), "OpenSession",
                                     {QStringLiteral("plain"), QVariant::fromValue(QDBusVariant(QString()))});
    if (answer.type() != QDBusMessage::ReplyMessage || answer.arguments().size() < 2)
        return std::nullopt;
    return answer.arguments()[1].value<QDBusObjectPath>();
}

BusAttributes attributesOf(const cups::Place& place)
{
    return {{QStringLiteral("application"), QStringLiteral("halvern-print")},
            {QStringLiteral("server"), place.host},
            {QStringLiteral("queue"), place.queue}};
}

void registerTypes()
{
    static const bool isDone = [] {
        qDBusRegisterMetaType<BusSecret>();
        qDBusRegisterMetaType<BusAttributes>();
        return true;
    }();
    Q_UNUSED(isDone)
}

QByteArray secretOf(const QDBusObjectPath& item, const QDBusObjectPath& session)
{
    const QDBusMessage answer =
        call(item.path(), interfaceName("Item"), "GetSecret", {QVariant::fromValue(session)});
    if (answer.type() != QDBusMessage::ReplyMessage || answer.signature() != QLatin1StringView("(oayays)"))
        return {};
    return qdbus_cast<BusSecret>(answer.arguments().value(0)).value;
}

} // namespace

bool isThere()
{
    const QVariant isLocked = property(kCollectionPath, "Collection", "Locked");
    return isLocked.typeId() == QMetaType::Bool && !isLocked.toBool();
}

std::optional<cups::Login> find(const cups::Place& place)
{
    registerTypes();
    const QDBusMessage answer = call(kServicePath, interfaceName("Service"), "SearchItems",
                                     {QVariant::fromValue(attributesOf(place))});
    if (answer.type() != QDBusMessage::ReplyMessage || answer.signature() != QLatin1StringView("aoao"))
        return std::nullopt;
    const auto items = qdbus_cast<QList<QDBusObjectPath>>(answer.arguments()[0]);
    const std::optional<QDBusObjectPath> session = items.isEmpty() ? std::nullopt : openSession();
    if (!session)
        return std::nullopt;
    const auto attributes = qdbus_cast<BusAttributes>(property(items.front().path(), "Item", "Attributes"));
    const QByteArray secret = secretOf(items.front(), *session);
    if (secret.isEmpty())
        return std::nullopt;
    cups::Login login;
    login.user = attributes.value(QStringLiteral("user"));
    login.password = QString::fromUtf8(secret);
    return login;
}

bool keep(const cups::Place& place, const cups::Login& login)
{
    registerTypes();
    const std::optional<QDBusObjectPath> session = openSession();
    if (!session)
        return false;
    BusAttributes attributes = attributesOf(place);
    attributes.insert(QStringLiteral("user"), login.user);
    const QString name = place.queue.isEmpty() ? place.host : place.queue;
    const QVariantMap properties{
        {interfaceName("Item.Label"), SecretStoreWords::tr("Printing on %1").arg(name)},
        {interfaceName("Item.Attributes"), QVariant::fromValue(attributes)}};
    const BusSecret secret{*session, {}, login.password.toUtf8(), QStringLiteral("text/plain; charset=utf8")};
    const QDBusMessage answer = call(kCollectionPath, interfaceName("Collection"), "CreateItem",
                                     {properties, QVariant::fromValue(secret), true});
    const auto item = answer.arguments().value(0).value<QDBusObjectPath>();
    if (answer.type() != QDBusMessage::ReplyMessage || item.path() == QLatin1StringView("/"))
        return false;
    // What is kept for the place under another name would be found as well.
    const QDBusMessage all = call(kServicePath, interfaceName("Service"), "SearchItems",
                                  {QVariant::fromValue(attributesOf(place))});
    for (const auto& other : qdbus_cast<QList<QDBusObjectPath>>(all.arguments().value(0))) {
        if (other != item)
            call(other.path(), interfaceName("Item"), "Delete", {});
    }
    return true;
}

} // namespace halvern::secret_store
