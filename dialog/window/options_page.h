// SPDX-License-Identifier: MIT
#pragma once

#include "dialog/session/dialog_session.h"

#include <QMap>
#include <QTimer>
#include <QWidget>

class QComboBox;
class QFormLayout;
class QLabel;

namespace halvern {

class ChoiceList;

/// The PPD's options that no panel offers, as a list of pop-ups under their groups' titles. Main thread only.
class OptionsPage : public QWidget {
    Q_OBJECT

public:
    OptionsPage(DialogSession& session, QWidget* parent);

    /// Builds the controls for the session's printer, or takes them away.
    void rebuild();

    /// Takes the current values into the controls.
    void refresh();

    /// Whether there is anything on the page.
    bool isEmpty() const { return keys_.isEmpty(); }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    struct Box {
        QComboBox* box = nullptr;
        ChoiceList* choices = nullptr;
    };

    void addRows();
    void addOption(const OptionItem& option);
    QComboBox* makeBox(const OptionItem& option);
    void refreshBox(const QString& key);
    void choose(const QString& key);

    DialogSession& session_;
    QWidget* content_ = nullptr;
    QFormLayout* form_ = nullptr;
    QLabel* more_;
    QTimer timer_;
    QStringList keys_;
    qsizetype built_ = 0; ///< how many of them have their row
    QString group_;       ///< of the last row
    QMap<QString, Box> boxes_;
};

/// The keywords of the options that no panel owns, the printer's equipment among them.
QStringList optionsWithoutPanel(DialogSession& session);

} // namespace halvern
