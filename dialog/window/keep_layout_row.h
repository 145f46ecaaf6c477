// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>

class QLineEdit;
class QPushButton;

namespace halvern {

class DialogSession;

/// Keeps the layout that is chosen under a name of the user's, and forgets one of the user's. Main thread
/// only.
class KeepLayoutRow : public QWidget {
    Q_OBJECT

public:
    KeepLayoutRow(DialogSession& session, QWidget* parent);

    void setForgets(bool isOwn);

    /// What the row's label leads to.
    QWidget* first() const;

Q_SIGNALS:
    /// There are other layouts than before; the new one is about to be chosen.
    void layoutsChanged();
    /// Something to tell: a sentence.
    void told(const QString& sentence);

private:
    void keep();
    void forget();

    DialogSession& session_;
    QLineEdit* name_;
    QPushButton* keep_;
    QPushButton* forget_;
};

} // namespace halvern
