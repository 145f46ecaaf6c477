// SPDX-License-Identifier: MIT
#pragma once

#include <QAbstractListModel>

#include <vector>

namespace halvern {

class DialogSession;
struct Photo;

/// The session's photos, a row each, in their order. Main thread only.
class PhotoListModel : public QAbstractListModel {
    Q_OBJECT

public:
    enum Role {
        copiesRole = Qt::UserRole, ///< int, of each copy of the job
        isPrintedRole,             ///< bool: it is among those that are chosen
        isDamagedRole,
    };

    /// `session` outlives it.
    PhotoListModel(DialogSession& session, QObject* parent);

    /// Takes the session's photos as they are now; rows that are still there keep what is selected of them.
    void refresh();

    /// Null if there is no such row any more.
    const Photo* photo(int row) const;

    /// Which photo that is, whatever its place; 0 if there is no such row.
    quint64 idAt(int row) const;

    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;

private:
    struct Row {
        quint64 id = 0;
        int copies = 1;
        bool isPrinted = true;
        bool isDamaged = false;

        bool operator==(const Row&) const = default;
    };

    std::vector<Row> currentRows() const;
    void dropMissing(const std::vector<Row>& wanted);
    void sortAs(const std::vector<Row>& wanted);
    void addNew(const std::vector<Row>& wanted);
    void takeValues(const std::vector<Row>& wanted);
    QString words(int row) const;
    QString toolTip(int row) const;

    DialogSession& session_;
    std::vector<Row> rows_;
};

} // namespace halvern
