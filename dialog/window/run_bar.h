// SPDX-License-Identifier: MIT
#pragma once

#include "dialog/job/job_status.h"

#include <QWidget>

class QLabel;
class QProgressBar;
class QPushButton;

namespace halvern {

/// What becomes of a print run, above the dialog's buttons: a sentence, the progress, and a button that gets
/// a resting job on its way. Hidden while there is nothing to tell. Main thread only.
class RunBar : public QWidget {
    Q_OBJECT

public:
    explicit RunBar(QWidget* parent);

    /// Whether what is sent can be paused, or is.
    enum class Pause { none, offered, on };

    /// Preparing and sending; `share` from 0 to 1.
    void showProgress(double share, const QString& words, Pause pause = Pause::none);

    /// The server has the job; it takes as long as it takes.
    void showSent(const QString& words);

    void showStatus(const JobStatus& status, const QString& sentence);

    /// A last sentence, without progress or button.
    void showEnd(const QString& sentence);

    /// Says quietly, until the next run, that the server holds what was sent; `sentence` is the long form.
    void showCheck(const QString& sentence);

    /// A sentence in between, which leaves the rest as it is.
    void tell(const QString& text);

    void clear();

    /// For the order of the Tab key.
    QWidget* button() const;

Q_SIGNALS:
    void remedyChosen(halvern::Remedy remedy);
    void pauseChosen(bool pause);

private:
    void showRemedy(Remedy remedy);
    void showPause(Pause pause);

    QLabel* text_;
    QLabel* check_;
    QProgressBar* progress_;
    QPushButton* button_;
    QPushButton* pause_;
    Remedy remedy_ = Remedy::none;
};

} // namespace halvern
