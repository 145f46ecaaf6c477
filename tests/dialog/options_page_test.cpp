// SPDX-License-Identifier: MIT
// The page of options and the search, worked with mouse and keyboard.
#include "dialog/options/option_tree.h"
#include "dialog/window/choice_list.h"
#include "dialog/window/message_bar.h"
#include "dialog/window/options_page.h"
#include "dialog/window/panel_deck.h"
#include "tests/dialog/dialog_support.h"

#include <QAbstractItemView>
#include <QSpinBox>
#include <QTreeView>

namespace halvern {
namespace {

// An option of each kind, a clash, and something that is built in.
QByteArray kindsPpd()
{
    QByteArray several = ppdOption("Finish", {"None", "Staple", "Punch"});
    several.replace("PickOne", "PickMany");
    QByteArray mirror = ppdOption("Mirror", {"False/No", "True/Yes"});
    mirror.replace("PickOne", "Boolean");
    return ppdHeader() + "*OpenGroup: Look/Look\n" + ppdOption("Media", {"Plain", "Photo/Photo Paper"}) +
           ppdOption("Edge", {"White", "Full/Borderless"}) + mirror + ppdOption("Amount", {"Auto"}) +
           "*CustomAmount True: \"pop\"\n*ParamCustomAmount Value/Value: 1 int 0 400\n" +
           "*CloseGroup: Look\n*OpenGroup: Last/Last\n" + several +
           "*CloseGroup: Last\n*OpenGroup: InstallableOptions/Installed\n" +
           ppdOption("Tray2", {"False/Not there", "True/There"}) +
           "*CloseGroup: InstallableOptions\n*UIConstraints: *Edge Full *Media Plain\n";
}

} // namespace

class OptionsPageTest : public ServerTest {
protected:
    static void SetUpTestSuite()
    {
        ServerTest::SetUpTestSuite();
        ASSERT_TRUE(server->addQueue(q("Kinds"), writeFile(folder.filePath(q("kinds.ppd")), kindsPpd()), {},
                                     {q("--default")}));
        ASSERT_TRUE(server->addQueue(q("Other")));
    }

    void SetUp() override
    {
        dialog.show();
        session.start();
        ASSERT_TRUE(waitUntil([&] { return session.model() && session.printerList().hasAnswer(); }));
        ASSERT_TRUE(waitUntil([&] { return dialog.isActiveWindow(); }));
    }

    void openPage()
    {
        ASSERT_TRUE(dialog.findChild<PanelDeck*>()->showPage(q("options")));
        view = dialog.findChild<QTreeView*>(q("optionsView"));
        tree = static_cast<OptionTree*>(view->model());
        page = dialog.findChild<OptionsPage*>();
    }

    void click(const char* key, int column = OptionTree::valueColumn)
    {
        const QModelIndex index = tree->indexOf(q(key)).siblingAtColumn(column);
        view->scrollTo(index);
        QTest::mouseClick(view->viewport(), Qt::LeftButton, {}, view->visualRect(index).center());
    }

    // The editor that a click has opened.
    QComboBox* box(const char* key)
    {
        click(key);
        auto* editor = dialog.findChild<QWidget*>(q("option.") + q(key));
        auto* found = qobject_cast<QComboBox*>(editor);
        return found || !editor ? found : editor->findChild<QComboBox*>();
    }

    static void pick(QComboBox* box, const char* keyword)
    {
        const int row = box->findData(q(keyword));
        ASSERT_GE(row, 0) << keyword;
        box->setCurrentIndex(row);
        box->hidePopup();
        Q_EMIT box->activated(row);
    }

