// SPDX-License-Identifier: MIT
#pragma once

#include "dialog/session/dialog_session.h"

#include <QDialog>
#include <QPointer>

class QBoxLayout;
class QCheckBox;
class QLabel;
class QPushButton;
class QSpinBox;

namespace halvern {

class JobLine;
class JobsButton;
class MessageBar;
class OutputMenu;
enum class MessageKind;
class PanelDeck;
class PresetBar;
class PreviewSide;
class PrinterRows;
class RunBar;
class SearchBox;

/// The print dialog's window. It shows a session and passes on what the user does. Main thread only; usable
/// as soon as it is shown, whatever the print server does.
class PrintDialog : public QDialog {
    Q_OBJECT

public:
    /// `session` outlives the dialog.
    explicit PrintDialog(DialogSession& session, QWidget* parent = nullptr);
    ~PrintDialog() override;

    /// The run that is under way or the last one; null before the first.
    PrintRun* run() { return run_; }

    /// The PDF file that is being written; null if there is none.
    PdfOutput* unfinishedFile() const;

    bool isRunning() const { return run_ && !run_->isOver(); }

    /// How the last run ended.
    const PrintOutcome& outcome() const { return outcome_; }

    /// Whether any run was printed.
    bool hasPrinted() const { return hasPrinted_; }

    /// What was accepted for a document that is printed in place of photos: the dialog is closed, and the
    /// caller sends it. Nothing before.
    const std::optional<JobRequest>& order() const { return order_; }

    /// Shows the first sheet that this photo is on, and the photo there.
    void showPhoto(size_t photo);

    /// Leaves at once, whatever is under way: a job that the server has stays on its queue, and one that is
    /// still being sent goes on as long as the session lives.
    void done(int result) override;

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;
    bool focusNextPrevChild(bool next) override;

Q_SIGNALS:
    /// A run is about to start.
    void started();

private:
    PreviewSide* makePreviewSide();
    QWidget* makeControlSide();
    QLayout* makePrinterRows(QWidget* parent);
    QLayout* makeButtonRow(QWidget* parent);
    QWidget* makeCollateBox(QWidget* parent);
    void connectSession();
    void connectChanges();
    void makeShortcuts();
    void takeOpeningSize();
    void rememberSize() const;
    QList<QWidget*> tabOrder() const;
    void arrange();
    void placeMessage();
    void offerUndo(const QString& sentence);
    void tellOfPrinter(MessageKind kind, const QString& sentence);
    void offerSignIn(const QString& problem);
    void fillPrinters();
    void showPrinterState();
    void showMisfit();
    void showPhotos();
    void showOtherChanges(const QList<SideChange>& changes);
    void showPage();
    void showCorrections(const QList<SideChange>& changes);
    QString inWords(const QList<SideChange>& changes) const;
    void updateButtons();
    void showHelp();
    void print();
    void showDocument();
    QString printText() const;
    void followRun();
    void takeOutcome(const PrintOutcome& outcome);
    void cancelJob();
    QWidget* makeOutputMenu(QWidget* parent);
    void clearOldOutcome();

    DialogSession& session_;
    MessageBar* message_;
    QBoxLayout* sides_;
    PreviewSide* previewSide_ = nullptr;
    QWidget* controlSide_ = nullptr;
    QWidget* messageRoom_ = nullptr; // where messages are told while the preview is no neighbour
    SearchBox* printer_ = nullptr;
    PrinterRows* printers_ = nullptr;
    QLabel* printerState_ = nullptr;
    JobsButton* jobs_ = nullptr;
    PresetBar* presets_ = nullptr;
    PanelDeck* deck_ = nullptr;
    QSpinBox* copies_ = nullptr;
    QCheckBox* collate_ = nullptr;
    QPushButton* print_ = nullptr;
    QPushButton* cancel_ = nullptr;
    QPushButton* cancelJob_ = nullptr;
    OutputMenu* output_ = nullptr;
    RunBar* runBar_ = nullptr;
    JobLine* jobLine_ = nullptr;
    QCheckBox* review_ = nullptr; // null where there is nothing to be reviewed
    std::optional<JobRequest> order_;
    QPointer<PrintRun> run_;
    PrintOutcome outcome_;
    QString toldMisfit_;
    QSize wantedSize_;
    QSize openingSize_; // as much of it as the screen has
    bool hasPrinted_ = false;
    bool previewIsBeside_ = true;
};

} // namespace halvern
