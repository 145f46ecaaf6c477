// SPDX-License-Identifier: MIT
#pragma once

#include "platform/foundation/export.h"

#include <QString>
#include <QStringList>
#include <QStringView>

#include <functional>

namespace HALVERN_EXPORT halvern {

namespace KSTRVL_NSStringAdditions {

/// numericalCaseInsensitiveCompare: negative, zero or positive. Ignores case and compares runs of digits by
/// their value ("A2" before "a10"); the same in every locale. Any thread.
int numericalCaseInsensitiveCompare(const QString& left, const QString& right);

/// The strings in the order of numericalCaseInsensitiveCompare:, equal ones in their order. Any thread.
QStringList sortedNumerically(const QStringList& strings);

} // namespace KSTRVL_NSStringAdditions

namespace WMKastrovelExtras {

/// A set of UTF-16 units.
using CharacterSet = std::function<bool(QChar)>;

/// stringWithOnlyCharactersInSet: the string itself if all its characters are allowed. Otherwise, for each
/// disallowed character that follows an allowed one (and for the first in any case), the whole prefix before
/// it is appended, and what follows the last one is dropped: with letters allowed "ab#cd" gives "ab",
/// "ab#cd#ef" gives "abab#cd". An empty set object gives "". Any thread.
QString stringWithOnlyCharactersInSet(const QString& string, const CharacterSet& set);

} // namespace WMKastrovelExtras

} // namespace halvern
