#include "platform/foundation/string_additions.h"
#include "tests/support/test.h"

#include <QLocale>
#include <QStringList>

#include <algorithm>

namespace halvern {

TEST(StringAdditionsTest, SortsNumbersByValueAndIgnoresCaseInEveryLocale)
{
    for (const char* locale : {"C", "en_US", "tr_TR", "ja_JP"}) {
        QLocale::setDefault(QLocale(QString::fromLatin1(locale)));
        QStringList names{q("a10"),
                          q("A2"),
                          q("b1"),
                          q("A"),
                          q("a010x"),
                          q("I3"),
                          q("99999999999999999999"),
                          q("100000000000000000000")};
        std::sort(names.begin(), names.end(), [](const QString& left, const QString& right) {
            return KSTRVL_NSStringAdditions::numericalCaseInsensitiveCompare(left, right) < 0;
        });
        EXPECT_EQ(names.join(QLatin1Char(' ')),
                  q("99999999999999999999 100000000000000000000 A A2 a10 a010x b1 I3"))
            << locale;
    }
    EXPECT_EQ(KSTRVL_NSStringAdditions::numericalCaseInsensitiveCompare(q("Matt 7"), q("mATT 07")), 0);
}

TEST(StringAdditionsTest, KeepsThePrefixBeforeEachDisallowedCharacter)
{
    const auto letters = [](QChar character) { return character.isLetter(); };
    const QList<QPair<const char*, const char*>> cases{
        {"abcd", "abcd"}, {"ab#cd", "ab"},  {"#ab", ""}, {"ab#", "ab"},    {"ab#cd#ef", "abab#cd"},
        {"", ""},         {"ab##cd", "ab"}, {"#", ""},   {"a#b#c", "aa#b"}};
    for (const auto& [text, expected] : cases) {
        EXPECT_EQ(WMKastrovelExtras::stringWithOnlyCharactersInSet(QString::fromLatin1(text), letters),
                  QString::fromLatin1(expected))
            << text;
    }
    const QString none = WMKastrovelExtras::stringWithOnlyCharactersInSet(q("ab"), nullptr);
    EXPECT_TRUE(none.isEmpty() && !none.isNull());
}

} // namespace halvern
