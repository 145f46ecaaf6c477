// SPDX-License-Identifier: MIT
#pragma once

#include "dialog/session/dialog_session.h"

#include <QWidget>

class QButtonGroup;
class QComboBox;
class QSpinBox;

namespace halvern {

class ChoiceList;

/// The dialog's own first page: paper size, turn, scaling. Main thread only.
class PaperPage : public QWidget {
    Q_OBJECT

public:
    PaperPage(DialogSession& session, QWidget* parent);

    /// Takes the session's current values into the controls; asks nothing of it.
    void refresh();

private:
    QWidget* makeChoices(QButtonGroup* group, const QString& name,
                         const QList<std::pair<int, QString>>& choices);
    void choosePaper();
    void choosePage();

    DialogSession& session_;
    QComboBox* paper_;
    ChoiceList* papers_;
    std::weak_ptr<ppd_file_t> listedFor_; ///< whose sizes are listed
    QButtonGroup* turn_;
    QButtonGroup* scaling_;
};

} // namespace halvern
