// SPDX-License-Identifier: MIT
#pragma once

#include "dialog/options/option_value.h"

#include <array>

struct ppd_file_s;
using ppd_file_t = ppd_file_s;

namespace halvern {

/// Who gave an option its value; a later one of these wins over an earlier one.
enum class OptionOrigin { queue, saved, remembered, typed };

struct GivenOption {
    QString key;
    QString value;
    OptionOrigin origin;
};

using GivenOptions = QList<GivenOption>;

/// The options with whoever gave them.
GivenOptions givenBy(OptionOrigin origin, const OptionValues& options);

/// A given option that cannot be followed, with the sentence that says why and what to do.
struct LeftOut {
    OptionOrigin origin;
    QString sentence;
};

/// What was given as an option and is the page's or the job's.
struct PageWishes {
    QString scaling; ///< a word of IPP's: "fit", "fill" or "none"; empty if nobody said
    std::optional<bool> isCollated;
    QString pageRanges = {}; ///< as they were written; empty if nobody said
    QString pageSet = {};    ///< a word of IPP's: "all", "odd" or "even"; empty if nobody said
    std::optional<bool> isReversed = {};
};

/// Given options as a printer's PPD spells them.
struct UnderstoodOptions {
    GivenOptions options;
    PageWishes page;
    QList<LeftOut> leftOut;
};

/// Takes the server's own names apart: "media=iso_a4_210x297mm" becomes "PageSize=A4", "sides" a choice of
/// the duplex option, "fit-to-page" a wish for the page. What would lay the page out a second time is left
/// out with a sentence. Options that the PPD may know stay as they are. On the thread that owns `file`.
UnderstoodOptions understand(ppd_file_t* file, const GivenOptions& given);

/// The keywords with which PPDs print on both sides.
inline constexpr std::array kDuplexKeywords{"Duplex", "JCLDuplex", "EFDuplex", "EFDuplexing", "KD03Duplex"};

/// The option with which the printer prints on both sides; empty if it has none.
QString duplexOption(ppd_file_t* file);

/// Whether a job may carry the option although it is none of the printer's.
bool isJobAttribute(const QString& key);

/// ". Did you mean A or B?" or nothing, and ". It has: A, B and 3 more." for an error about an unknown name.
QString meantSentence(const QString& wanted, const QStringList& names);
QString listSentence(const QString& wanted, const QStringList& names);

} // namespace halvern
