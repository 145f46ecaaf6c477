// SPDX-License-Identifier: MIT
#include "dialog/options/option_value.h"

#include <QRegularExpression>

namespace halvern {

QString concealed()
{
    return QString(6, QChar(0x2022));
}

std::optional<OptionValue> parseOption(const QString& text)
{
    static const QRegularExpression bareWord(QStringLiteral("^[a-z]+(-[a-z]+)*$"));
    if (bareWord.match(text).hasMatch())
        return OptionValue{text, QStringLiteral("true")};
    const qsizetype equals = text.indexOf(QLatin1Char('='));
    if (equals <= 0 || text.left(equals).contains(QLatin1Char(' ')))
        return std::nullopt;
    return OptionValue{text.left(equals), text.mid(equals + 1)};
}

} // namespace halvern
