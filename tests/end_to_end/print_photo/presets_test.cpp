// SPDX-License-Identifier: MIT
// What was printed with comes back, and presets are one step with a way back.
#include "dialog/session/plugin_loader.h"
#include "tests/support/real_dialog.h"

#include <QDialogButtonBox>
#include <QMenu>

namespace halvern {
namespace {

QString presetShown(const RealDialog& user)
{
    return user.dialog.findChild<QComboBox*>(q("preset"))->currentText();
}

void choosePreset(RealDialog& user, const QString& title)
{
    auto* box = user.dialog.findChild<QComboBox*>(q("preset"));
    const int row = box->findText(title);
    ASSERT_GE(row, 0) << qPrintable(title);
    box->setCurrentIndex(row);
    Q_EMIT box->activated(row);
    drainMainQueue();
}

void savePreset(RealDialog& user, const QString& name)
{
    auto* menu = user.dialog.findChild<QMenu*>(q("presetActions"));
    Q_EMIT menu->aboutToShow();
    menu->actions().front()->trigger();
    auto* asking = user.dialog.findChild<QDialog*>(q("presetName"));
    ASSERT_TRUE(asking);
    QTest::keyClicks(asking->findChild<QLineEdit*>(), name);
    QTest::keyClick(asking, Qt::Key_Return);
    ASSERT_TRUE(waitUntil([&] { return presetShown(user) == name; })) << qPrintable(presetShown(user));
}

} // namespace

TEST(Presets, WhatWasPrintedWithComesBackAndAPresetIsOneStep)
{
    useBuiltBundle();
    PrivateCups server;
    ASSERT_TRUE(server.addQueue(q("Remembering"))) << qPrintable(server.error());
    QTemporaryDir folder;
    PluginLoader panels({QFileInfo(q(HALVERN_TEST_BUNDLE)).path()});
    SessionRequest request;
    request.printer = q("Remembering");
    request.files = {makeTestPhoto(folder.filePath(q("photo.jpg")))};
    const QList<OptionValue> chosen{
        {q("PaperFeed"), q("Roll")},          {q("PaperWidth"), q("2032")},
        {q("PageSize"), q("Roll2032x2540")},  {q("Red"), q("12")},
        {q("AdjustmentsEnabled"), q("True")}, {q("SharpnessIntensity"), q("1.24")}};
    {
        RealDialog user(request, panels);
        ASSERT_TRUE(user.isReady());
        for (const OptionValue& option : chosen)
            EXPECT_TRUE(user.session.changeOption(option.key, option.value)) << qPrintable(option.key);
        EXPECT_TRUE(user.session.changeOption(q("EnableCVP1"), true));
        PageSettings page = user.session.page();
        page.copies = 2;
        page.scaling = Scaling::fill;
        user.session.setPage(page);
        drainMainQueue();
        savePreset(user, q("Wide"));
        EXPECT_GT(user.print(), 0);
        ASSERT_TRUE(waitUntil([&] { return user.session.presets().find(lastUsedName()) != nullptr; }));
    }
    RealDialog user(request, panels);
    ASSERT_TRUE(user.isReady());
    drainMainQueue();
    const OptionValues sent = user.session.collectOptions();
    for (const OptionValue& option : chosen)
        EXPECT_TRUE(sent.contains(option)) << qPrintable(option.key);
    EXPECT_TRUE(sent.contains({q("EnableCVP1"), q("False")}) && sent.contains({q("copies"), q("1")}));
    EXPECT_EQ(user.session.page().scaling, Scaling::fill);

    choosePreset(user, printerDefaultsName());
    EXPECT_EQ(user.session.model()->value(q("PageSize")), q("4x6"));
    EXPECT_EQ(user.session.model()->value(q("Red")), q("0"));
    choosePreset(user, q("Wide"));
    for (const OptionValue& option : chosen)
        EXPECT_EQ(user.session.model()->value(option.key), option.value) << qPrintable(option.key);
    EXPECT_EQ(presetShown(user), q("Wide"));
    EXPECT_EQ(user.session.page().copies, 1);
    EXPECT_TRUE(user.session.changeOption(q("Red"), 13));
    EXPECT_EQ(presetShown(user), q("Wide – changed"));
    EXPECT_TRUE(user.session.changeOption(q("Red"), 12));
    EXPECT_EQ(presetShown(user), q("Wide"));
    choosePreset(user, printerDefaultsName());
    user.session.undoLastChange();
    drainMainQueue();
    EXPECT_EQ(presetShown(user), q("Wide"));
    EXPECT_EQ(user.session.model()->value(q("PageSize")), q("Roll2032x2540"));
}

} // namespace halvern
