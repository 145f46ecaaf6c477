// SPDX-License-Identifier: MIT
#pragma once

#include "dialog/server/printer_list.h"

#include <QAbstractListModel>

namespace halvern {

/// The server's printers behind a SearchBox: those used last, then all others. The rows stay as long as the
/// same printers are there; their states change in place. Main thread only.
class PrinterRows : public QAbstractListModel {
    Q_OBJECT

public:
    using QAbstractListModel::QAbstractListModel;

    /// `selected` gets a row even if the server does not know it; empty: none is selected.
    void setPrinters(const std::vector<PrinterInfo>& printers, const QStringList& recent,
                     const QString& selected);

    /// -1 if there is none of that name.
    int rowOf(const QString& name) const;

    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;

private:
    QString groupOf(int row) const;

    std::vector<PrinterInfo> printers_;
    int recent_ = 0; ///< how many of them, from the first on, were used last
};

} // namespace halvern
