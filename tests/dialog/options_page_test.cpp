// SPDX-License-Identifier: MIT
// The page of options and the search, worked with mouse and keyboard.
#include "dialog/job/job_in_words.h"
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
    // Some makers spell it so.
    QByteArray mirror = ppdOption("Mirror", {"false/No", "true/Yes"});
    mirror.replace("PickOne", "Boolean");
    QByteArray free = ppdOption("Free", {"A", "B"});
    free.replace("DefaultFree: A", "DefaultFree: Unknown");
    return ppdHeader() + "*OpenGroup: Look/Look\n" + ppdOption("Media", {"Plain", "Photo/Photo Paper"}) +
           ppdOption("Edge", {"White", "Full/Borderless"}) + mirror + ppdOption("Amount", {"Auto"}) +
           "*CustomAmount True: \"pop\"\n*ParamCustomAmount Value/Value: 1 int 0 400\n" +
           ppdOption("Gloss", {"Off", "On"}) + free + "*CloseGroup: Look\n*OpenGroup: Last/Last\n" + several +
           "*CloseGroup: Last\n*OpenGroup: InstallableOptions/Installed\n" +
           ppdOption("Tray2", {"False/Not there", "True/There"}) +
           "*CloseGroup: InstallableOptions\n*UIConstraints: *Edge Full *Media Plain\n"
           "*UIConstraints: *Gloss On *Media Plain\n";
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
        const auto find = [&] { return dialog.findChild<QWidget*>(q("option.") + q(key)); };
        EXPECT_TRUE(waitUntil([&] { return !find(); })) << "an earlier one goes with the next events";
        click(key);
        QWidget* editor = find();
        auto* found = qobject_cast<QComboBox*>(editor);
        return found || !editor ? found : editor->findChild<QComboBox*>();
    }

    // In the list that the click has opened, by keys.
    static void pick(QComboBox* box, const char* keyword)
    {
        const int row = box->findData(q(keyword));
        ASSERT_GE(row, 0) << keyword;
        QAbstractItemView* list = box->view();
        ASSERT_TRUE(list->isVisible());
        const bool isLast = row == box->count() - 1;
        QTest::keyClick(list, isLast ? Qt::Key_End : Qt::Key_Home);
        for (int i = 0; i < row && !isLast; ++i)
            QTest::keyClick(list, Qt::Key_Down);
        ASSERT_EQ(list->currentIndex().row(), row);
        QTest::keyClick(list, Qt::Key_Return);
    }

    // A box of an option that takes several choices.
    void clickPart(const char* key, int row)
    {
        const QModelIndex part = tree->index(row, OptionTree::valueColumn, tree->indexOf(q(key)));
        view->scrollTo(part);
        QTest::mouseClick(view->viewport(), Qt::LeftButton, {}, view->visualRect(part).center());
    }

    QPushButton* undo() { return dialog.findChild<QPushButton*>(q("messageAction")); }

    QString value(const char* key) { return session.model()->value(q(key)); }

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
    EXPECT_EQ(value("Mirror"), q("true"));
    QTest::keyClick(view, Qt::Key_Space);
    EXPECT_EQ(value("Mirror"), q("false"));

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
    clickPart("Finish", 1);
    EXPECT_EQ(value("Finish"), q("Staple"));
    clickPart("Finish", 2);
    EXPECT_EQ(value("Finish"), q("Staple")) << "the filters would mark none of two";
    EXPECT_TRUE(dialog.findChild<MessageBar*>()->text().contains(q("Staple, Punch")));
    clickPart("Finish", 1);
    EXPECT_EQ(value("Finish"), q("None"));
    clickPart("Finish", 2);
    EXPECT_EQ(value("Finish"), q("Punch")) << "off goes with nothing else";

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
    QTest::mouseClick(undo(), Qt::LeftButton);
    EXPECT_EQ(value("Media") + value("Edge"), q("PlainWhite"));
    pick(box("Edge"), "Full");
    ASSERT_TRUE(waitUntil([&] { return undo()->isVisible(); }));
    pick(box("Gloss"), "On");
    EXPECT_FALSE(undo()->isVisible()) << "gloss does not go with what the paper was before";
    session.undoLastChange();
    EXPECT_EQ(value("Media") + value("Edge") + value("Gloss"), q("PhotoFullOn"));
}

