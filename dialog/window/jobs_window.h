// SPDX-License-Identifier: MIT
#pragma once

#include "dialog/job/user_job_list.h"

#include <QDialog>
#include <QPointer>
#include <QToolButton>

#include <functional>

class QCheckBox;
class QLabel;
class QMenu;
class QPushButton;
class QTreeView;

namespace halvern {

class DialogSession;
class JobRows;
struct PrinterInfo;

/// The user's jobs on a printer, with what can be done to them. It asks the server as long as it is open.
/// Main thread only.
class JobsWindow : public QDialog {
    Q_OBJECT

public:
    /// The printers to which a job may be moved; the one that has it is left out.
    using Printers = std::function<std::vector<PrinterInfo>()>;

    JobsWindow(const QString& queue, Printers printers, QWidget* parent);

    const QString& queue() const { return jobs_->queue(); }

private:
    struct DeedButton {
        JobDeed deed;
        QPushButton* button;
    };

    QLayout* makeButtons();
    void showJobs();
    void showState();
    void fillTargets();
    void act(JobDeed deed, const QString& target = {});
    std::vector<UserJob> chosen() const;

    UserJobList* jobs_;
    Printers printers_;
    JobRows* rows_;
    QTreeView* table_;
    QLabel* state_;
    QCheckBox* ended_;
    QMenu* targets_;
    std::vector<DeedButton> deeds_;
    QString refusal_;
    bool hasListed_ = false; ///< jobs, or that there are none
};

/// The button beside the printer's state that opens the window, or brings it to the front. Main thread only.
class JobsButton : public QToolButton {
    Q_OBJECT

public:
    /// `session` outlives it.
    JobsButton(DialogSession& session, QWidget* parent);

private:
    void open();

    DialogSession& session_;
    QPointer<JobsWindow> window_;
};

} // namespace halvern
