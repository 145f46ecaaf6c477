// SPDX-License-Identifier: MIT
// The help book: its files, and how one gets from the dialog to the right page and around in it.
#include "dialog/options/option_search.h"
#include "dialog/window/help_window.h"
#include "dialog/window/panel_deck.h"
#include "tests/dialog/dialog_support.h"

#include <QDir>
#include <QLineEdit>
#include <QListView>
#include <QListWidget>
#include <QTextBrowser>
#include <QXmlStreamReader>

namespace halvern {
namespace {

const QStringList kLanguages{q("ar"), q("de"), q("en"), q("es"), q("fr"), q("ja")};

// A name as it stands on the screen: without what marks its key, and what is put in.
QString onScreen(QString text)
{
    static const QRegularExpression ending(q("\\(&\\w\\)|%@"));
    static const QRegularExpression colon(q("\\s*[:：]$"));
    text = text.remove(ending).remove(u'&').trimmed();
    return text.remove(colon);
}

QSet<QString> namesIn(const QString& language)
{
    QSet<QString> names;
    const QDir folder(q(HALVERN_TRANSLATIONS));
    const QString catalogues = language == q("en") ? q("de") : language;
    for (const QFileInfo& file : folder.entryInfoList({q("*_%1.ts").arg(catalogues)})) {
        QFile source(file.filePath());
        EXPECT_TRUE(source.open(QIODevice::ReadOnly));
        QXmlStreamReader xml(&source);
        while (!xml.atEnd()) {
            xml.readNext();
            if (xml.isStartElement() && xml.name() == (language == q("en") ? q("source") : q("translation")))
                names.insert(onScreen(xml.readElementText(QXmlStreamReader::IncludeChildElements)));
        }
    }
    return names;
}

} // namespace

TEST(HelpBookTest, EveryLinkAndPictureResolvesAndEveryNameIsOnTheScreen)
{
    for (const QString& language : kLanguages) {
        const QSet<QString> names = namesIn(language);
        const HelpBook book(HelpBook::usualFolder(), QLocale(language));
        for (const HelpPage& page : book.pages()) {
            QFile file(page.path);
            ASSERT_TRUE(file.open(QIODevice::ReadOnly)) << qPrintable(page.path);
            const QDir folder = QFileInfo(page.path).dir();
            QXmlStreamReader html(&file);
            while (!html.atEnd()) {
                html.readNext();
                if (!html.isStartElement())
                    continue;
                for (const char* to : {"href", "src"}) {
                    const QString target = html.attributes().value(QLatin1StringView(to)).toString();
                    EXPECT_TRUE(target.isEmpty() || QFileInfo(folder.filePath(target)).isFile())
                        << qPrintable(page.path + q(": ") + target);
                }
                if (html.name() == q("b")) {
                    const QString name = html.readElementText();
                    EXPECT_TRUE(names.contains(name)) << qPrintable(page.path + q(": ") + name);
                }
            }
            EXPECT_FALSE(html.hasError()) << qPrintable(page.path + q(": ") + html.errorString());
        }
    }
}

TEST(HelpBookTest, EveryLanguageHasEveryPageAndIsFoundByItsLocale)
{
    const qsizetype pages = HelpBook(HelpBook::usualFolder(), QLocale::c()).pages().size();
    ASSERT_GT(pages, 0);
    for (const QString& language : kLanguages) {
        const HelpBook book(HelpBook::usualFolder(), QLocale(language));
        ASSERT_EQ(book.pages().size(), pages) << qPrintable(language);
        EXPECT_EQ(QFileInfo(book.pages().front().path).dir().dirName(), language);
        for (const char* panel : {"features", "coloradjust", "sharpness", "info", "cvp"})
            EXPECT_GE(book.pageAbout(q("com.halvern.print.pde.") + QLatin1StringView(panel)), 0) << panel;
    }
    EXPECT_TRUE(HelpBook(q("/nonexistent")).pages().isEmpty());
}

TEST(HelpBookTest, FindsLinesAndPagesWithAllWords)
{
    HelpBook book(HelpBook::usualFolder(), QLocale(q("en")));
    const QList<HelpHit> overspill = book.find(SearchWords(q("white OVERSPILL")));
    ASSERT_FALSE(overspill.isEmpty());
    EXPECT_EQ(book.pages()[overspill.front().page].name, q("features"));
    EXPECT_TRUE(overspill.front().line.contains(q("Overspill")));
    const QList<HelpHit> scattered = book.find(SearchWords(q("gloss staples")));
    ASSERT_EQ(scattered.size(), 1) << "the words are on one page, in two lines";
    EXPECT_EQ(book.pages()[scattered.front().page].name, q("features"));
    EXPECT_EQ(book.pages()[book.find(SearchWords(q("layout"))).front().page].name, q("layout"));
    EXPECT_TRUE(book.find(SearchWords(q("nowhereinthisbook"))).isEmpty());
    EXPECT_TRUE(book.find(SearchWords(q("  "))).isEmpty());
}

class HelpWindowTest : public testing::Test {
protected:
    HelpWindowTest()
    {
        dialog.show();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&dialog));
    }

    HelpWindow* help() { return dialog.findChild<HelpWindow*>(); }

    QString shown() { return QFileInfo(page()->source().toLocalFile()).baseName(); }

    QTextBrowser* page() { return help()->findChild<QTextBrowser*>(); }

    // The window's, which may be there already.
    QString pressF1()
    {
        dialog.activateWindow();
        EXPECT_TRUE(QTest::qWaitFor([&] { return QApplication::activeWindow() == &dialog; }));
        QTest::keyClick(dialog.focusWidget(), Qt::Key_F1);
        // Not by its window's own word: that counts itself as active while its parent is.
        EXPECT_TRUE(QTest::qWaitFor([&] { return help() && QApplication::activeWindow() == help(); }));
        return help() ? shown() : QString();
    }

    // Without a print server.
    const QByteArray server = qgetenv("CUPS_SERVER");
    const bool isAway = qputenv("CUPS_SERVER", "/nonexistent/cups.sock");
    SessionRequest request;
    FakePanels panels;
    DialogSession session{request, panels};
    PrintDialog dialog{session};

    void TearDown() override { qputenv("CUPS_SERVER", server); }
};

