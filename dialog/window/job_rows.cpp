// SPDX-License-Identifier: MIT
#include "dialog/window/job_rows.h"

#include "platform/toolkit/plain_text.h"

#include <QFontMetrics>
#include <QGuiApplication>
#include <QLocale>
#include <QPalette>

#include <algorithm>

namespace halvern {

namespace {

constexpr int kRowPadding = 8;

QString sentText(const QDateTime& sent)
{
    if (!sent.isValid())
        return {};
    const QLocale locale;
    return sent.date() == QDate::currentDate() ? locale.toString(sent.time(), QLocale::ShortFormat)
                                               : locale.toString(sent, QLocale::ShortFormat);
}

} // namespace

void JobRows::setJobs(const std::vector<UserJob>& jobs)
{
    if (std::ranges::equal(jobs, jobs_, {}, &UserJob::id, &UserJob::id)) {
        jobs_ = jobs;
        if (!jobs_.empty())
            Q_EMIT dataChanged(index(0, 0), index(int(jobs_.size()) - 1, kColumns - 1));
        return;
    }
    beginResetModel();
    jobs_ = jobs;
    endResetModel();
}

const UserJob* JobRows::job(int row) const
{
    return row >= 0 && row < int(jobs_.size()) ? &jobs_[size_t(row)] : nullptr;
}

int JobRows::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : int(jobs_.size());
}

int JobRows::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : int(kColumns);
}

QString JobRows::text(const UserJob& job, int column)
{
    switch (column) {
    case kTitle:
        return itemText(job.title);
    case kState:
        return itemText(jobStateText(job));
    case kPages:
        return jobPagesText(job);
    case kSent:
        return sentText(job.sent);
    default:
        return QString::number(job.id);
    }
}

QVariant JobRows::data(const QModelIndex& index, int role) const
{
    const UserJob* found = job(index.row());
    if (!found)
        return {};
    switch (role) {
    case Qt::DisplayRole:
        return text(*found, index.column());
    case Qt::ToolTipRole:
        return plainToolTip(text(*found, index.column()));
    case Qt::ForegroundRole:
        return hasEnded(found->status.stage)
                   ? QVariant(QGuiApplication::palette().brush(QPalette::PlaceholderText))
                   : QVariant();
    case Qt::SizeHintRole:
        return QSize(0, QFontMetrics(QGuiApplication::font()).height() + kRowPadding);
    case Qt::TextAlignmentRole:
        return index.column() == kNumber || index.column() == kPages
                   ? QVariant(int(Qt::AlignRight | Qt::AlignVCenter))
                   : QVariant();
    default:
        return {};
    }
}

QVariant JobRows::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole)
        return {};
    switch (section) {
    case kTitle:
        return tr("Job");
    case kState:
        return tr("State");
    case kPages:
        return tr("Pages");
    case kSent:
        return tr("Sent");
    default:
        return tr("No.");
    }
}

} // namespace halvern
