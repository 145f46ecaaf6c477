// SPDX-License-Identifier: MIT
#pragma once

#include "dialog/session/dialog_session.h"
#include "dialog/session/panel_source.h"
#include "dialog/window/print_dialog.h"
#include "platform/printing/print_settings.h"
#include "tests/support/test.h"

#include <QPointer>

namespace halvern {

/// A panel that records what the dialog does with it, and asks the host what a test wants.
class RecordingPanel : public Panel {
public:
    RecordingPanel(QString kind, std::shared_ptr<HostCallback> host, QStringList& calls)
        : host(std::move(host)), kind_(std::move(kind)), calls_(calls)
    {
    }

    ~RecordingPanel() override
    {
        note("gone");
        delete view.data();
    }

    QWidget* panelView() override
    {
        if (!view) {
            note("view");
            view = new QLabel(kind_);
        }
        return view;
    }

    std::optional<QString> panelName() override { return kind_; }

    std::optional<QString> panelKind() override { return kind_; }

    QMap<QString, QString> summaryInfo() override { return {{q("Key"), kind_}}; }

    void willShow() override { note("willShow"); }

    bool shouldHide() override
    {
        note("shouldHide");
        return true;
    }

    void printWindowWillClose(bool printing) override { note(printing ? "closing to print" : "closing"); }

    bool saveValuesAndReturnError(PanelError*) override
    {
        note("save");
        if (host->printSettings() && !savedText.isEmpty())
            host->printSettings()->setValue(q("CVP1"), savedText, false);
        return true;
    }

    bool restoreValuesAndReturnError(PanelError*) override
    {
        note("restore");
        return true;
    }

    void PPDOptionKeyValueDidChange_ppdChoice(const std::optional<QString>& key,
                                              const QVariant& choice) override
    {
        changes.append(*key + u'=' + choice.toString());
    }

    bool shouldShowHelp() override { return true; }

    QStringList supportedPPDOptionKeys() override { return {q("TwoSided")}; }

    std::shared_ptr<HostCallback> host;
    QPointer<QWidget> view;
    QStringList changes;
    QString savedText;

private:
    void note(const char* what) { calls_.append(kind_ + q(": ") + QLatin1StringView(what)); }

    QString kind_;
    QStringList& calls_;
};

/// Gives two recording panels to every printer whose PPD asks for a bundle.
class FakePanels : public PanelSource {
public:
    PanelList panels(const QString&, const std::shared_ptr<HostCallback>& host, QString* problem) override
    {
        if (!failure.isEmpty()) {
            *problem = failure;
            return {};
        }
        auto one = std::make_shared<RecordingPanel>(q("first"), host, calls);
        auto two = std::make_shared<RecordingPanel>(q("second"), host, calls);
        first = one;
        second = two;
        return {one, two};
    }

    QStringList calls;
    QString failure;
    std::weak_ptr<RecordingPanel> first;
    std::weak_ptr<RecordingPanel> second;
};

} // namespace halvern
