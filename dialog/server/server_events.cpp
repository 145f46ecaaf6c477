// SPDX-License-Identifier: MIT
#include "dialog/server/server_events.h"

#include "platform/printing/cups_ppd.h"

#include <algorithm>
#include <array>

namespace halvern {

namespace {

constexpr int kLeaseSeconds = 180;
constexpr std::chrono::seconds kRenewal(kLeaseSeconds / 2);
constexpr std::chrono::seconds kNextTry(60);
constexpr cups::Limits kLastWord{std::chrono::seconds(1), std::chrono::seconds(1)};

constexpr std::array kEvents{
    "printer-state-changed", "printer-config-changed", "printer-added", "printer-deleted", "printer-modified",
    "printer-stopped",       "printer-media-changed",  "job-created",   "job-completed",   "job-stopped"};

cups::Ipp newRequestAbout(int operation, int subscription)
{
    cups::Ipp request = cups::newRequest(operation, {});
    ippAddString(request.get(), IPP_TAG_OPERATION, IPP_TAG_URI, "printer-uri", nullptr, "ipp://localhost/");
    if (subscription > 0)
        ippAddInteger(request.get(), IPP_TAG_OPERATION, IPP_TAG_INTEGER, "notify-subscription-id",
                      subscription);
    return request;
}

} // namespace

bool ServerEvents::subscribe(cups::Connection& server)
{
    cups::Ipp request = newRequestAbout(IPP_OP_CREATE_PRINTER_SUBSCRIPTIONS, 0);
    ippAddSeparator(request.get());
    ippAddString(request.get(), IPP_TAG_SUBSCRIPTION, IPP_TAG_KEYWORD, "notify-pull-method", nullptr,
                 "ippget");
    ippAddStrings(request.get(), IPP_TAG_SUBSCRIPTION, IPP_TAG_KEYWORD, "notify-events", int(kEvents.size()),
                  nullptr, kEvents.data());
    ippAddInteger(request.get(), IPP_TAG_SUBSCRIPTION, IPP_TAG_INTEGER, "notify-lease-duration",
                  kLeaseSeconds);
    const cups::Ipp answer = server.request(std::move(request), "/");
    ipp_attribute_t* id = server.failed(answer)
                              ? nullptr
                              : ippFindAttribute(answer.get(), "notify-subscription-id", IPP_TAG_INTEGER);
    subscription_ = id ? std::max(ippGetInteger(id, 0), 0) : 0;
    next_ = 1;
    renewAt_ = Clock::now() + kRenewal;
    return subscription_ > 0;
}

bool ServerEvents::renew(cups::Connection& server)
{
    cups::Ipp request = newRequestAbout(IPP_OP_RENEW_SUBSCRIPTION, subscription_);
    ippAddInteger(request.get(), IPP_TAG_SUBSCRIPTION, IPP_TAG_INTEGER, "notify-lease-duration",
                  kLeaseSeconds);
    renewAt_ = Clock::now() + kRenewal;
    return !server.failed(server.request(std::move(request), "/"));
}

ServerEvents::News ServerEvents::fetch(cups::Connection& server)
{
    cups::Ipp request = newRequestAbout(IPP_OP_GET_NOTIFICATIONS, 0);
    ippAddInteger(request.get(), IPP_TAG_OPERATION, IPP_TAG_INTEGER, "notify-subscription-ids",
                  subscription_);
    ippAddInteger(request.get(), IPP_TAG_OPERATION, IPP_TAG_INTEGER, "notify-sequence-numbers", next_);
    const cups::Ipp answer = server.request(std::move(request), "/");
    if (server.failed(answer)) {
        // Restarted since, or not there: what happened meanwhile is not known.
        subscription_ = 0;
        return News::unknown;
    }
    const int before = next_;
    for (ipp_attribute_t* a = ippFirstAttribute(answer.get()); a; a = ippNextAttribute(answer.get())) {
        if (qstrcmp(ippGetName(a), "notify-sequence-number") == 0 && ippGetValueTag(a) == IPP_TAG_INTEGER)
            next_ = std::max(next_, std::min(ippGetInteger(a, 0), 0x7ffffffe) + 1);
    }
    return next_ > before ? News::some : News::none;
}

ServerEvents::News ServerEvents::look(cups::Connection& server)
{
    const auto now = Clock::now();
    if (subscription_ > 0 && now >= renewAt_ && !renew(server))
        subscription_ = 0;
    if (subscription_ > 0)
        return fetch(server);
    if (now < tryAgainAt_)
        return News::unknown;
    tryAgainAt_ = now + kNextTry;
    return subscribe(server) ? News::some : News::unknown;
}

void ServerEvents::end()
{
    if (subscription_ == 0)
        return;
    cups::Connection server(nullptr, kLastWord);
    if (server.isConnected())
        server.request(newRequestAbout(IPP_OP_CANCEL_SUBSCRIPTION, subscription_), "/");
    subscription_ = 0;
}

} // namespace halvern
