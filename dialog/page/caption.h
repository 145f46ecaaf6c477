// SPDX-License-Identifier: MIT
#pragma once

#include "dialog/photo/photo_details.h"

#include <QPainterPath>
#include <QRectF>
#include <QString>

#include <array>

namespace halvern {

/// What a caption's pattern may hold beside plain text, in the order of the menu; the names as on the back.
struct CaptionToken {
    const char* token;
    const char* name; ///< to be translated in "Caption"
};

inline constexpr std::array kCaptionTokens{
    CaptionToken{"[F]", QT_TRANSLATE_NOOP("Caption", "File name")},
    CaptionToken{"[T]", QT_TRANSLATE_NOOP("Caption", "Title")},
    CaptionToken{"[C]", QT_TRANSLATE_NOOP("Caption", "Number")},
    CaptionToken{"[DATE]", QT_TRANSLATE_NOOP("Caption", "Date taken")},
    CaptionToken{"[YYYY]", QT_TRANSLATE_NOOP("Caption", "Year (4 digits)")},
    CaptionToken{"[YY]", QT_TRANSLATE_NOOP("Caption", "Year (2 digits)")},
    CaptionToken{"[MM]", QT_TRANSLATE_NOOP("Caption", "Month (2 digits)")},
    CaptionToken{"[M]", QT_TRANSLATE_NOOP("Caption", "Month")},
    CaptionToken{"[DD]", QT_TRANSLATE_NOOP("Caption", "Day (2 digits)")},
    CaptionToken{"[D]", QT_TRANSLATE_NOOP("Caption", "Day")},
};

/// Whether a pattern asks for what only the photo's file tells.
bool needsDetails(const QString& pattern);

/// The line for a photo: what is not known is left out, and what strangers wrote is made one line.
QString captionFor(const QString& pattern, const QString& path, int number, const PhotoDetails& details);

/// The text as shapes in the middle of a place, as large as that lets it be, and cut with an ellipsis where
/// it is too long. `quarterTurns`, clockwise, say how its reader turns the page. Any thread.
QPainterPath captionShapes(const QString& text, const QRectF& place, int quarterTurns);

} // namespace halvern
