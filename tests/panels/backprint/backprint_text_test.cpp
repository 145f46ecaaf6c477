// SPDX-License-Identifier: MIT
#include "platform/maker/backprint_text.h"
#include "tests/support/test.h"

namespace halvern::backprint {

namespace {

QString run(qsizetype length, QChar character = u'x')
{
    return QString(length, character);
}

} // namespace

TEST(BackprintTextTest, AllowsSpaceToClosingBraceAndTheCopyrightSignOnly)
{
    const auto allowed = safeCharacters();
    QString accepted;
    for (int unit = 0; unit < 0x10000; ++unit) {
        if (allowed(QChar(unit)))
            accepted += QChar(unit);
    }
    EXPECT_EQ(accepted.size(), 95);
    EXPECT_EQ(accepted.front(), u' ');
    EXPECT_EQ(accepted.at(93), u'}');
    EXPECT_EQ(accepted.back(), QChar(0xA9));
}

TEST(BackprintTextTest, SwapsCommasAndApostrophesBothWays)
{
    const QString shown = q("Smith's, Inc.'s,");
    const QString stored = q("Smith\u00e6s\u2264 Inc.\u00e6s\u2264");
    EXPECT_EQ(stringWithSafeCharacters(shown), stored);
    EXPECT_EQ(stringWithSafeCharacters(stored), stored);
    EXPECT_EQ(stringWithUnsafeCharacters(stored), shown);
    // The longest line that can be stored.
    EXPECT_EQ(stringWithSafeCharacters(run(121, u',')).toUtf8().size(), 363);
}

TEST(BackprintTextTest, LimitsALineAndNeverLeavesABackslashAtItsEnd)
{
    const struct {
        QString text;
        QString limited;
    } cases[] = {
        {q(""), q("")},
        {run(120), run(120)},
        {run(121), run(120)},
        {run(120) + u' ', run(120) + u' '},
        {run(121) + u' ', run(120)},
        {q("\\"), q("\\ ")},
        {run(118) + u'\\', run(118) + q("\\ ")},
        {run(119) + u'\\', run(119) + q("\\ ")},
        {run(119) + q("\\\\"), run(119) + q("\\ ")},
    };

    for (const auto& row : cases) {
        EXPECT_EQ(limitCVPValue(row.text), row.limited) << row.text.toStdString();
        EXPECT_EQ(limitCVPValue(row.limited), row.limited);
    }
}

TEST(BackprintTextTest, AnEnteredLineIsTheOneThatSingleKeystrokesGive)
{
    const QStringList texts = {q("caf\u00e9, it's ~ \u00a9 \U0001F4F7 [YY]\\"), run(119) + q("~\\more"),
                               q("")};
    for (const QString& text : texts) {
        QString typed;
        for (const QChar character : text)
            typed = afterTyping(typed + character, safeCharacters()).text;
        const EnteredLine line = enteredLine(text);
        EXPECT_EQ(line.shown, limitCVPValue(typed));
        EXPECT_EQ(line.stored, stringWithSafeCharacters(line.shown));
        EXPECT_EQ(typed.size() + line.refused.size() + line.beyondLimit, text.size());
    }
    EXPECT_EQ(enteredLine(texts[0]).refused, q("\u00e9~\U0001F4F7"));
    EXPECT_EQ(enteredLine(texts[1]).beyondLimit, 4);
}

} // namespace halvern::backprint
