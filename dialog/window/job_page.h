// SPDX-License-Identifier: MIT
#pragma once

#include "dialog/session/dialog_session.h"

#include <QWidget>

class QComboBox;
class QFormLayout;
class QLabel;
class QLineEdit;
class QSpinBox;
class QTimeEdit;

namespace halvern {

/// What the job is called, when it is printed, and the pages around it. Main thread only.
class JobPage : public QWidget {
    Q_OBJECT

public:
    JobPage(DialogSession& session, QWidget* parent);

    /// Takes the session's current values into the controls; asks nothing of it.
    void refresh();

private:
    QWidget* makeHold();
    void addRow(const QString& text, QWidget* field, QWidget* buddy);
    void listOffer();
    void refreshHold();
    void refreshBanners();
    void chooseHold();
    void chooseBanners();

    DialogSession& session_;
    QFormLayout* form_;
    QLineEdit* title_;
    QSpinBox* priority_;
    QComboBox* hold_;
    QTimeEdit* time_;
    QComboBox* before_;
    QComboBox* after_;
    QLabel* bannerNote_;
    JobOffer listed_;
};

} // namespace halvern
