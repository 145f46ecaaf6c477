// SPDX-License-Identifier: MIT
#include "dialog/program/terminal_table.h"

#include <algorithm>

#include <unicode/uchar.h>

namespace halvern {

namespace {

// Columns of a terminal: Chinese and Japanese characters take two, combining ones none.
qsizetype columnsOf(const QString& text)
{
    qsizetype columns = 0;
    for (const uint character : text.toUcs4()) {
        const int width = u_getIntPropertyValue(UChar32(character), UCHAR_EAST_ASIAN_WIDTH);
        if (width == U_EA_WIDE || width == U_EA_FULLWIDTH)
            columns += 2;
        else if (!QChar::isMark(character))
            ++columns;
    }
    return columns;
}

} // namespace

QString alignedColumns(const QList<QStringList>& rows)
{
    QList<qsizetype> widths;
    for (const QStringList& row : rows) {
        widths.resize(std::max(widths.size(), row.size()));
        for (qsizetype i = 0; i < row.size(); ++i)
            widths[i] = std::max(widths[i], columnsOf(row[i]));
    }
    QString table;
    for (const QStringList& row : rows) {
        QString line;
        for (qsizetype i = 0; i < row.size(); ++i)
            line += row[i] + QString(widths[i] + 2 - columnsOf(row[i]), QLatin1Char(' '));
        while (line.endsWith(QLatin1Char(' ')))
            line.chop(1);
        table += line + QLatin1Char('\n');
    }
    return table;
}

} // namespace halvern
