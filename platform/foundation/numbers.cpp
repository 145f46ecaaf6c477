// SPDX-License-Identifier: MIT
#include "platform/foundation/numbers.h"

#include <QLocale>
#include <QRegularExpression>

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <limits>
#include <string>

#include <locale.h>

namespace halvern {

namespace {

qsizetype skipDigits(QStringView text, qsizetype at)
{
    while (at < text.size() && text[at] >= u'0' && text[at] <= u'9')
        ++at;
    return at;
}

bool isSign(QStringView text, qsizetype at)
{
    return at < text.size() && (text[at] == u'-' || text[at] == u'+');
}

// The length of the longest number at the start of `text`, 0 if there is none.
qsizetype numberLength(QStringView text)
{
    qsizetype at = isSign(text, 0) ? 1 : 0;
    const qsizetype whole = skipDigits(text, at);
    qsizetype end = whole;
    qsizetype digits = whole - at;
    if (whole < text.size() && text[whole] == u'.') {
        end = skipDigits(text, whole + 1);
        digits += end - whole - 1;
    }
    if (digits == 0)
        return 0;
    if (end < text.size() && (text[end] == u'e' || text[end] == u'E')) {
        const qsizetype exponent = end + (isSign(text, end + 1) ? 2 : 1);
        const qsizetype exponentEnd = skipDigits(text, exponent);
        if (exponentEnd > exponent)
            end = exponentEnd;
    }
    return end;
}

QStringView withoutLeadingSpace(QStringView text)
{
    while (!text.isEmpty() && text.front().isSpace())
        text = text.mid(1);
    return text;
}

} // namespace

double leadingDouble(QStringView text)
{
    text = withoutLeadingSpace(text);
    const qsizetype length = numberLength(text);
    if (length == 0)
        return 0.0;
    // A number beyond the range stays a number, and a very large one.
    constexpr double largest = std::numeric_limits<double>::max();
    return std::clamp(text.left(length).toDouble(), -largest, largest);
}

int leadingInteger(QStringView text)
{
    text = withoutLeadingSpace(text);
    const bool negative = !text.isEmpty() && text.front() == u'-';
    qint64 number = 0;
    for (qsizetype at = isSign(text, 0) ? 1 : 0; at < text.size() && text[at] >= u'0' && text[at] <= u'9';
         ++at) {
        number = number * 10 + (text[at].unicode() - u'0');
        if (number > qint64(std::numeric_limits<int>::max()) + 1)
            break;
    }
    number = negative ? -number : number;
    return int(std::clamp<qint64>(number, std::numeric_limits<int>::min(), std::numeric_limits<int>::max()));
}

QString formatDouble(const char* format, double number)
{
    // The C library rounds exactly, which QString's formatting does not; the thread's locale makes sure of
    // the point.
    static const locale_t cLocale = newlocale(LC_ALL_MASK, "C", nullptr);
    const locale_t before = uselocale(cLocale);
    std::string text(size_t(std::max(0, std::snprintf(nullptr, 0, format, number))) + 1, '\0');
    std::snprintf(text.data(), text.size(), format, number);
    uselocale(before);
    return QString::fromLatin1(text.c_str());
}

QString shortestDouble(double number)
{
    return QString::number(number == 0.0 ? 0.0 : number, 'g', QLocale::FloatingPointShortest);
}

int truncatedToInt(double number)
{
    if (std::isnan(number))
        return 0;
    constexpr double low = std::numeric_limits<int>::min();
    constexpr double high = std::numeric_limits<int>::max();
    return int(std::trunc(qBound(low, number, high)));
}

QString inUsersNumbers(const QString& text)
{
    static const QRegularExpression number(
        QStringLiteral("(?<![\\d.,A-WYZa-wyz])(\\d+)\\.(\\d+)(?!\\.?\\d)"));
    const QString point = QLocale().decimalPoint();
    return QString(text).replace(number, QStringLiteral("\\1") + point + QStringLiteral("\\2"));
}

} // namespace halvern
