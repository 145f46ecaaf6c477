// SPDX-License-Identifier: MIT
#include "printer/fault_plan.h"

#include <algorithm>
#include <charconv>
#include <limits>

namespace halvern {

namespace {

constexpr std::string_view kScheme = "halvern:";
constexpr double kMaxSeconds = 86'400.0;

bool toSeconds(std::string_view text, double& seconds)
{
    const char* end = text.data() + text.size();
    const auto [rest, status] = std::from_chars(text.data(), end, seconds);
    return status == std::errc() && rest == end && seconds >= 0.0 && seconds <= kMaxSeconds;
}

// Without a value: at once.
bool toPages(std::string_view text, std::optional<int>& pages)
{
    int number = 0;
    const char* end = text.data() + text.size();
    const auto [rest, status] = std::from_chars(text.data(), end, number);
    if (!text.empty() && (status != std::errc() || rest != end || number < 0))
        return false;
    pages = number;
    return true;
}

bool isReason(std::string_view text)
{
    return !text.empty() && std::all_of(text.begin(), text.end(), [](char c) {
        return (c >= 'a' && c <= 'z') || (c >= '0' && c <= '9') || c == '-';
    });
}

bool apply(FaultPlan& plan, std::string_view key, std::string_view value)
{
    if (key == "offline" && value.empty()) {
        plan.offlineSeconds = std::numeric_limits<double>::infinity();
        return true;
    }
    if (key == "offline")
        return toSeconds(value, plan.offlineSeconds);
    if (key == "slow")
        return toSeconds(value, plan.slowSeconds);
    if (key == "stop")
        return toPages(value, plan.stopAfter);
    if (key == "fail")
        return toPages(value, plan.failAfter);
    if (key == "reason") {
        plan.reason = value;
        return isReason(value);
    }
    const auto flag = key == "reject"         ? &FaultPlan::reject
                      : key == "hold"         ? &FaultPlan::hold
                      : key == "filter-fails" ? &FaultPlan::filterFails
                      : key == "garbled"      ? &FaultPlan::garbled
                                              : nullptr;
    if (flag == nullptr || !value.empty())
        return false;
    plan.*flag = true;
    return true;
}

} // namespace

std::optional<FaultPlan> parseFaultPlan(std::string_view deviceUri, bool commandJob, std::string& error)
{
    if (!deviceUri.starts_with(kScheme)) {
        error = "The device URI does not begin with halvern:, give the queue one that does.";
        return std::nullopt;
    }
    FaultPlan plan;
    bool meant = true;
    const size_t mark = deviceUri.find('?');
    std::string_view query = mark == std::string_view::npos ? std::string_view() : deviceUri.substr(mark + 1);
    while (!query.empty()) {
        const std::string_view word = query.substr(0, query.find('&'));
        query.remove_prefix(std::min(query.size(), word.size() + 1));
        const size_t equals = word.find('=');
        const std::string_view key = word.substr(0, equals);
        const std::string_view value = equals == std::string_view::npos ? "" : word.substr(equals + 1);
        if (key == "only" && (value == "pages" || value == "commands")) {
            meant = (value == "commands") == commandJob;
        } else if (!apply(plan, key, value)) {
            error =
                "The device URI has \"" + std::string(word) + "\", which the virtual printer does not know.";
            return std::nullopt;
        }
    }
    return meant ? plan : FaultPlan();
}

} // namespace halvern
