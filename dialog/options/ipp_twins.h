// SPDX-License-Identifier: MIT
#pragma once

#include "dialog/options/option_value.h"

struct ppd_file_s;
using ppd_file_t = ppd_file_s;

namespace halvern {

/// The lines of a PPD that was made from a printer's IPP attributes, and that say what a job calls its
/// options:
///
///   *HalvernIppAttribute Duplex: "sides"
///   *HalvernIppValue Duplex.DuplexNoTumble: "two-sided-long-edge"
///
/// An attribute "media-col/media-type" is a member of a collection. A choice without a line is its own value;
/// an empty value leaves the attribute out. A PPD's text cannot have quotes in it: see asTwin().
inline constexpr char kIppAttribute[] = "HalvernIppAttribute";
inline constexpr char kIppValue[] = "HalvernIppValue";

/// And this one, where the printer's queue hands a job's options on without a look at them:
///
///   *HalvernIppHandsOn: True
inline constexpr char kIppHandsOn[] = "HalvernIppHandsOn";

/// How the keyword of a choice begins that stands for a name of the printer's, "My canvas, 340 g".
inline constexpr char kOwnName[] = "own-";

/// A value as it stands in such a line, and back.
QByteArray asTwin(const QString& value);
QString fromTwin(const QByteArray& text);

/// Whether collections have to be in a job as texts: a queue that hands options on keeps no others.
bool takesCollectionsAsText(ppd_file_t* file);

/// What a job calls a choice; the choice itself where it is no printer's without a PPD.
QString ippValueOf(ppd_file_t* file, const QString& key, const QString& choice);

/// The choice of an option that a job calls so; empty if there is none. So the printer's own names can be
/// typed.
QString choiceOfIppValue(ppd_file_t* file, const QString& key, const QString& value);

/// The options as a job for such a printer carries them; those of another printer stay as they are. On the
/// thread that owns the PPD.
OptionValues asIppOptions(ppd_file_t* file, const OptionValues& options);

} // namespace halvern
