// SPDX-License-Identifier: MIT
// What a failed conversation with the server is called in the user's language.
#include "platform/printing/cups_connection.h"
#include "platform/printing/cups_ppd.h"

#include <QCoreApplication>

#include <cstring>

namespace halvern::cups {

namespace {

constexpr int kUsualPort = 631;

struct CupsSentences {
    Q_DECLARE_TR_FUNCTIONS(CupsSentences)
};

// libcups has a text where nothing is known, too: "Success" of an error number that nobody set.
bool saysNothing(const QString& text)
{
    return text.isEmpty() || text == QString::fromLocal8Bit(std::strerror(0)) ||
           text.startsWith(QLatin1StringView("successful-ok"));
}

QString brokenOff()
{
    return CupsSentences::tr("The print server broke off the conversation. Try again; if it "
                             "fails again, look into the print server's error log.");
}

QString statusMessage(const Ipp& answer)
{
    ipp_attribute_t* found = ippFindAttribute(answer.get(), "status-message", IPP_TAG_TEXT);
    const QString message = found ? QString::fromUtf8(ippGetString(found, 0, nullptr)) : QString();
    return saysNothing(message) ? QString::fromUtf8(ippErrorString(ippGetStatusCode(answer.get()))) : message;
}

ipp_status_t ippStatusOf(int httpStatus)
{
    switch (httpStatus) {
    case HTTP_STATUS_NOT_FOUND:
        return IPP_STATUS_ERROR_NOT_FOUND;
    case HTTP_STATUS_UNAUTHORIZED:
    case HTTP_STATUS_CUPS_AUTHORIZATION_CANCELED:
        return IPP_STATUS_ERROR_NOT_AUTHORIZED;
    case HTTP_STATUS_FORBIDDEN:
        return IPP_STATUS_ERROR_FORBIDDEN;
    default:
        return IPP_STATUS_ERROR_INTERNAL;
    }
}

} // namespace

QString serverUnreachable()
{
    const QString server = QString::fromUtf8(cupsServer());
    if (!server.startsWith(QLatin1Char('/')) && server != QLatin1StringView("localhost"))
        return CupsSentences::tr(
                   "The print server at %1 cannot be reached. Is its name right, is it switched on, and is "
                   "this computer on its network?")
            .arg(ippPort() == kUsualPort ? server : QStringLiteral("%1:%2").arg(server).arg(ippPort()));
    return CupsSentences::tr("The print server at %1 cannot be reached. Start it, for example with "
                             "\"systemctl start cups\", and try again.")
        .arg(server);
}

QString noEncryption(const QString& host)
{
    return CupsSentences::tr(
               "The print server at %1 wants to talk in secret only, and no encryption could be agreed "
               "upon with it. Ask whoever looks after it.")
        .arg(host);
}

QString notTrusted(const QString& host)
{
    return CupsSentences::tr(
               "The certificate of the print server at %1 is not trusted, so nothing was sent to it. "
               "Try again to look at it once more, or ask whoever looks after the server.")
        .arg(host);
}

bool Connection::failed(const Ipp& answer)
{
    if (answer) {
        const ipp_status_t status = ippGetStatusCode(answer.get());
        if (status < IPP_STATUS_REDIRECTION_OTHER_SITE)
            return false;
        error_ = sentence(status, statusMessage(answer));
    } else {
        error_ = sentence(ippStatusOf(status_), QString::fromUtf8(httpStatus(http_status_t(status_))));
    }
    return true;
}

QString Connection::sentence(int ippStatus, const QString& message) const
{
    switch (failure_) {
    case Failure::unreachable:
    case Failure::untrusted:
        return error_;
    case Failure::silent:
        return CupsSentences::tr("The print server does not answer. Wait a moment and try "
                                 "again, or restart it.");
    case Failure::tooMuch:
        return CupsSentences::tr("The print server's answer does not end. Restart the print "
                                 "server, and try again.");
    case Failure::cancelled:
    case Failure::brokenOff:
        return brokenOff();
    case Failure::none:
    case Failure::refused:
        break;
    }
    if (status_ == HTTP_STATUS_UNAUTHORIZED && !given_)
        return CupsSentences::tr(
                   "The print server at %1 wants a name and a password for this, and was given none. Try "
                   "again and sign in, or ask whoever looks after it.")
            .arg(hostName());
    switch (ippStatus) {
    case IPP_STATUS_ERROR_NOT_FOUND:
        return CupsSentences::tr("The printer is not on the print server any more. Choose "
                                 "another one.");
    case IPP_STATUS_ERROR_NOT_ACCEPTING_JOBS:
        return CupsSentences::tr("The printer does not accept jobs at the moment. Choose "
                                 "another one, or let it accept jobs (cupsaccept).");
    case IPP_STATUS_ERROR_NOT_AUTHENTICATED:
    case IPP_STATUS_ERROR_NOT_AUTHORIZED:
    case IPP_STATUS_ERROR_FORBIDDEN:
        return CupsSentences::tr("The print server does not allow you to do this. Ask "
                                 "whoever looks after it.");
    default:
        break;
    }
    if (ippStatus < IPP_STATUS_REDIRECTION_OTHER_SITE || saysNothing(message))
        return brokenOff();
    return CupsSentences::tr("The print server reports: %1").arg(message);
}

} // namespace halvern::cups
