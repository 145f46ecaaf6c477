// SPDX-License-Identifier: MIT
#include "dialog/job/auth_info.h"

#include "platform/printing/cups_ppd.h"

#include <QCoreApplication>

#include <map>
#include <mutex>
#include <vector>

namespace halvern {

namespace {

/// What the jobs on their way were sent with.
struct SentLogins {
    std::mutex mutex;
    std::map<std::pair<cups::Place, int>, cups::Login> logins; ///< by printer and job

    static SentLogins& shared()
    {
        // Workers that nobody joins may still use it when the program ends.
        static auto* sent = new SentLogins;
        return *sent;
    }
};

AuthInfo takeSentLogin(const cups::Place& place, int jobId)
{
    SentLogins& sent = SentLogins::shared();
    const std::scoped_lock lock(sent.mutex);
    const auto found = sent.logins.extract({place, jobId});
    return found ? AuthInfo(found.mapped()) : std::nullopt;
}

QString noAuthInfo(const QString& queue)
{
    return QCoreApplication::translate(
               "AuthInfo", "The printer \"%1\" wants a name and a password, and was given none. Print "
                           "again and sign in, or ask whoever looks after it.")
        .arg(queue);
}

} // namespace

QString addAuthInfo(cups::Connection& server, _ipp_s* request, const QString& queue, const QStringList& asked,
                    const cups::CancelFlag& cancelled, AuthInfo& given)
{
    const bool wantsLogin =
        asked.contains(QStringLiteral("username")) || asked.contains(QStringLiteral("password"));
    if (!wantsLogin)
        return {};
    if (!server.tryToEncrypt())
        return server.error();
    cups::LoginQuestion question{
        {server.hostName(), queue}, QString::fromUtf8(cupsUser()), server.isPrivate()};
    const AuthInfo login = cups::Access::shared().login(question, std::nullopt, cancelled);
    if (!login || (!question.isEncrypted && !login->mayTravelOpenly))
        return noAuthInfo(queue);
    given = login;
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
    return {};
}

void rememberAuthInfo(const cups::Connection& server, const QString& queue, int jobId, const AuthInfo& given)
{
    if (!given)
        return;
    SentLogins& sent = SentLogins::shared();
    const std::scoped_lock lock(sent.mutex);
    sent.logins.insert_or_assign({cups::Place{server.hostName(), queue}, jobId}, *given);
}

void authInfoWasRight(const cups::Connection& server, const QString& queue, int jobId)
{
    const cups::Place place{server.hostName(), queue};
    if (const AuthInfo login = takeSentLogin(place, jobId))
        cups::Access::shared().wasRight(place, *login);
}

void forgetAuthInfo(const cups::Connection& server, const QString& queue, int jobId)
{
    const cups::Place place{server.hostName(), queue};
    if (const AuthInfo login = takeSentLogin(place, jobId))
        cups::Access::shared().wasWrong(place, *login);
}

void askForOtherAuthInfo(const cups::Connection& server, const QString& queue, int jobId)
{
    const cups::Place place{server.hostName(), queue};
    cups::Access::shared().wasWrong(place, takeSentLogin(place, jobId).value_or(cups::Login()));
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
