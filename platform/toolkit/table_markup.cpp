// SPDX-License-Identifier: MIT
#include "platform/toolkit/table_markup.h"

#include <QGuiApplication>

#include <algorithm>

namespace halvern {

QString rowMarkup(QStringList cells)
{
    if (QGuiApplication::isRightToLeft()) {
        // The last cell takes most of the width that is left, as if the row ended after it.
        cells.last().replace(QLatin1StringView("<td"), QLatin1StringView("<td width='68%'"));
        std::ranges::reverse(cells);
    }
    return QLatin1StringView("<tr>") + cells.join(QString()) + QLatin1StringView("</tr>");
}

QString tableMarkup(const QString& rows)
{
    const char* begin = QGuiApplication::isRightToLeft() ? "<table width='100%'>" : "<table>";
    return QLatin1StringView(begin) + rows + QLatin1StringView("</table>");
}

} // namespace halvern