TEST_F(OptionsPageTest, UndoOfAStepLeavesWhatWasMadeSince)
{
    openPage();
    PageSettings page = session.page();
    page.scaling = Scaling::fill;
    session.setPage(page);
    pick(box("Media"), "Photo");
    session.savePreset(q("Photo"), {});
    ASSERT_TRUE(waitUntil([&] { return session.presets().find(q("Photo")) != nullptr; }));
    QTest::mouseClick(dialog.findChild<QPushButton*>(q("resetAll")), Qt::LeftButton);
    page.copies = 20;
    page.title = q("Lake");
    session.setPage(page);
    QTest::mouseClick(undo(), Qt::LeftButton);
    EXPECT_TRUE(value("Media") == q("Photo") && session.page() == page);

    page.scaling = Scaling::fit;
    session.setPage(page);
    session.applyPreset(*session.presets().find(q("Photo")));
    EXPECT_EQ(session.page().scaling, Scaling::fill);
    page.title = q("Sea");
    page.scaling = Scaling::fill;
    session.setPage(page);
    QTest::mouseClick(undo(), Qt::LeftButton);
    page.scaling = Scaling::fit;
    EXPECT_EQ(session.page(), page) << "only what the preset has set";
}

TEST_F(OptionsPageTest, AnOptionWithoutADefaultIsToldPutBackAndUndone)
{
    openPage();
    const auto isSent = [&] {
        return std::ranges::any_of(session.collectOptions(),
                                   [](const OptionValue& option) { return option.key == q("Free"); });
    };
    const auto isTold = [&] { return session.jobInWords().parts.contains(q("Free title: B")); };
    EXPECT_FALSE(isSent());
    pick(box("Free"), "B");
    EXPECT_TRUE(isSent() && isTold());
    click("Free", OptionTree::putBackColumn);
    EXPECT_FALSE(isSent() || isTold() || session.model()->changedKeys().contains(q("Free")));
    pick(box("Free"), "B");
    const Preset chosen = session.capture({});
    session.applyPreset({PresetKind::printerDefaults, {}});
    EXPECT_FALSE(isSent());
    QTest::mouseClick(undo(), Qt::LeftButton);
    EXPECT_TRUE(isSent() && isTold());
    session.applyPreset({PresetKind::printerDefaults, {}});
    session.applyPreset({PresetKind::named, chosen});
    EXPECT_EQ(value("Free"), q("B"));
    QTest::mouseClick(undo(), Qt::LeftButton);
    EXPECT_FALSE(isSent());
}

TEST_F(OptionsPageTest, WhatChangedIsMarkedAndPutBack)
{
    openPage();
    pick(box("Media"), "Photo");
    click("Mirror");
    pick(box("Edge"), "Full");
    EXPECT_TRUE(tree->indexOf(q("Media")).data(OptionTree::changedRole).toBool());
    dialog.findChild<QCheckBox*>(q("changedOnly"))->click();
    EXPECT_FALSE(tree->indexOf(q("Finish")).isValid());
    click("Mirror", OptionTree::putBackColumn);
    EXPECT_EQ(value("Mirror"), q("false"));
    EXPECT_FALSE(tree->indexOf(q("Mirror")).isValid());
    ASSERT_TRUE(page->reveal(q("Edge")));
    QTest::mouseClick(dialog.findChild<QPushButton*>(q("resetAll")), Qt::LeftButton);
    EXPECT_TRUE(session.model()->changedKeys().isEmpty());
    QTest::mouseClick(undo(), Qt::LeftButton);
    EXPECT_EQ(value("Media") + value("Edge"), q("PhotoFull"));
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
        {"borderl", "Edge title: Borderless, in Options › Look", "options", "Edge"},
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
