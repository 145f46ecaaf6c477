// Color Adjustments in the real dialog, with the bundle as it is shipped, as far as the real printer. The
// user is German: what is typed has "." all the same.
#include "dialog/panel_deck.h"
#include "dialog/plugin_loader.h"
#include "dialog/preview_widget.h"
#include "tests/end_to_end/color/real_dialog.h"
#include "tests/support/observers.h"

#include <QFileInfo>
#include <QLabel>
#include <QTest>
#include <QTextDocument>

#include <gtest/gtest.h>

namespace halvern {

namespace {

struct Typed {
    int field;
    const char* key;
    const char* text;
};

// Odd ones among them: the panel passes on what it is given, and the printer reads it.
constexpr Typed kTyped[] = {
    {0x141, "Red", "-3"},         {0x142, "Green", "+7"},     {0x143, "Blue", "033"},
    {0x144, "Brightness", "-12"}, {0x145, "Contrast", "abc"}, {0x146, "Saturation", "12."},
    {0x147, "Gamma", "2.25"},
};

} // namespace

class ColorEndToEnd : public testing::Test {
protected:
    static void SetUpTestSuite()
    {
        QLocale::setDefault(QLocale(QStringLiteral("de_DE")));
        server = std::make_unique<PrivateCups>();
        ASSERT_TRUE(server->isRunning()) << qPrintable(server->error());
        ASSERT_TRUE(server->addQueue(QStringLiteral("Tessarin"))) << qPrintable(server->error());
    }

    static void TearDownTestSuite() { server.reset(); }

    void SetUp() override
    {
        ASSERT_TRUE(dialog.isReady());
        ASSERT_TRUE(dialog.dialog.deck().showPage(QStringLiteral("com.halvern.print.pde.coloradjust")));
    }

    QString summary()
    {
        dialog.dialog.deck().showPage(QStringLiteral("summary"));
        QTextDocument text;
        text.setHtml(dialog.dialog.findChild<QLabel*>(QStringLiteral("summaryPage"))->text());
        return text.toPlainText();
    }

    QImage page(int job) { return QImage(server->jobFile(job, QStringLiteral("page-1.png"))); }

    static inline std::unique_ptr<PrivateCups> server;
    QTemporaryDir folder;
    PluginLoader panels{QStringList{QFileInfo(QStringLiteral(HALVERN_TEST_BUNDLE)).absolutePath()}};
    RealDialog dialog{QStringLiteral("Tessarin"), makeTestPhoto(folder.filePath(QStringLiteral("photo.jpg"))),
                      panels};
};

TEST_F(ColorEndToEnd, SevenValuesAndTheToggleArriveAsTypedAndThePageIsLeftToThePrinter)
{
    const int plain = dialog.print();
    QTest::mouseClick(dialog.control(0x200), Qt::LeftButton, {}, QPoint(12, 10));
    for (const Typed& value : kTyped)
        dialog.type(value.field, value.text);
    auto& preview = *dialog.dialog.findChild<PreviewWidget*>();
    EXPECT_EQ(preview.captions().size(), 2) << "the preview shows them";
    const int job = dialog.print();
    const auto received = server->receivedOptions(job);
    ASSERT_TRUE(received);
    EXPECT_EQ(received->at(QStringLiteral("AdjustmentsEnabled")), QStringLiteral("True"));
    for (const Typed& value : kTyped)
        EXPECT_EQ(received->at(QLatin1StringView(value.key)), QLatin1StringView(value.text)) << value.key;
    EXPECT_EQ(server->receivedOptions(plain)->at(QStringLiteral("AdjustmentsEnabled")),
              QStringLiteral("False"));
    ASSERT_FALSE(page(plain).isNull());
    EXPECT_EQ(page(job), page(plain)) << "the preview's adjustments are not in the page";
}

TEST_F(ColorEndToEnd, ThePreviewFollowsTheSliderAndTheToggle)
{
    auto& preview = *dialog.dialog.findChild<PreviewWidget*>();
    const QImage plain = preview.grab().toImage();
    QTest::mouseClick(dialog.control(0x200), Qt::LeftButton, {}, QPoint(12, 10));
    dialog.control(4)->setFocus();
    const QPoint middle = preview.sheetRect().center().toPoint();
    int before = qGreen(preview.grab().toImage().pixel(middle));
    for (int i = 0; i < 3; ++i) {
        QTest::keyClick(dialog.control(4), Qt::Key_PageUp);
        const int after = qGreen(preview.grab().toImage().pixel(middle));
        EXPECT_GT(after, before);
        before = after;
    }
    QTest::mouseClick(dialog.control(0x200), Qt::LeftButton, {}, QPoint(12, 10));
    EXPECT_EQ(preview.grab().toImage().copy(0, 0, 200, 400), plain.copy(0, 0, 200, 400));
    EXPECT_EQ(preview.captions().size(), 1);
}

TEST_F(ColorEndToEnd, TheSummaryHasEveryChoiceInTheUsersWords)
{
    QTest::mouseClick(dialog.control(0x200), Qt::LeftButton, {}, QPoint(12, 10));
    dialog.type(0x144, "-12");
    dialog.type(0x145, "25");
    const QString text = summary();
    for (const char* line : {"Farbanpassung\nJa", "Helligkeit\n-12", "Kontrast\n25", "Rot\n0", "Gamma\n1.0",
                             "Blattpapier\nWie eingelegt", "Farbangleichung\nDurch das Programm"})
        EXPECT_TRUE(text.contains(QString::fromUtf8(line))) << line << " is not in\n" << qPrintable(text);
    EXPECT_FALSE(text.contains(QStringLiteral("Brightness")));
}

} // namespace halvern
