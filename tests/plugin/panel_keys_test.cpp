// SPDX-License-Identifier: MIT
// The keys that work a page with Alt, beside those of the dialog around it.
#include "dialog/program/application.h"
#include "dialog/session/dialog_session.h"
#include "dialog/session/plugin_loader.h"
#include "dialog/window/print_dialog.h"
#include "platform/toolkit/control.h"
#include "plugin/plug_in.h"
#include "tests/support/test.h"

#include <QKeySequence>

#include <algorithm>

namespace halvern {
namespace {

// The keys that, with Alt, work a widget in the view; without those in `except`.
QStringList mnemonics(const QWidget& view, const QList<const QWidget*>& except = {})
{
    QStringList keys;
    for (const QWidget* widget : view.findChildren<const QWidget*>()) {
        const auto* label = qobject_cast<const QLabel*>(widget);
        const bool works =
            label ? label->buddy() != nullptr : qobject_cast<const QAbstractButton*>(widget) != nullptr;
        const QKeySequence key = QKeySequence::mnemonic(widget->property("text").toString());
        const auto holds = [widget](const QWidget* page) { return page->isAncestorOf(widget); };
        if (works && !key.isEmpty() && std::ranges::none_of(except, holds))
            keys.append(key.toString());
    }
    return keys;
}

bool hasName(const QWidget& widget)
{
    return !widget.accessibleName().isEmpty() || !control::title(&widget).value_or(QString()).isEmpty();
}

// Those that come more than once.
std::string collisions(QStringList keys)
{
    QStringList twice;
    while (!keys.isEmpty()) {
        const QString key = keys.takeFirst();
        if (keys.contains(key))
            twice.append(key);
    }
    return twice.join(u' ').toStdString();
}

} // namespace

TEST(PanelKeys, AreNotTheDialogsOwnInAnyLanguage)
{
    QStringList titles;
    for (const char* language : {"en_US", "de_DE", "fr_FR", "es_ES", "ar_EG", "ja_JP"}) {
        useBuiltBundle(q(language));
        const auto translators = prepareApplication();
        PluginLoader none(QStringList{});
        DialogSession session({}, none);
        PrintDialog dialog(session);
        Q_EMIT session.otherOptionsChanged({}); // which can be undone
        QList<const QWidget*> ownPages;
        for (const char* name : {"pagePage", "layoutPage", "printerPage", "jobPage", "summaryPage"})
            ownPages.append(dialog.findChild<QWidget*>(q(name)));
        const QStringList around = mnemonics(dialog, ownPages);
        EXPECT_GE(mnemonics(dialog).size(), 12) << language;
        for (const QWidget* page : ownPages)
            EXPECT_EQ(collisions(around + mnemonics(*page)), "")
                << language << qPrintable(page->objectName());

        const auto host = std::make_shared<FakeHost>();
        auto panels = RZPDEPlugInHalvern().PDEPanelsForType_withHostInfo(
            QLatin1StringView(kPrintDialogExtensionType), host);
        for (const auto& panel : *panels) {
            titles.append(panel->panelName().value_or(QString()));
            const QStringList own = mnemonics(*panel->panelView());
            EXPECT_GE(own.size(), 3) << qPrintable(titles.last());
            EXPECT_EQ(collisions(own + around), "") << qPrintable(titles.last());
            for (const QWidget* widget : panel->panelView()->findChildren<QWidget*>())
                EXPECT_TRUE(control::tagOf(widget) == 0 || qobject_cast<const QLabel*>(widget) ||
                            hasName(*widget))
                    << qPrintable(titles.last() + widget->objectName());
        }
        panels.reset();
        EXPECT_TRUE(waitUntil([&] { return host.use_count() == 1; }));
        EXPECT_EQ(titles.removeDuplicates(), 0) << "each in its own language: " << language;
    }
    EXPECT_EQ(titles.size(), 24);
    QLocale::setDefault(QLocale::c());
}

} // namespace halvern
