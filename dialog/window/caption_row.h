// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>

class QComboBox;
class QLineEdit;

namespace halvern {

/// What stands under each photo, with a list of placeholders to put into it. Main thread only.
class CaptionRow : public QWidget {
    Q_OBJECT

public:
    explicit CaptionRow(QWidget* parent);

    /// Shows the pattern; tells nobody.
    void setCaption(const QString& pattern);
    QString caption() const;

    /// What the row's label leads to.
    QWidget* first() const;

Q_SIGNALS:
    /// The user has written something.
    void changed();

private:
    void insertToken();

    QLineEdit* caption_;
    QComboBox* tokens_;
};

} // namespace halvern
