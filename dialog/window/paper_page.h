// SPDX-License-Identifier: MIT
#pragma once

#include "dialog/session/dialog_session.h"
#include "dialog/session/own_papers.h"

#include <QWidget>

class QButtonGroup;
class QCheckBox;
class QComboBox;
class QFormLayout;
class QLabel;
class QSpinBox;

namespace halvern {

class ChoiceList;
class ColourRow;
class CustomPaperRow;
class PageRangeRow;
class PaperSizeList;
class SearchBox;
class TrayRows;

/// The dialog's own first page: paper size, turn, scaling, both sides, and which pages. Main thread only.
class PaperPage : public QWidget {
    Q_OBJECT

public:
    PaperPage(DialogSession& session, QWidget* parent);

    /// Takes the session's current values into the controls; asks nothing of it.
    void refresh();

private:
    QWidget* makePaperRow();
    QWidget* makeChoices(QButtonGroup* group, const QString& name,
                         const QList<std::pair<int, QString>>& choices);
    void addRow(const QString& text, QWidget* field, QWidget* buddy);
    void arrangeForDocument(const BlindDocument& document, QWidget* scalings);
    void connectControls();
    void listPapers();
    void refreshPaper();
    void refreshBorderless();
    void refreshCustom();
    void refreshTwoSided();
    void choosePaper();
    void chooseBorderless(bool isOn);
    void chooseCustom(const QSizeF& points);
    void makeAsLongAsPhoto(double width);
    void choosePage();
    void choosePages(const PageChoice& choice);

    DialogSession& session_;
    QFormLayout* form_;
    SearchBox* paper_;
    PaperSizeList* papers_;
    std::weak_ptr<ppd_file_t> listedFor_; ///< whose sizes are listed
    PaperRoom listedRoom_;                ///< for which paper they are sorted
    QStringList listedRecent_;
    QList<TrayPaper> listedTrays_;
    QList<OwnPaper> own_;
    QCheckBox* borderless_;
    CustomPaperRow* custom_;
    QButtonGroup* turn_;
    QButtonGroup* scaling_;
    QComboBox* twoSided_;
    ChoiceList* sides_;
    QString twoSidedKey_;
    std::weak_ptr<ppd_file_t> sidesFor_; ///< whose choices are listed
    QSpinBox* scale_ = nullptr;          // null where nobody scales by it
    TrayRows* trays_;
    PageRangeRow* pages_;
    ColourRow* colours_;
};

} // namespace halvern
