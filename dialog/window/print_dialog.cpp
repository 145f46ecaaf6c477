// SPDX-License-Identifier: MIT
#include "dialog/window/print_dialog.h"

#include "dialog/session/seen_printers.h"
#include "dialog/window/access_dialogs.h"
#include "dialog/window/disabled_reasons.h"
#include "dialog/window/job_line.h"
#include "dialog/window/jobs_window.h"
#include "dialog/window/message_bar.h"
#include "dialog/window/panel_deck.h"
#include "dialog/window/preset_bar.h"
#include "dialog/window/preview_side.h"
#include "dialog/window/printer_buttons.h"
#include "dialog/window/printer_rows.h"
#include "dialog/window/run_bar.h"
#include "dialog/window/search_box.h"
#include "platform/foundation/list_text.h"
#include "platform/toolkit/plain_text.h"
#include "platform/toolkit/wheel_guard.h"

#include <QAbstractItemView>
#include <QCheckBox>
#include <QFileInfo>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QLocale>
#include <QPainter>
#include <QPushButton>
#include <QShortcut>
#include <QSpinBox>
#include <QVBoxLayout>

#include <algorithm>

namespace halvern {

namespace {

const QString kPrinterMessages = QStringLiteral("printer");
const QString kReasonMessage = QStringLiteral("printer/why");
const QString kUndoMessage = QStringLiteral("printer/undo");
const QString kPresetMessage = QStringLiteral("printer/preset");
const QString kMisfitMessage = QStringLiteral("printer/misfit");
constexpr int kLongestName = 120;
constexpr int kLongestState = 240;
constexpr int kMessageMargins = 22;

// A shade of the text's colour: what palettes have for a frame may be as bright as the text.
class Separator : public QWidget {
public:
    explicit Separator(QWidget* parent) : QWidget(parent) { setFixedHeight(1); }

protected:
    void paintEvent(QPaintEvent*) override
    {
        QColor colour = palette().color(QPalette::WindowText);
        colour.setAlphaF(0.25F);
        QPainter(this).fillRect(rect(), colour);
    }
};

// Why a printer may be missing.
QString missingText(const QString& name)
{
    const QDate seen = SeenPrinters::last(name);
    if (!seen.isValid())
        return PrintDialog::tr("The print server has no printer \"%1\". Choose another one.").arg(name);
    return PrintDialog::tr("The print server has no printer \"%1\" any more. It was last seen on %2. Is it "
                           "switched on, and on this network?")
        .arg(name, QLocale().toString(seen, QLocale::ShortFormat));
}

} // namespace

PrintDialog::PrintDialog(DialogSession& session, QWidget* parent)
    : QDialog(parent), session_(session), message_(new MessageBar(this)), sides_(new QHBoxLayout(this))
{
    setObjectName(QStringLiteral("printDialog"));
    setWindowTitle(tr("Print"));
    setWindowFlag(Qt::WindowMaximizeButtonHint);
    sides_->setContentsMargins(0, 0, 0, 0);
    sides_->setSpacing(0);
    previewSide_ = makePreviewSide();
    controlSide_ = makeControlSide();
    sides_->addWidget(previewSide_, 1);
    sides_->addWidget(controlSide_, 0);
    for (QWidget* place : QWidgetList{previewSide_, messageRoom_})
        place->installEventFilter(this);
    connect(message_, &MessageBar::changed, this, &PrintDialog::placeMessage);
    connect(deck_, &PanelDeck::pageShown, this, &PrintDialog::arrange);
    new WheelGuard(this);
    new AccessDialogs(this);
    connect(new DisabledReasons(this), &DisabledReasons::asked, this, [this](const QString& reason) {
        message_->showMessage(MessageKind::information, reason, {}, kReasonMessage);
    });
    makeShortcuts();
    connectSession();
    connectChanges();
    fillPrinters();
    showPhotos();
    updateButtons();
    takeOpeningSize();
    // Not to a pop-up, whose value the wheel would change.
    deck_->setFocus();
}

PrintDialog::~PrintDialog()
{
    disconnect(&session_, nullptr, this, nullptr);
    deck_->releasePanels();
}

PreviewSide* PrintDialog::makePreviewSide()
{
    auto* side = new PreviewSide(session_, this);
    connect(side, &PreviewSide::shown, this, [this](const Photo& photo, size_t place) {
        deck_->setPhoto(photo, place);
        const QString name = QFileInfo(photo.path).fileName();
        setPlainTitle(this, tr("Print %1").arg(isolated(name, kLongestName)));
    });
    connect(side, &PreviewSide::failed, this,
            [this](const QString& sentence) { message_->showMessage(MessageKind::error, sentence); });
    return side;
}

QWidget* PrintDialog::makeControlSide()
{
    auto* side = new QWidget(this);
    auto* column = new QVBoxLayout(side);
    column->setContentsMargins(20, 18, 20, 18);
    column->setSpacing(14);
    column->addLayout(makePrinterRows(side));
    column->addWidget(new Separator(side));
    deck_ = new PanelDeck(session_, side);
    connect(deck_, &PanelDeck::cropAsked, this, [this] { previewSide_->startCropping(); });
    connect(deck_, &PanelDeck::told, this,
            [this](const QString& sentence) { message_->showMessage(MessageKind::error, sentence); });
    column->addWidget(deck_, 1);
    column->addWidget(new Separator(side));
    messageRoom_ = new QWidget(side);
    messageRoom_->setFixedHeight(2 * fontMetrics().lineSpacing() + kMessageMargins);
    messageRoom_->hide();
    column->addWidget(messageRoom_);
    runBar_ = new RunBar(side);
    connect(runBar_, &RunBar::remedyChosen, this, [this](Remedy remedy) {
        if (run_)
            run_->apply(remedy);
    });
    connect(runBar_, &RunBar::pauseChosen, this, [this](bool pause) {
        if (run_)
            run_->setPaused(pause);
    });
    column->addWidget(runBar_);
    jobLine_ = new JobLine(session_, side);
    column->addWidget(jobLine_);
    column->addLayout(makeButtonRow(side));
    return side;
}

QLayout* PrintDialog::makePrinterRows(QWidget* parent)
{
    printer_ = new SearchBox(SearchBox::Rows::twoLines, tr("Search by name, place or model"), parent);
    printer_->setObjectName(QStringLiteral("printer"));
    printer_->setAccessibleName(tr("Printer"));
    printer_->setMinimumContentsLength(24);
    printers_ = new PrinterRows(printer_);
    printer_->setModel(printers_);
    printerState_ = new QLabel(parent);
    printerState_->setObjectName(QStringLiteral("printerState"));
    printerState_->setWordWrap(true);
    auto* label = new QLabel(tr("P&rinter:"), parent);
    label->setBuddy(printer_);
    auto* form = new QFormLayout;
    form->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
    form->setHorizontalSpacing(14);
    form->setVerticalSpacing(6);
    form->addRow(label, printer_);
    jobs_ = new JobsButton(session_, parent);
    auto* state = new QHBoxLayout;
    state->addWidget(printerState_, 1);
    state->addWidget(jobs_, 0, Qt::AlignTop);
    form->addRow(QString(), state);
    auto* buttons = new PrinterButtons(session_, parent);
    connect(buttons, &PrinterButtons::failed, this,
            [this](const QString& sentence) { tellOfPrinter(MessageKind::error, sentence); });
    form->addRow(QString(), buttons);
    presets_ = new PresetBar(session_, parent);
    auto* presetLabel = new QLabel(tr("Preset:"), parent);
    presetLabel->setBuddy(presets_->box());
    form->addRow(presetLabel, presets_);
    connect(presets_, &PresetBar::told, this, [this](const QString& sentence, const MessageAction& action) {
        message_->showMessage(MessageKind::information, sentence, action, kPresetMessage);
    });
    connect(printer_, &QComboBox::activated, this, [this] {
        cups::Access::shared().askAgain();
        session_.selectPrinter(printer_->currentData().toString());
    });
    return form;
}

QLayout* PrintDialog::makeButtonRow(QWidget* parent)
{
    copies_ = new QSpinBox(parent);
    copies_->setObjectName(QStringLiteral("copies"));
    copies_->setRange(1, kMostCopies);
    copies_->setValue(session_.page().copies);
    auto* label = new QLabel(tr("C&opies:"), parent);
    label->setBuddy(copies_);
    cancelJob_ = new QPushButton(tr("Cancel Job"), parent);
    cancelJob_->setObjectName(QStringLiteral("cancelJobButton"));
    cancelJob_->setAutoDefault(false);
    cancel_ = new QPushButton(tr("Cancel"), parent);
    cancel_->setObjectName(QStringLiteral("cancelButton"));
    cancel_->setAutoDefault(false);
    print_ = new QPushButton(printText(), parent);
    print_->setObjectName(QStringLiteral("printButton"));
    print_->setDefault(true);
    for (QPushButton* button : {cancelJob_, cancel_, print_})
        button->setMinimumSize(104, 32);
    auto* row = new QHBoxLayout;
    row->setSpacing(10);
    row->addWidget(label);
    row->addWidget(copies_);
    row->addWidget(makeCollateBox(parent));
    row->addStretch();
    row->addWidget(makeOutputMenu(parent));
    if (review_)
        row->addWidget(review_);
    row->addWidget(cancelJob_);
    row->addWidget(cancel_);
    row->addWidget(print_);
    connect(copies_, &QSpinBox::valueChanged, this, [this](int copies) {
        PageSettings page = session_.page();
        page.copies = copies;
        session_.setPage(page);
    });
    connect(cancelJob_, &QPushButton::clicked, this, &PrintDialog::cancelJob);
    connect(cancel_, &QPushButton::clicked, this, &PrintDialog::reject);
    connect(print_, &QPushButton::clicked, this, &PrintDialog::print);
    return row;
}

QWidget* PrintDialog::makeCollateBox(QWidget* parent)
{
    collate_ = new QCheckBox(tr("Collate"), parent);
    collate_->setObjectName(QStringLiteral("collate"));
    collate_->setToolTip(tr("Whole sets one after the other: 1, 2, 3, 1, 2, 3"));
    collate_->setChecked(session_.page().isCollated);
    connect(collate_, &QCheckBox::toggled, this, [this](bool isCollated) {
        PageSettings page = session_.page();
        page.isCollated = isCollated;
        session_.setPage(page);
    });
    return collate_;
}

void PrintDialog::makeShortcuts()
{
    const auto add = [this](const QKeySequence& keys, auto slot) {
        connect(new QShortcut(keys, this), &QShortcut::activated, this, slot);
    };
    add(QKeySequence::Print, [this] {
        print_->click();
        if (const QString reason = print_->accessibleDescription(); !print_->isEnabled() && !reason.isEmpty())
            message_->showMessage(MessageKind::warning, reason, {}, kReasonMessage);
    });
    add(QKeySequence::Close, [this] { close(); });
    add(QKeySequence::Quit, [this] { close(); });
    add(QKeySequence::Find, [this] { deck_->startSearch(); });
    add(QKeySequence::HelpContents, [this] { showHelp(); });
    add(Qt::CTRL | Qt::Key_PageDown, [this] { previewSide_->step(1); });
    add(Qt::CTRL | Qt::Key_PageUp, [this] { previewSide_->step(-1); });
}

void PrintDialog::connectSession()
{
    connect(&session_.printerList(), &PrinterList::changed, this, [this] {
        fillPrinters();
        offerSignIn(session_.printerList().problem());
    });
    connect(&session_, &DialogSession::printerSelected, this, [this] {
        // What was told of the photos is still true.
        message_->withdraw(kPrinterMessages);
        toldMisfit_.clear();
        clearOldOutcome();
        deck_->refresh();
        fillPrinters();
        updateButtons();
    });
    connect(&session_, &DialogSession::printerLeaving, this, [this] { deck_->releasePanels(); });
    connect(&session_, &DialogSession::printerReady, this, [this] {
        deck_->rebuild();
        presets_->refresh();
        showPage();
    });
    connect(&session_, &DialogSession::printerFailed, this, [this](const QString& sentence) {
        deck_->rebuild();
        tellOfPrinter(MessageKind::error, sentence);
        offerSignIn(sentence);
        showPrinterState();
    });
    connect(&session_, &DialogSession::notice, this,
            [this](const QString& sentence) { tellOfPrinter(MessageKind::information, sentence); });
    connect(&session_, &DialogSession::refused, this,
            [this](const QString& sentence) { tellOfPrinter(MessageKind::warning, sentence); });
    connect(&session_, &DialogSession::photoFailed, this,
            [this](const QString& sentence) { message_->showMessage(MessageKind::error, sentence); });
    connect(&session_, &DialogSession::photoDamaged, this,
            [this](const QString& sentence) { message_->showMessage(MessageKind::warning, sentence); });
    connect(&session_, &DialogSession::photosChanged, this, &PrintDialog::showPhotos);
    connect(&session_.colours(), &ColourManagement::proofChanged, this, &PrintDialog::showPhotos);
    connect(&session_, &DialogSession::optionsChanged, this, [this] {
        clearOldOutcome();
        deck_->refresh();
        presets_->refresh();
        showPhotos();
        showMisfit();
    });
    connect(&session_, &DialogSession::presetApplied, this, [this](const QString& title) {
        showPage();
        offerUndo(tr("\"%1\" was applied.").arg(title));
    });
    connect(&session_, &DialogSession::offerChanged, this, &PrintDialog::showMisfit);
    connect(&session_, &DialogSession::reportChanged, this, [this] {
        showPrinterState();
        showMisfit();
    });
}

void PrintDialog::connectChanges()
{
    connect(&session_, &DialogSession::otherOptionsChanged, this, &PrintDialog::showOtherChanges);
    connect(&session_, &DialogSession::optionsPutBack, this, [this](const QList<SideChange>& changes) {
        offerUndo(changes.size() == 1
                      ? tr("1 option was put back to the printer's default.")
                      : tr("%1 options were put back to the printer's defaults.").arg(changes.size()));
    });
    connect(&session_, &DialogSession::optionsCorrected, this, &PrintDialog::showCorrections);
    connect(&session_, &DialogSession::undoFailed, this, [this](const QList<SideChange>& changes) {
        message_->showMessage(
            MessageKind::information,
            tr("The printer cannot do what was chosen, so this stays: %1").arg(inWords(changes)), {},
            kUndoMessage);
    });
    connect(&session_, &DialogSession::trayRefilled, this, &PrintDialog::offerUndo);
    connect(&session_, &DialogSession::stepTaken, this, &PrintDialog::offerUndo);
    connect(&session_, &DialogSession::undoExpired, this, [this] { message_->withdraw(kUndoMessage); });
}

void PrintDialog::tellOfPrinter(MessageKind kind, const QString& sentence)
{
    // The sentence in the key: each is told once, and all go with the printer.
    message_->showMessage(kind, sentence, {}, kPrinterMessages + QLatin1Char('/') + sentence);
}

// Somebody who has sent the question away is not asked again before he says so.
void PrintDialog::offerSignIn(const QString& problem)
{
    if (problem.isEmpty() || !cups::Access::shared().lacksLogin())
        return;
    const MessageAction signIn{tr("Sign &In..."), [this] {
                                   cups::Access::shared().askAgain();
                                   session_.printerList().refresh();
                                   session_.selectPrinter(session_.printerName());
                               }};
    message_->showMessage(MessageKind::error, problem, signIn, kPrinterMessages + QLatin1Char('/') + problem);
}

void PrintDialog::fillPrinters()
{
    const QString selected = session_.printerName();
    // An open list keeps its place as long as the same printers are in it.
    printers_->setPrinters(session_.printerList().printers(), session_.recentPrinters(), selected);
    printer_->setCurrentIndex(printers_->rowOf(selected));
    showPrinterState();
}

void PrintDialog::showPrinterState()
{
    const PrinterList& list = session_.printerList();
    const PrinterInfo* known = list.find(session_.printerName());
    const std::optional<PrinterInfo> printer =
        known ? std::optional(withReport(*known, session_.report())) : std::nullopt;
    QString text = tr("Looking for printers...");
    // One failure of the server's is told once, wherever it was noticed first.
    if (!list.problem().isEmpty())
        text = list.problem() == message_->text() ? tr("No answer from the print server.") : list.problem();
    else if (printer)
        text = stateText(*printer);
    else if (list.hasAnswer() && list.printers().empty())
        text = tr("The print server has no printers. Add one in the system's settings.");
    else if (list.hasAnswer())
        text = missingText(session_.printerName());
    setPlainText(printerState_, text, kLongestState);
    Severity severity = printer ? stateSeverity(*printer) : Severity::error;
    if (!list.hasAnswer())
        severity = Severity::report;
    else if (!list.problem().isEmpty())
        severity = Severity::error;
    QPalette colours = palette();
    if (severity != Severity::report) {
        const bool isDark = colours.color(QPalette::Window).lightness() < 128;
        colours.setColor(QPalette::WindowText, isDark ? QColor(255, 150, 110) : QColor(170, 60, 10));
    }
    QFont font = printer_->font();
    font.setBold(severity == Severity::error);
    printerState_->setFont(font);
    printerState_->setPalette(colours);
    updateButtons();
}

void PrintDialog::showPhotos()
{
    if (session_.document())
        showDocument();
    else
        previewSide_->refresh();
    updateButtons();
}

void PrintDialog::showPhoto(size_t photo)
{
    previewSide_->showPhoto(photo);
}

void PrintDialog::showOtherChanges(const QList<SideChange>& changes)
{
    offerUndo(tr("To make that possible, this was changed too: %1").arg(inWords(changes)));
}

void PrintDialog::showCorrections(const QList<SideChange>& changes)
{
    offerUndo(tr("To go with what the printer has, this was changed: %1").arg(inWords(changes)));
}

QString PrintDialog::inWords(const QList<SideChange>& changes) const
{
    QStringList texts;
    for (const SideChange& change : changes)
        texts.append(tr("%1: %2").arg(change.optionText, change.choiceText));
    return listText(texts);
}

void PrintDialog::offerUndo(const QString& sentence)
{
    message_->showMessage(MessageKind::information, sentence,
                          {tr("&Undo"),
                           [this] {
                               session_.undoLastChange();
                               showPage();
                           }},
                          kUndoMessage);
}

// What a preset, or undoing one, has made of the fields.
void PrintDialog::showPage()
{
    const PageSettings page = session_.page();
    const QSignalBlocker copiesBlocked(copies_);
    const QSignalBlocker collateBlocked(collate_);
    copies_->setValue(page.copies);
    collate_->setChecked(page.isCollated);
    updateButtons();
}

// Told as long as it is true, but once only to somebody who has closed the message.
void PrintDialog::showMisfit()
{
    const std::optional<PageMisfit> misfit = session_.pageMisfit();
    const std::optional<NotLoaded> missing = misfit ? std::nullopt : session_.notLoaded();
    const QString sentence = misfit ? misfit->sentence : missing ? missing->sentence : QString();
    if (sentence == toldMisfit_)
        return;
    toldMisfit_ = sentence;
    if (sentence.isEmpty()) {
        message_->withdraw(kMisfitMessage);
        return;
    }
    const auto use = [](const QString& text) { return tr("Use %1").arg(captionText(text)); };
    MessageAction action;
    if (missing)
        action = {use(missing->otherText), [this, paper = session_.trays().value(missing->other)] {
                      session_.useTray(int(session_.trays().indexOf(paper)));
                  }};
    else if (!misfit->fitting.isEmpty())
        action = {use(misfit->fittingText), [this, page = misfit->fitting] {
                      session_.changeOption(QStringLiteral("PageSize"), page);
                  }};
    message_->showMessage(MessageKind::warning, sentence, std::move(action), kMisfitMessage);
}

void PrintDialog::keyPressEvent(QKeyEvent* event)
{
    const bool isReturn = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    const QWidget* focused = focusWidget();
    // In a field it has ended the editing, in a list it has chosen; neither is a word for the default button.
    if (isReturn && deck_->isAncestorOf(focused) &&
        (qobject_cast<const QLineEdit*>(focused) || qobject_cast<const QAbstractSpinBox*>(focused) ||
         qobject_cast<const QAbstractItemView*>(focused))) {
        event->accept();
        return;
    }
    QDialog::keyPressEvent(event);
}

} // namespace halvern
