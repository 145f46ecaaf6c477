// SPDX-License-Identifier: MIT
#include "platform/foundation/date_additions.h"

#include <QLocale>
#include <QTimeZone>

#include <unicode/locid.h>
#include <unicode/smpdtfmt.h>
#include <unicode/timezone.h>

namespace halvern::KSTRVL_NSDateAdditions {

namespace {

icu::UnicodeString toIcu(const QString& text)
{
    return icu::UnicodeString(reinterpret_cast<const char16_t*>(text.utf16()), int32_t(text.size()));
}

} // namespace

std::optional<QString> stringWithUTSFormat(const QDateTime& date, const QString& pattern)
{
    if (!date.isValid())
        return std::nullopt;
    UErrorCode status = U_ZERO_ERROR;
    const icu::Locale locale(QLocale().bcp47Name().toUtf8().constData());
    icu::SimpleDateFormat format(toIcu(pattern), locale, status);
    if (U_FAILURE(status))
        return std::nullopt;
    icu::TimeZone* zone =
        icu::TimeZone::createTimeZone(toIcu(QString::fromUtf8(QTimeZone::systemTimeZoneId())));
    // A zone that only the C library understands: what it makes of this date will do.
    if (*zone == icu::TimeZone::getUnknown())
        zone->setRawOffset(date.toLocalTime().offsetFromUtc() * 1000);
    format.adoptTimeZone(zone);
    icu::UnicodeString text;
    // Only this form says that a letter of the pattern means nothing; it has then written what came before.
    format.format(UDate(date.toMSecsSinceEpoch()), text, nullptr, status);
    if (U_FAILURE(status))
        return std::nullopt;
    return QString::fromUtf16(text.getBuffer(), text.length());
}

} // namespace halvern::KSTRVL_NSDateAdditions
