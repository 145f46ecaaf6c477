// SPDX-License-Identifier: MIT
#include "portal/portal_call.h"

#include "dialog/window/print_dialog.h"
#include "portal/application_name.h"
#include "portal/life.h"

#include <QDBusConnection>

namespace halvern {

PortalCall::PortalCall(PortalRoom room, CallDetails details, const QDBusMessage& message)
    : room_(room),
      details_(std::move(details)),
      keepsAlive_(room.life.hold()),
      message_(message),
      caller_(message.service()),
      applicationsName_(applicationName(details_.application))
{
    message.setDelayedReply(true);
}

PortalCall::~PortalCall()
{
    answer(PortalResponse::failed);
}

void PortalCall::answer(PortalResponse response, const QVariantMap& results)
{
    if (std::exchange(isAnswered_, true))
        return;
    QDBusConnection::sessionBus().send(message_.createReply({uint(response), results}));
}

void PortalCall::close()
{
    answer(PortalResponse::failed);
    Q_EMIT over();
}

QString PortalCall::text(const char* option) const
{
    const QVariant value = details_.options.value(QLatin1StringView(option));
    return value.typeId() == QMetaType::QString ? value.toString() : QString();
}

bool PortalCall::isSet(const char* option, bool otherwise) const
{
    const QVariant value = details_.options.value(QLatin1StringView(option));
    return value.typeId() == QMetaType::Bool ? value.toBool() : otherwise;
}

void PortalCall::showDialog(PrintDialog& dialog)
{
    if (const std::optional<ForeignWindow> parent = readWindowName(details_.parentWindow))
        parent_ = putOver(&dialog, *parent, isSet("modal", true));
    dialog.show();
    dialog.raise();
    dialog.activateWindow();
}

} // namespace halvern
