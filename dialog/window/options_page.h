#pragma once

#include "dialog/session/dialog_session.h"

#include <QMap>
#include <QWidget>

class QComboBox;
class QFormLayout;

namespace halvern {

/// The PPD's options that no panel offers, as a list of pop-ups under their groups' titles. Main thread only.
class OptionsPage : public QWidget {
    Q_OBJECT

public:
    OptionsPage(DialogSession& session, QWidget* parent);

    /// Builds the controls for the session's printer, or takes them away.
    void rebuild();

    /// Takes the current values into the controls.
    void refresh();

    /// Whether there is anything on the page.
    bool isEmpty() const { return boxes_.isEmpty(); }

private:
    void addOption(QFormLayout* form, const OptionItem& option);
    void choose(const QString& key);

    DialogSession& session_;
    QWidget* content_ = nullptr;
    QMap<QString, QComboBox*> boxes_;
};

/// An option's title and its value's, for the summary.
using SummaryLines = QList<std::pair<QString, QString>>;

/// The dialog's own lines of the summary: printer, paper, size, copies, and the options of OptionsPage.
SummaryLines ownSummary(DialogSession& session);

/// The options that no panel owns and that are a matter of the job.
QList<OptionItem> optionsWithoutPanel(DialogSession& session);

} // namespace halvern
