// SPDX-License-Identifier: MIT
#include "panels/features/binding_margin.h"

#include <array>

namespace halvern::binding {

namespace {

struct Turn {
    QLatin1StringView shown;
    QLatin1StringView stored;
};

constexpr std::array<Turn, 4> kQuarterTurns{{
    {QLatin1StringView("Bottom"), QLatin1StringView("Right")},
    {QLatin1StringView("Top"), QLatin1StringView("Left")},
    {QLatin1StringView("Left"), QLatin1StringView("Bottom")},
    {QLatin1StringView("Right"), QLatin1StringView("Top")},
}};

} // namespace

QString storedOfShown(const QString& shown)
{
    for (const Turn& turn : kQuarterTurns) {
        if (shown == turn.shown)
            return turn.stored;
    }
    return shown;
}

QString shownOfStored(const QString& stored)
{
    for (const Turn& turn : kQuarterTurns) {
        if (stored == turn.stored)
            return turn.shown;
    }
    return stored;
}

bool isOffered(const QString& margin, bool sideEdges)
{
    if (margin == QLatin1StringView("None"))
        return true;
    const bool isSideEdge = margin == QLatin1StringView("Left") || margin == QLatin1StringView("Right");
    return isSideEdge == sideEdges;
}

} // namespace halvern::binding
