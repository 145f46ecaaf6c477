// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>
#include <string_view>

/// What shall go wrong with the virtual printer: the query of its device URI. Any thread.
namespace halvern {

struct FaultPlan {
    /// Seconds for which the printer does not answer, infinite for "until the job is cancelled".
    double offlineSeconds = 0.0;
    /// Seconds that each page, or each command file, takes.
    double slowSeconds = 0.0;
    bool reject = false;
    bool hold = false;
    bool filterFails = false;
    /// The printer's report of its papers is damaged.
    bool garbled = false;
    /// The number of whole pages after which the queue stops, or the job fails by the queue's error policy.
    std::optional<int> stopAfter;
    std::optional<int> failAfter;
    /// The printer-state-reasons keyword that goes with stopping and failing.
    std::string reason = "media-jam-error";

    bool operator==(const FaultPlan&) const = default;
};

/// Reads the plan for a job of one kind, a command job or one with pages. The parameters are in
/// printer/README.md. Nothing, and a sentence in `error`, if the URI is not of this printer or has a
/// parameter that is not known.
std::optional<FaultPlan> parseFaultPlan(std::string_view deviceUri, bool commandJob, std::string& error);

} // namespace halvern
