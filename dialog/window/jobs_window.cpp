// SPDX-License-Identifier: MIT
#include "dialog/window/jobs_window.h"

#include "dialog/session/dialog_session.h"
#include "dialog/window/help_window.h"
#include "dialog/window/job_rows.h"
#include "platform/toolkit/plain_text.h"

#include <QCheckBox>
#include <QDialogButtonBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QMenu>
#include <QPushButton>
#include <QTreeView>
#include <QVBoxLayout>

#include <algorithm>
#include <utility>

namespace halvern {

namespace {

constexpr QSize kUsualJobsSize(680, 340);
// Two lines of words that the window keeps free, so that a refusal moves nothing.
constexpr int kStateLines = 2;

QTreeView* makeTable(QAbstractItemModel* rows, QWidget* parent)
{
    auto* table = new QTreeView(parent);
    table->setObjectName(QStringLiteral("jobs"));
    table->setModel(rows);
    table->setRootIsDecorated(false);
    table->setUniformRowHeights(true);
    table->setAlternatingRowColors(true);
    table->setAllColumnsShowFocus(true);
    table->setSelectionMode(QAbstractItemView::ExtendedSelection);
    table->setTextElideMode(Qt::ElideRight);
    table->header()->setStretchLastSection(false);
    table->header()->setSectionResizeMode(JobRows::kTitle, QHeaderView::Stretch);
    table->header()->setSectionResizeMode(JobRows::kState, QHeaderView::Stretch);
    for (const int column : {JobRows::kPages, JobRows::kSent, JobRows::kNumber})
        table->header()->setSectionResizeMode(column, QHeaderView::ResizeToContents);
    return table;
}

} // namespace

JobsWindow::JobsWindow(const QString& queue, Printers printers, QWidget* parent)
    : QDialog(parent),
      jobs_(new UserJobList(queue, this)),
      printers_(std::move(printers)),
      rows_(new JobRows(this)),
      table_(makeTable(rows_, this)),
      state_(new QLabel(this)),
      ended_(new QCheckBox(tr("Show jobs that have ended"), this)),
      targets_(new QMenu(this))
{
    setObjectName(QStringLiteral("jobsWindow"));
    HelpWindow::addKey(*this);
    setAttribute(Qt::WA_DeleteOnClose);
    setPlainTitle(this, tr("Your Jobs on %1").arg(isolated(queue)));
    setPlainName(table_, tr("Your jobs"));
    state_->setObjectName(QStringLiteral("jobsState"));
    state_->setWordWrap(true);
    state_->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    state_->setMinimumHeight(kStateLines * fontMetrics().lineSpacing());
    ended_->setChecked(true);
    auto* close = new QDialogButtonBox(QDialogButtonBox::Close, this);
    auto* last = new QHBoxLayout;
    last->addWidget(ended_);
    last->addStretch();
    last->addWidget(close);
    auto* column = new QVBoxLayout(this);
    column->addWidget(table_, 1);
    column->addWidget(state_);
    column->addLayout(makeButtons());
    column->addLayout(last);
    resize(kUsualJobsSize);
    connect(close, &QDialogButtonBox::rejected, this, &QDialog::close);
    connect(ended_, &QCheckBox::toggled, jobs_, &UserJobList::setWithEnded);
    connect(jobs_, &UserJobList::changed, this, &JobsWindow::showJobs);
    connect(jobs_, &UserJobList::applied, this, [this](const QString& problem) {
        if (problem.isEmpty())
            return;
        refusal_ = problem;
        showState();
    });
    connect(table_->selectionModel(), &QItemSelectionModel::selectionChanged, this, [this] {
        refusal_.clear();
        showState();
    });
    connect(targets_, &QMenu::aboutToShow, this, &JobsWindow::fillTargets);
    showState();
    jobs_->start();
}

QLayout* JobsWindow::makeButtons()
{
    auto* row = new QHBoxLayout;
    const auto add = [&](JobDeed deed, const QString& name, const char* objectName) {
        auto* button = new QPushButton(this);
        button->setText(name); // plain: a title of ours
        button->setObjectName(QLatin1StringView(objectName));
        button->setAutoDefault(false);
        row->addWidget(button);
        deeds_.push_back({deed, button});
        if (deed != JobDeed::move)
            connect(button, &QPushButton::clicked, this, [this, deed] { act(deed); });
        return button;
    };
    add(JobDeed::cancel, tr("Cancel Job"), "cancelJob");
    add(JobDeed::hold, tr("Hold"), "holdJob");
    add(JobDeed::release, tr("Release"), "releaseJob");
    add(JobDeed::printAgain, tr("Print Again"), "repeatJob");
    add(JobDeed::signIn, tr("Sign In..."), "signInJob")->hide();
    add(JobDeed::move, tr("Move To"), "moveJob")->setMenu(targets_);
    row->addStretch();
    return row;
}

std::vector<UserJob> JobsWindow::chosen() const
{
    std::vector<UserJob> jobs;
    for (const QModelIndex& index : table_->selectionModel()->selectedRows()) {
        if (const UserJob* job = rows_->job(index.row()))
            jobs.push_back(*job);
    }
    return jobs;
}

void JobsWindow::showJobs()
{
    // Rows move when a job ends; what is chosen are jobs.
    const std::vector<UserJob> before = chosen();
    rows_->setJobs(jobs_->answer().jobs);
    QItemSelection selection;
    for (const UserJob& job : before) {
        if (const int row = rows_->rowOf(job.id); row >= 0)
            selection.select(rows_->index(row, 0), rows_->index(row, JobRows::kColumns - 1));
    }
    const QString kept = refusal_;
    table_->selectionModel()->select(selection, QItemSelectionModel::ClearAndSelect);
    refusal_ = kept;
    // Later, nothing is chosen that the user has not chosen: the buttons are live.
    const bool hasListed = jobs_->answer().problem.isEmpty();
    if (hasListed && !std::exchange(hasListed_, true) && rows_->rowCount() > 0)
        table_->setCurrentIndex(rows_->index(0, 0));
    showState();
}

void JobsWindow::showState()
{
    const UserJobs& answer = jobs_->answer();
    QString text = refusal_;
    if (!jobs_->hasAnswer())
        text = tr("Asking the print server...");
    else if (text.isEmpty() && !answer.problem.isEmpty())
        text = answer.problem;
    else if (text.isEmpty() && answer.jobs.empty())
        text = tr("You have no jobs on this printer.");
    setPlainText(state_, text);
    const std::vector<UserJob> jobs = chosen();
    for (const DeedButton& each : deeds_) {
        const bool isEnabled =
            std::ranges::any_of(jobs, [&](const UserJob& job) { return isPossible(each.deed, job); });
        each.button->setEnabled(isEnabled);
        // For the few printers that ask for a password.
        if (each.deed == JobDeed::signIn)
            each.button->setVisible(isEnabled);
    }
}

void JobsWindow::fillTargets()
{
    targets_->clear();
    for (const PrinterInfo& printer : printers_()) {
        if (printer.isDiscovered || printer.name == jobs_->queue())
            continue;
        QAction* action = targets_->addAction(captionText(printer.name));
        connect(action, &QAction::triggered, this, [this, name = printer.name] { act(JobDeed::move, name); });
    }
    if (targets_->isEmpty())
        targets_->addAction(tr("The print server has no other printer"))->setEnabled(false);
}

void JobsWindow::act(JobDeed deed, const QString& target)
{
    refusal_.clear();
    showState();
    cups::Access::shared().askAgain();
    for (const UserJob& job : chosen()) {
        if (isPossible(deed, job))
            jobs_->apply(deed, job, target);
    }
}

JobsButton::JobsButton(DialogSession& session, QWidget* parent) : QToolButton(parent), session_(session)
{
    setObjectName(QStringLiteral("jobsButton"));
    setText(tr("Jobs..."));
    setToolTip(tr("Your jobs on this printer"));
    setFocusPolicy(Qt::TabFocus);
    setEnabled(!session_.printerName().isEmpty());
    connect(&session_, &DialogSession::printerSelected, this,
            [this](const QString& name) { setEnabled(!name.isEmpty()); });
    connect(this, &QToolButton::clicked, this, &JobsButton::open);
}

void JobsButton::open()
{
    const QString queue = session_.printerName();
    if (window_ && window_->queue() != queue)
        window_->close();
    if (!window_ || !window_->isVisible())
        window_ = new JobsWindow(
            queue, [this] { return session_.printerList().printers(); }, window());
    window_->show();
    window_->raise();
    window_->activateWindow();
}

} // namespace halvern
