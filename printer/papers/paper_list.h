// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QString>
#include <QVariantMap>

#include <optional>

namespace halvern {

/// The papers that a printer holds, as its catalogue lists them, and what else it can do.
struct PaperList {
    /// Paper key -> record ("paperName", "paperWidth", ...).
    QVariantMap records;
    /// Nothing if the list does not say.
    std::optional<bool> duplex;
    std::optional<bool> extraFeatures;
};

struct PaperListResult {
    std::optional<PaperList> list;
    /// Where the fault is and what to do; empty on success.
    QString failure;
};

/// Reads a paper list written by hand; printer/papers/README.md describes it. A sheet makes one record for
/// each of its resolutions, a roll one for each surface and resolution. Papers given as a map of records by
/// key are taken as they are. Any thread.
PaperListResult readPaperList(const QByteArray& json);

} // namespace halvern
