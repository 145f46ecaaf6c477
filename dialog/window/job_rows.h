// SPDX-License-Identifier: MIT
#pragma once

#include "dialog/job/user_jobs.h"

#include <QAbstractTableModel>

namespace halvern {

/// The user's jobs as a table. The rows stay as long as the same jobs are there; their states change in
/// place. Main thread only.
class JobRows : public QAbstractTableModel {
    Q_OBJECT

public:
    enum Column { kTitle, kState, kPages, kSent, kNumber, kColumns };

    using QAbstractTableModel::QAbstractTableModel;

    void setJobs(const std::vector<UserJob>& jobs);

    /// Null if there is no such row.
    const UserJob* job(int row) const;

    int rowOf(int jobId) const { return indexOfJob(jobs_, jobId); }

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    static QString text(const UserJob& job, int column);

    std::vector<UserJob> jobs_;
};

} // namespace halvern
