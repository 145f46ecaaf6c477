// SPDX-License-Identifier: MIT
// What the dialog's pages say in the user's language.
#include "tests/dialog/model_support.h"

#include <QRegularExpression>
#include <QTranslator>

namespace halvern {
namespace {

// Numbers with their units, sheets that are called alike everywhere, and the names of the maker's papers.
bool needsNoWords(const QString& key, const ChoiceItem& choice)
{
    static const QRegularExpression alike(q("^(-?[0-9.]+( mm| dpi)?|A[0-9])$"));
    return alike.match(choice.text).hasMatch() || (key == q("PaperName") && choice.keyword != q("Loaded"));
}

} // namespace

TEST(PageWords, EveryTextOfThePrintersOptionsIsTranslated)
{
    const auto model = tessarinModel();
    ASSERT_TRUE(model);
    for (const char* language : {"ar", "de", "fr", "es", "ja"}) {
        QTranslator words;
        ASSERT_TRUE(words.load(q(HALVERN_TEST_BUNDLE "/Resources/tessarin_") + QLatin1StringView(language)));
        const auto has = [&](const QString& text) {
            return !words.translate("Localizable", text.toUtf8().constData()).isEmpty();
        };
        QStringList missing;
        for (const QString& key : model->keys()) {
            const OptionItem option = model->option(key);
            if (!has(option.group))
                missing.append(option.group);
            const bool isOurs = key == q("PageSize");
            if (!isOurs && !has(option.key) && !has(option.text))
                missing.append(option.text);
            for (const ChoiceItem& choice : option.choices) {
                if (!needsNoWords(option.key, choice) && !has(choice.text))
                    missing.append(choice.text);
            }
        }
        EXPECT_EQ(missing.join(q(", ")), QString()) << language;
    }
}

TEST(PageWords, OptionsChoicesAndRefusalsAreToldInThem)
{
    const auto model = modelOf(ppdHeader() + ppdOption("Feed", {"Sheet/Cut sheet", "Roll/Paper roll"}) +
                               ppdOption("Sides", {"One/One side", "Both/Both sides"}) +
                               "*cupsUIConstraints NoResolver: \"*Feed Roll *Sides Both\"\n");
    const QMap<QString, QString> words{{q("Feed"), q("Zufuhr")},
                                       {q("Sides title"), q("Seiten")},
                                       {q("Paper roll"), q("Rolle")},
                                       {q("Both"), q("not this one")}};
    model->setWords([&](const QString& text) { return words.value(text, text); });
    const OptionItem option = model->option(q("Feed"));
    EXPECT_EQ(option.text, q("Zufuhr"));
    EXPECT_EQ(option.choices[1].text, q("Rolle"));
    EXPECT_EQ(option.choices[0].text, q("Cut sheet")) << "what has no words stays";
    ASSERT_TRUE(model->change(q("Feed"), q("Roll")).accepted);
    const QString refusal = model->change(q("Sides"), q("Both")).refusal;
    EXPECT_TRUE(refusal.contains(q("Seiten: Both sides")) && refusal.contains(q("Zufuhr: Rolle")))
        << qPrintable(refusal);
}

} // namespace halvern