    inline static QTemporaryDir folder;
    FakePanels panels;
    DialogSession session{{q("Kinds"), {}, {}, 1}, panels};
    PrintDialog dialog{session};
    QTreeView* view = nullptr;
    OptionTree* tree = nullptr;
    OptionsPage* page = nullptr;
};

TEST_F(OptionsPageTest, EachKindOfOptionHasItsControl)
{
    openPage();
    EXPECT_EQ(dialog.findChild<QWidget*>(q("option.Media")), nullptr) << "made when somebody chooses";
    QComboBox* media = box("Media");
    ASSERT_TRUE(media);
    pick(media, "Photo");
    EXPECT_EQ(session.model()->value(q("Media")), q("Photo"));
    click("Mirror");
    EXPECT_EQ(session.model()->value(q("Mirror")), q("True"));
    QTest::keyClick(view, Qt::Key_Space);
    EXPECT_EQ(session.model()->value(q("Mirror")), q("False"));

    QComboBox* amount = box("Amount");
    ASSERT_TRUE(amount);
    pick(amount, " other");
    auto* field = amount->parentWidget()->findChild<QSpinBox*>();
    ASSERT_TRUE(field && field->isVisible());
    EXPECT_EQ(field->maximum(), 400);
    field->setFocus();
    field->selectAll();
    QTest::keyClicks(field, q("120"));
    QTest::keyClick(field, Qt::Key_Return);
    EXPECT_EQ(session.model()->value(q("Amount")), q("120"));
    EXPECT_TRUE(session.collectOptions().contains(OptionValue{q("Amount"), q("Custom.120")}))
        << "as the server's filters read it";

    const QModelIndex finish = tree->indexOf(q("Finish"));
    view->expand(finish);
    for (const int row : {1, 2})
        tree->setData(tree->index(row, OptionTree::valueColumn, finish), Qt::Checked, Qt::CheckStateRole);
    EXPECT_EQ(session.model()->value(q("Finish")), q("Staple,Punch"));
    tree->setData(tree->index(0, OptionTree::valueColumn, finish), Qt::Checked, Qt::CheckStateRole);
    EXPECT_EQ(session.model()->value(q("Finish")), q("None")) << "off goes with nothing else";

    const QModelIndex tray = tree->indexOf(q("Tray2")).siblingAtColumn(OptionTree::valueColumn);
    EXPECT_EQ(tray.data().toString(), q("Not there"));
    EXPECT_FALSE(tree->setData(tray, q("True"), Qt::EditRole)) << "what is built in is nobody's to change";
}

TEST_F(OptionsPageTest, AClashIsExplainedThenBothChangeAndUndoTakesBothBack)
{
    openPage();
    QComboBox* edge = box("Edge");
    ASSERT_TRUE(edge);
    const QModelIndex full = edge->model()->index(edge->findData(q("Full")), 0);
    EXPECT_TRUE(full.flags() & Qt::ItemIsSelectable);
    EXPECT_EQ(full.data(ChoiceList::kReasonRole).toString(),
              q("not with Media title: Plain; also sets Media title to Photo Paper"));
    pick(edge, "Full");
    EXPECT_EQ(session.model()->value(q("Media")), q("Photo"));
    auto* message = dialog.findChild<MessageBar*>();
    EXPECT_TRUE(waitUntil([&] { return message->text().contains(q("Photo Paper")); }));
    session.undoLastChange();
    EXPECT_EQ(session.model()->value(q("Media")) + session.model()->value(q("Edge")), q("PlainWhite"));
}

TEST_F(OptionsPageTest, WhatChangedIsMarkedAndPutBack)
{
    openPage();
    session.changeOption(q("Media"), q("Photo"));
    session.changeOption(q("Mirror"), q("True"));
    session.changeOption(q("Edge"), q("Full"));
    EXPECT_TRUE(tree->indexOf(q("Media")).data(OptionTree::changedRole).toBool());
    dialog.findChild<QCheckBox*>(q("changedOnly"))->click();
    EXPECT_FALSE(tree->indexOf(q("Finish")).isValid());
    click("Mirror", OptionTree::putBackColumn);
    EXPECT_EQ(session.model()->value(q("Mirror")), q("False"));
    EXPECT_FALSE(tree->indexOf(q("Mirror")).isValid());
    ASSERT_TRUE(page->reveal(q("Edge")));
    QTest::mouseClick(dialog.findChild<QPushButton*>(q("resetAll")), Qt::LeftButton);
    EXPECT_TRUE(session.model()->changedKeys().isEmpty());
    session.undoLastChange();
    EXPECT_EQ(session.model()->value(q("Media")) + session.model()->value(q("Edge")), q("PhotoFull"));
    EXPECT_TRUE(page->reveal(q("Finish"))) << "shows all again";
    EXPECT_FALSE(page->reveal(q("Nothing")));
}

TEST_F(OptionsPageTest, TheSearchFindsWhatItIsCalledAndGoesThere)
{
    const struct {
        const char* typed;
        const char* found; ///< the first; empty: nothing
        const char* page;
        const char* current;
    } cases[] = {
        {"border", "Edge title: Borderless, in Options › Look", "options", "Edge"},
        {"TITLE media", "Media title, in Options › Look", "options", "Media"},
        {"mirror", "Mirror title, in Options › Look", "options", "Mirror"},
        {"landsc", "Landscape, in Page", "page", ""},
        {"paper size", "Paper size, in Page", "page", ""},
        {"othe", "Other, in Printers", "", ""},
        {"nonsense", "", "", ""},
    };

    auto* deck = dialog.findChild<PanelDeck*>();
    auto* results = dialog.findChild<QAbstractItemView*>(q("searchResults"));
    for (const auto& c : cases) {
        SCOPED_TRACE(c.typed);
        deck->showPage(q("summary"));
        QTest::keyClick(&dialog, Qt::Key_F, Qt::ControlModifier);
        auto* field = dialog.findChild<QLineEdit*>(q("search"));
        ASSERT_TRUE(field->hasFocus());
        QTest::keyClicks(field, q(c.typed));
        EXPECT_TRUE(results->isVisible());
        auto* count = dialog.findChild<QLabel*>(q("searchCount"));
        EXPECT_TRUE(waitUntil([&] {
            return *c.found ? results->currentIndex().data(Qt::AccessibleTextRole) == q(c.found)
                            : count->text() == q("Nothing has this name.");
        })) << qPrintable(results->currentIndex().data(Qt::AccessibleTextRole).toString());
        if (*c.page == 0) {
            QTest::keyClick(field, Qt::Key_Escape);
            EXPECT_TRUE(field->text().isEmpty() && dialog.isVisible());
            continue;
        }
        QTest::keyClick(field, Qt::Key_Return);
        EXPECT_FALSE(results->isVisible());
        EXPECT_EQ(dialog.findChild<QWidget*>(q("optionsView"))->hasFocus(), *c.current != 0);
        if (*c.current) {
            openPage();
            EXPECT_EQ(view->currentIndex().data(OptionTree::keyRole).toString(), q(c.current));
        } else {
            EXPECT_TRUE(dialog.focusWidget() &&
                        dialog.findChild<QWidget*>(q("pagePage"))->isAncestorOf(dialog.focusWidget()));
        }
    }
}

TEST_F(OptionsPageTest, ThousandsOfOptionsAndChoicesCostNoWidgets)
{
    QByteArray text = ppdHeader();
    for (int i = 0; i < 3000; ++i)
        text += ppdOption("Many" + QByteArray::number(i), {"A", "B"});
    QList<QByteArray> choices;
    for (int i = 0; i < 3000; ++i)
        choices.append("C" + QByteArray::number(i));
    text += ppdOption("Long", choices) + ppdOption("Many7", {"A", "B"});
    ASSERT_TRUE(server->addQueue(q("Many"), writeFile(folder.filePath(q("many.ppd")), text)))
        << qPrintable(server->error());
    session.selectPrinter(q("Many"));
    ASSERT_TRUE(waitUntil([&] { return session.model() && session.printerName() == q("Many"); }));
    openPage();
    EXPECT_GT(tree->keys().size(), 3000);
    EXPECT_LT(page->findChildren<QWidget*>().size(), 60);
    ASSERT_TRUE(page->reveal(q("Long")));
    pick(box("Long"), "C2999");
    EXPECT_EQ(session.model()->value(q("Long")), q("C2999"));
}

} // namespace halvern