TEST_F(HelpWindowTest, F1OpensThePageThatIsAboutWhatIsShownOrInFocus)
{
    auto* deck = dialog.findChild<PanelDeck*>();
    deck->setFocus();
    for (const QString& identifier : deck->identifiers()) {
        ASSERT_TRUE(deck->showPage(identifier));
        EXPECT_EQ(pressF1(), identifier);
    }
    for (const auto& [control, expected] : {std::pair{"copies", "start"}, {"printer", "printer"}}) {
        dialog.findChild<QWidget*>(QLatin1StringView(control))->setFocus();
        EXPECT_EQ(pressF1(), QLatin1StringView(expected));
    }
    EXPECT_EQ(dialog.findChildren<HelpWindow*>().size(), 1);
}

TEST_F(HelpWindowTest, TheKeyboardSearchesGoesThereAndBack)
{
    dialog.findChild<PanelDeck*>()->showPage(q("job"));
    ASSERT_EQ(pressF1(), q("job"));
    auto* contents = help()->findChild<QListWidget*>();
    auto* found = help()->findChild<QListView*>(q("helpFound"));
    EXPECT_EQ(contents->currentItem()->text(), page()->documentTitle());

    QTest::keyClick(page(), Qt::Key_F, Qt::ControlModifier);
    auto* field = help()->findChild<QLineEdit*>();
    ASSERT_TRUE(field->hasFocus());
    QTest::keyClicks(field, q("overspill"));
    ASSERT_TRUE(found->isVisible());
    QTest::keyClick(field, Qt::Key_Down);
    ASSERT_TRUE(found->hasFocus());
    QTest::keyClick(found, Qt::Key_Return);
    EXPECT_EQ(shown(), q("features"));
    EXPECT_TRUE(page()->textCursor().selectedText().contains(q("Overspill"))) << "its line is marked";

    QTest::keyClick(found, Qt::Key_Left, Qt::AltModifier);
    EXPECT_TRUE(waitUntil([&] { return shown() == q("job"); })) << "a button's key presses it for a moment";
    QTest::keyClick(found, Qt::Key_Right, Qt::AltModifier);
    EXPECT_TRUE(waitUntil([&] { return shown() == q("features"); }));
    QTest::keyClick(found, Qt::Key_Escape);
    EXPECT_TRUE(contents->isVisible()) << "the search goes first";
    QTest::keyClick(contents, Qt::Key_Escape);
    EXPECT_FALSE(help()->isVisible());
}

} // namespace halvern
