#include "platform/foundation/numbers.h"

#include <QLocale>
#include <algorithm>
#include <cmath>
#include <limits>

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
    return length == 0 ? 0.0 : text.left(length).toDouble();
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
    // QString's own formatting always uses the C locale; the C library's follows the process's.
    return QString::asprintf(format, number);
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

} // namespace halvern
