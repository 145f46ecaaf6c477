// SPDX-License-Identifier: MIT
#include "dialog/options/back_lines.h"

#include "platform/foundation/list_text.h"
#include "platform/maker/backprint_text.h"

#include <QCoreApplication>

namespace halvern {

namespace {

struct BackLineWords {
    Q_DECLARE_TR_FUNCTIONS(BackLines)
};

// What a terminal would act on, or cannot show, is named by its number.
QString nameOf(char32_t character)
{
    if (!QChar::isPrint(character))
        return QStringLiteral("U+%1").arg(uint(character), 4, 16, QLatin1Char('0')).toUpper();
    return QLatin1Char('"') + QString::fromUcs4(&character, 1) + QLatin1Char('"');
}

QString eachOnce(const QString& characters)
{
    QStringList names;
    for (const uint character : characters.toUcs4())
        names.append(nameOf(character));
    names.removeDuplicates();
    return listText(names);
}

} // namespace

BackLine readBackLine(int number, const QString& text)
{
    const backprint::EnteredLine entered = backprint::enteredLine(text);
    BackLine line{entered.stored, {}};
    if (!entered.refused.isEmpty()) {
        line.remarks.append(
            BackLineWords::tr("Backprint line %1 cannot hold %2, which was left out. It takes the characters "
                              "of an English keyboard except \"~\", and \"©\".")
                .arg(QString::number(number), eachOnce(entered.refused)));
    }
    if (entered.beyondLimit > 0) {
        line.remarks.append(
            BackLineWords::tr("Backprint line %1 is longer than %2 characters; what comes after them "
                              "was left out (%3).")
                .arg(number)
                .arg(backprint::kLongestLine)
                .arg(entered.beyondLimit));
    }
    return line;
}

QString backLineText(int number)
{
    return QStringLiteral("CVP%1").arg(number);
}

QString backLineSwitch(int number)
{
    return QStringLiteral("EnableCVP%1").arg(number);
}

OptionValues backLineOptions(const QStringList& storedLines)
{
    OptionValues options;
    for (int i = 0; i < storedLines.size(); ++i) {
        options.append({backLineText(i + 1), storedLines[i]});
        options.append({backLineSwitch(i + 1), QStringLiteral("True")});
    }
    return options;
}

} // namespace halvern
