// SPDX-License-Identifier: MIT
// Color Adjustments in the real dialog, with the bundle as it is shipped, as far as the real printer. The
// user is German: what is typed has "." all the same.
#include "dialog/preview/preview_widget.h"
#include "dialog/session/plugin_loader.h"
#include "tests/support/real_dialog.h"

#include <QRegularExpression>
#include <QTextDocument>

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

class ColorEndToEnd : public ServerTest {
protected:
    static void SetUpTestSuite()
    {
        QLocale::setDefault(QLocale(q("de_DE")));
        ServerTest::SetUpTestSuite();
        addQueue("Tessarin");
    }

    void SetUp() override
    {
        ASSERT_TRUE(dialog.isReady());
        ASSERT_TRUE(dialog.showPage("com.halvern.print.pde.coloradjust"));
    }

    QString summary()
    {
        dialog.showPage("summary");
        QTextDocument text;
        text.setHtml(dialog.dialog.findChild<QLabel*>(q("summaryText"))->text());
        return text.toPlainText().replace(QRegularExpression(q("\n+")), q("\n")); // without empty cells
    }

    SessionRequest request() const
    {
        SessionRequest request{q("Tessarin"), {}, {makeTestPhoto(folder.filePath(q("photo.jpg")))}};
        // What the printer would answer meanwhile changes the resolution, and so does an earlier test's job.
        request.panelsAskPrinter = false;
        request.remembers = false;
        return request;
    }

    QImage page(int job) { return QImage(server->jobFile(job, q("page-1.png"))); }

    QTemporaryDir folder;
    PluginLoader panels{QStringList{QFileInfo(q(HALVERN_TEST_BUNDLE)).absolutePath()}};
    RealDialog dialog{request(), panels};
};

TEST_F(ColorEndToEnd, SevenValuesAndTheToggleArriveAsTypedAndThePageIsLeftToThePrinter)
{
    const int plain = dialog.print();
    auto& preview = *dialog.dialog.findChild<PreviewWidget*>();
    const QPoint middle = preview.sheetRect().center().toPoint();
    const int before = qGreen(preview.grab().toImage().pixel(middle));
    dialog.setOn(0x200, true);
    QTest::keyClick(dialog.control(4), Qt::Key_PageUp);
    EXPECT_GT(qGreen(preview.grab().toImage().pixel(middle)), before) << "the preview follows the slider";
    for (const Typed& value : kTyped)
        dialog.type(value.field, QLatin1StringView(value.text));
    EXPECT_EQ(preview.captions().size(), 2) << "the preview shows them";
    const int job = dialog.print();
    const auto received = server->receivedOptions(job);
    ASSERT_TRUE(received);
    EXPECT_EQ(received->at(q("AdjustmentsEnabled")), q("True"));
    for (const Typed& value : kTyped)
        EXPECT_EQ(received->at(QLatin1StringView(value.key)), QLatin1StringView(value.text)) << value.key;
    EXPECT_EQ(server->receivedOptions(plain)->at(q("AdjustmentsEnabled")), q("False"));
    ASSERT_FALSE(page(plain).isNull());
    EXPECT_EQ(page(job), page(plain)) << "the preview's adjustments are not in the page";
}

TEST_F(ColorEndToEnd, TheSummaryHasEveryChoiceInTheUsersWords)
{
    dialog.setOn(0x200, true);
    dialog.type(0x144, q("-12"));
    dialog.type(0x145, q("25"));
    const QString text = summary();
    for (const char* line :
         {"Farbanpassung\nJa", "Helligkeit\n-12", "Kontrast\n25", "Gamma\n1,0", "Blattpapier\n"})
        EXPECT_TRUE(text.contains(QString::fromUtf8(line))) << line << " is not in\n" << qPrintable(text);
    EXPECT_GT(text.indexOf(q("Rot")), text.indexOf(q("Aus: ")));
    EXPECT_FALSE(text.contains(q("Brightness")));
}

} // namespace halvern
