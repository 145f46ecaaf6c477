// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

struct _ipp_attribute_s;
struct _ipp_s;

/// Reading of answers that nobody vouches for. Any thread.
namespace halvern {

/// The attribute, wherever it stands; null if there is none, or none whose values have this tag (0: any).
_ipp_attribute_s* findAttribute(_ipp_s* answer, const char* name, int tag = 0);

/// One of its texts, fit for a screen and cut; empty if there is no such value, or if it is no text. The
/// attribute may be null.
QString stringAt(_ipp_attribute_s* attribute, int place, int longest);

/// One of its whole numbers within the bounds; else `otherwise`.
int integerAt(_ipp_attribute_s* attribute, int place, int least, int most, int otherwise);

} // namespace halvern
