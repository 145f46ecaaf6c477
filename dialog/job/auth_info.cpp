// SPDX-License-Identifier: MIT
#include "dialog/job/auth_info.h"

#include "platform/printing/cups_ppd.h"

#include <QCoreApplication>

#include <vector>

namespace halvern {

bool addAuthInfo(const cups::Connection& server, _ipp_s* request, const QString& queue,
                 const QStringList& asked, const cups::CancelFlag& cancelled)
{
    const bool wantsLogin =
        asked.contains(QStringLiteral("username")) || asked.contains(QStringLiteral("password"));
    if (!wantsLogin)
        return true;
    cups::LoginQuestion question{
        {server.hostName(), queue}, QString::fromUtf8(cupsUser()), server.isPrivate()};
    const std::optional<cups::Login> login = cups::Access::shared().login(question, std::nullopt, cancelled);
    if (!login || (!question.isEncrypted && !login->mayTravelOpenly))
        return false;
    std::vector<QByteArray> texts;
    for (const QString& what : asked) {
        if (what == QLatin1StringView("username"))
            texts.push_back(login->user.toUtf8());
        else
            texts.push_back(what == QLatin1StringView("password") ? login->password.toUtf8() : QByteArray());
    }
    std::vector<const char*> values;
    for (const QByteArray& text : texts)
        values.push_back(text.constData());
    ippAddStrings(request, IPP_TAG_OPERATION, IPP_TAG_TEXT, "auth-info", int(values.size()), nullptr,
                  values.data());
    return true;
}

QString noAuthInfo(const QString& queue)
{
    return QCoreApplication::translate(
               "AuthInfo", "The printer \"%1\" wants a name and a password, and was given none. Print "
                           "again and sign in, or ask whoever looks after it.")
        .arg(queue);
}

void forgetAuthInfo(const cups::Connection& server, const QString& queue)
{
    cups::Access::shared().wasWrong({server.hostName(), queue});
}

QStringList askedOfUsers(cups::Connection& server, const QString& queue)
{
    cups::Ipp request = cups::newRequest(IPP_OP_GET_PRINTER_ATTRIBUTES, queue);
    ippAddString(request.get(), IPP_TAG_OPERATION, IPP_TAG_KEYWORD, "requested-attributes", nullptr,
                 "auth-info-required");
    const cups::Ipp answer = server.request(std::move(request), "/");
    ipp_attribute_t* found =
        answer ? ippFindAttribute(answer.get(), "auth-info-required", IPP_TAG_KEYWORD) : nullptr;
    QStringList asked;
    for (int i = 0; i < ippGetCount(found); ++i)
        asked.append(QString::fromUtf8(ippGetString(found, i, nullptr)));
    return asked;
}

} // namespace halvern
