// What the dialog's pages say in the user's language.
#include "tests/dialog/model_support.h"
#include "tests/support/fake_host.h"

#include <QRegularExpression>
#include <QTranslator>

#include <gtest/gtest.h>

namespace halvern {

namespace {

// Numbers with their units, sheets that are called alike everywhere, and the names of the maker's papers.
bool needsNoWords(const QString& key, const ChoiceItem& choice)
{
    static const QRegularExpression alike(QStringLiteral("^(-?[0-9.]+( mm| dpi)?|A[0-9])$"));
    return alike.match(choice.text).hasMatch() ||
           (key == QStringLiteral("PaperName") && choice.keyword != QStringLiteral("Loaded"));
}

} // namespace

TEST(PageWords, EveryTextOfThePrintersOptionsIsTranslated)
{
    const auto model = tessarinModel();
    ASSERT_TRUE(model);
    for (const char* language : {"de", "fr", "es", "ja"}) {
        QTranslator words;
        ASSERT_TRUE(words.load(QStringLiteral(HALVERN_TEST_BUNDLE "/Resources/tessarin_") +
                               QLatin1StringView(language)));
        const auto has = [&](const QString& text) {
            return !words.translate("Localizable", text.toUtf8().constData()).isEmpty();
        };
        QStringList missing;
        for (const QString& key : model->keys()) {
            const OptionItem option = model->option(key);
            if (!has(option.group))
                missing.append(option.group);
            const bool isOurs = key == QStringLiteral("PageSize");
            if (!isOurs && !has(option.key) && !has(option.text))
                missing.append(option.text);
            for (const ChoiceItem& choice : option.choices) {
                if (!needsNoWords(option.key, choice) && !has(choice.text))
                    missing.append(choice.text);
            }
        }
        EXPECT_EQ(missing.join(QStringLiteral(", ")), QString()) << language;
    }
}

TEST(PageWords, OptionsChoicesAndRefusalsAreToldInThem)
{
    const auto model = modelOf(ppdHeader() + ppdOption("Feed", {"Sheet/Cut sheet", "Roll/Paper roll"}) +
                               ppdOption("Sides", {"One/One side", "Both/Both sides"}) +
                               "*cupsUIConstraints NoResolver: \"*Feed Roll *Sides Both\"\n");
    const QMap<QString, QString> words{{QStringLiteral("Feed"), QStringLiteral("Zufuhr")},
                                       {QStringLiteral("Sides title"), QStringLiteral("Seiten")},
                                       {QStringLiteral("Paper roll"), QStringLiteral("Rolle")},
                                       {QStringLiteral("Both"), QStringLiteral("not this one")}};
    model->setWords([&](const QString& text) { return words.value(text, text); });
    const OptionItem option = model->option(QStringLiteral("Feed"));
    EXPECT_EQ(option.text, QStringLiteral("Zufuhr"));
    EXPECT_EQ(option.choices[1].text, QStringLiteral("Rolle"));
    EXPECT_EQ(option.choices[0].text, QStringLiteral("Cut sheet")) << "what has no words stays";
    ASSERT_TRUE(model->change(QStringLiteral("Feed"), QStringLiteral("Roll")).accepted);
    const QString refusal = model->change(QStringLiteral("Sides"), QStringLiteral("Both")).refusal;
    EXPECT_TRUE(refusal.contains(QStringLiteral("Seiten: Both sides")) &&
                refusal.contains(QStringLiteral("Zufuhr: Rolle")))
        << qPrintable(refusal);
}

} // namespace halvern
