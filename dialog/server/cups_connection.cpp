#include "dialog/server/cups_connection.h"

#include "platform/printing/cups_ppd.h"

#include <QCoreApplication>

namespace halvern::cups {

namespace {

constexpr double kWaitSeconds = 1.0;

const char* noPassword(const char*, http_t*, const char*, const char*, void*)
{
    // Without this, libcups asks on the terminal.
    return nullptr;
}

QString words(const char* text)
{
    return QCoreApplication::translate("Server", text);
}

} // namespace

CancelFlag makeCancelFlag()
{
    return std::make_shared<std::atomic<bool>>(false);
}

void HttpCloser::operator()(_http_s* http) const
{
    httpClose(http);
}

void IppDeleter::operator()(_ipp_s* ipp) const
{
    ippDelete(ipp);
}

QString serverUnreachable()
{
    return QCoreApplication::translate("Server",
                                       "The print server at %1 cannot be reached. Start it, for example with "
                                       "\"systemctl start cups\", and try again.")
        .arg(QString::fromUtf8(cupsServer()));
}

Connection::Connection(CancelFlag cancelled, int patienceSeconds)
    : cancelled_(std::move(cancelled)), patience_(patienceSeconds)
{
    cupsSetPasswordCB2(noPassword, nullptr);
    http_.reset(httpConnect2(cupsServer(), ippPort(), nullptr, AF_UNSPEC, cupsEncryption(), 1,
                             patienceSeconds * 1000, &cancelConnect_));
    if (!http_) {
        error_ = serverUnreachable();
        return;
    }
    httpSetTimeout(http_.get(), kWaitSeconds, &Connection::keepWaiting, this);
}

Connection::~Connection() = default;

bool Connection::isCancelled() const
{
    return cancelled_ && cancelled_->load();
}

int Connection::keepWaiting(http_t*, void* self)
{
    auto* connection = static_cast<Connection*>(self);
    ++connection->waited_;
    return !connection->isCancelled() && connection->waited_ < connection->patience_;
}

Ipp Connection::request(Ipp request, const char* resource)
{
    waited_ = 0;
    if (!http_ || isCancelled())
        return nullptr;
    return Ipp(cupsDoRequest(http_.get(), request.release(), resource));
}

bool Connection::failed(const Ipp& answer)
{
    if (http_ && answer && ippGetStatusCode(answer.get()) < IPP_STATUS_REDIRECTION_OTHER_SITE)
        return false;
    rememberFailure();
    return true;
}

void Connection::rememberFailure()
{
    if (!http_)
        return;
    if (waited_ >= patience_) {
        error_ = words(QT_TRANSLATE_NOOP("Server", "The print server does not answer. Wait a moment and try "
                                                   "again, or restart it."));
        return;
    }
    switch (cupsLastError()) {
    case IPP_STATUS_ERROR_NOT_FOUND:
        error_ = words(QT_TRANSLATE_NOOP("Server", "The printer is not on the print server any more. Choose "
                                                   "another one."));
        break;
    case IPP_STATUS_ERROR_NOT_ACCEPTING_JOBS:
        error_ = words(QT_TRANSLATE_NOOP("Server", "The printer does not accept jobs at the moment. Choose "
                                                   "another one, or let it accept jobs (cupsaccept)."));
        break;
    case IPP_STATUS_ERROR_NOT_AUTHENTICATED:
    case IPP_STATUS_ERROR_NOT_AUTHORIZED:
    case IPP_STATUS_ERROR_FORBIDDEN:
        error_ =
            words(QT_TRANSLATE_NOOP("Server", "The print server does not allow you to do this. Ask whoever "
                                              "looks after it."));
        break;
    case IPP_STATUS_ERROR_SERVICE_UNAVAILABLE:
    case IPP_STATUS_ERROR_INTERNAL:
    default:
        error_ = words(QT_TRANSLATE_NOOP("Server", "The print server reports: %1"))
                     .arg(QString::fromUtf8(cupsLastErrorString()));
        break;
    }
}

Ipp newRequest(int operation, const QString& queue)
{
    Ipp request(ippNewRequest(ipp_op_t(operation)));
    if (!queue.isEmpty()) {
        char uri[HTTP_MAX_URI];
        httpAssembleURIf(HTTP_URI_CODING_ALL, uri, sizeof(uri), "ipp", nullptr, "localhost", ippPort(),
                         "/printers/%s", queue.toUtf8().constData());
        ippAddString(request.get(), IPP_TAG_OPERATION, IPP_TAG_URI, "printer-uri", nullptr, uri);
    }
    ippAddString(request.get(), IPP_TAG_OPERATION, IPP_TAG_NAME, "requesting-user-name", nullptr, cupsUser());
    return request;
}

} // namespace halvern::cups
