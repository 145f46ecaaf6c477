// SPDX-License-Identifier: MIT
#pragma once

#include "dialog/session/dialog_session.h"
#include "platform/plugin_api/panel.h"

#include <QSet>
#include <QWidget>

class QLabel;

namespace halvern {

class FoldedList;
class RowsOnDemand;

/// What will be printed, and how: first the job in words and what every job has, then what the panels tell
/// and what somebody changed, marked where it differs from the printer's defaults, and in a line what is
/// switched off. All other settings, and the options as they go out, are folded away. Main thread only.
class SummaryPage : public QWidget {
    Q_OBJECT

public:
    SummaryPage(DialogSession& session, QWidget* parent);

    /// Takes the current values.
    void refresh();

    /// The page without what is folded, and the options as they go out, as text.
    QString asText() const;

protected:
    void changeEvent(QEvent* event) override;

private:
    struct Line {
        QString title;
        QString value;
        QString byDefault = {}; ///< the printer's default in words, if the value is another
    };

    struct Section {
        QString title;
        QList<Line> lines;
    };

    QList<Line> jobLines() const;
    QList<Line> otherLines();
    QSet<QString> shownElsewhere() const;
    QList<Line> panelLines(halvern::Panel& panel);
    Line line(const QString& key, const QString& title, const QString& value) const;
    QString valueOf(const QString& key) const;
    bool saysNothing(const QString& key) const;
    bool isOff(const QString& key) const;
    void collect();
    QString markup() const;
    void copy() const;
    QString row(const Line& line) const;
    void fillAll(RowsOnDemand& rows);
    QString asSent(const QString& key) const;
    void fillSent(RowsOnDemand& rows) const;

    DialogSession& session_;
    QLabel* lead_;
    QLabel* text_;
    FoldedList* all_;
    FoldedList* sent_;
    JobValues options_;     // as they go out
    QSet<QString> changed_; // those with another value than the printer's default
    QStringList others_;    // the options of the list of all others; empty: not known yet
    QList<Section> sections_;
    QStringList off_;         // titles of what is switched off
    qsizetype notListed_ = 0; // values that are left out of a very long list
};

} // namespace halvern
