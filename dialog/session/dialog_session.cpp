// SPDX-License-Identifier: MIT
#include "dialog/session/dialog_session.h"

#include "dialog/session/starting_options.h"
#include "platform/foundation/display_text.h"
#include "platform/foundation/units.h"
#include "platform/printing/print_settings.h"
#include "platform/printing/printer.h"
#include "platform/toolkit/user_action.h"

#include <QFileInfo>

#include <algorithm>

namespace halvern {

using ppd_lookup::NumberReading;

namespace {

constexpr qsizetype kRecentNames = 5;
constexpr char kExtensionKeyword[] = "HalvernDialogExtension";
const QString kPaperFeed = QStringLiteral("PaperFeed");

} // namespace

DialogSession::DialogSession(SessionRequest request, PanelSource& panels, QObject* parent)
    : QObject(parent),
      request_(std::move(request)),
      photos_(request_.files, request_.printDamaged, request_.positions),
      printer_(request_),
      panels_(panels),
      settings_(std::make_shared<PrintSettings>()),
      page_(request_),
      recentPrinters_(QStringLiteral("RecentPrinters"), kRecentNames),
      recentPapers_(QStringLiteral("RecentPaperSizes"), kRecentNames)
{
    // What another program has said of the page is not what was printed with last.
    pageIsUsers_ = request_.document.has_value() || request_.scaling.has_value();
    connect(&photos_, &PhotoLoader::changed, this, &DialogSession::photosChanged);
    connect(&photos_, &PhotoLoader::failed, this, &DialogSession::photoFailed);
    connect(&photos_, &PhotoLoader::damaged, this, &DialogSession::photoDamaged);
    connect(&colours_, &ColourManagement::changed, this, &DialogSession::optionsChanged);
    connect(&colours_, &ColourManagement::changed, this, &DialogSession::coloursKnown);
    connect(&presets_, &Presets::failed, this, &DialogSession::notice);
    connect(&printer_, &PrinterChoice::leaving, this, &DialogSession::leavePrinter);
    connect(&printer_, &PrinterChoice::selected, this, &DialogSession::printerSelected);
    connect(&printer_, &PrinterChoice::notice, this, &DialogSession::notice);
    connect(&printer_, &PrinterChoice::fetched, this, &DialogSession::takePrinter);
    connect(&printer_, &PrinterChoice::offerRead, this, &DialogSession::takeOffer);
}

DialogSession::~DialogSession()
{
    leavePrinter();
}

void DialogSession::start()
{
    printer_.start();
    photos_.start();
}

void DialogSession::setPosition(size_t photo, const QPointF& position)
{
    photos_.setPosition(photo, position);
    Q_EMIT optionsChanged();
}

void DialogSession::settleDamaged(bool print)
{
    std::vector<size_t> whole;
    for (size_t i = 0; i < photos().size(); ++i) {
        if (!photos()[i].isDamaged)
            whole.push_back(i);
    }
    if (!print)
        page_.keepChoice(whole, photos().size());
    photos_.settleDamaged(print);
}

void DialogSession::leavePrinter()
{
    if (hasCustomPanels() || model_)
        Q_EMIT printerLeaving();
    panels_.leave();
    keeper_.reset();
    model_.reset();
    jobOffer_ = {};
    printerDefaults_.clear();
    // New ones, not emptied ones: no value and no lock of the old printer's is left.
    settings_ = std::make_shared<PrintSettings>();
    history_.clear();
    backLinesProblem_.clear();
    presets_.leave();
    filledIn_.clear();
}

void DialogSession::takePrinter(const FetchedPrinter& printer)
{
    const QueuePpd& ppd = printer.ppd;
    if (!printer.model) {
        Q_EMIT printerFailed(ppd.problem);
        return;
    }
    model_ = printer.model;
    model_->setWords([this](const QString& text) { return panels_.localized(text); });
    // Not from the list, which may come later: a panel asks once and remembers.
    panels_.meet(std::make_shared<PanelHost>(*this, std::make_shared<Printer>(printerName(), ppd.deviceUri),
                                             model_->sharedFile(), request_.panelsAskPrinter));
    if (!printer.presets.problem.isEmpty())
        Q_EMIT notice(printer.presets.problem);
    presets_.take(printerName(), model_->file(), printer.presets, printer_.saved());
    presets_.lookForOthers();
    jobOffer_ = ppd.jobs;
    colours_.setQueue(printerName());
    applyOptions(printer);
    model_->setOffer(printer.offer);
    keeper_ = std::make_unique<PaperKeeper>(*model_, *settings_, printer.offer);
    loadPanels();
    Q_EMIT printerReady();
    Q_EMIT optionsChanged();
}

void DialogSession::applyOptions(const FetchedPrinter& printer)
{
    const QMap<QString, QString> byDefault = model_->values();
    printerDefaults_ = halvern::printerDefaults(*model_, printer.ppd.defaults);
    presets_.setPrinterDefaults(printerDefaults_);
    model_->setDefaults(printerDefaults_);
    const std::optional<PresetEntry> preset = startingPreset();
    const StartingOptions start =
        applyGiven(*model_,
                   givenBy(OptionOrigin::queue, printer.ppd.defaults) +
                       givenBy(OptionOrigin::saved, printer_.savedOptions()),
                   preset ? &preset->preset : nullptr, givenBy(OptionOrigin::typed, request_.options));
    takeStartingPage(start.page, preset);
    tellLeftOut(start.leftOut, preset ? preset->title() : QString());
    for (const SettledOption& settled : start.settled)
        rememberStart(settled);
    const AppliedLines lines = applyBackLines(*model_, request_.backLines, printerName());
    for (const QString& refusal : lines.refusals) {
        backLinesProblem_ = refusal;
        Q_EMIT refused(refusal);
    }
    for (const SettledOption& settled : lines.settled)
        rememberStart(settled);
    if (request_.panelsChangeOptions)
        takeLoadedSheet(printer.offer);
    keepJobAttributes();
    storeStart(*model_, byDefault, printer.ppd.jobSheets, *settings_);
    chooseStartingPreset(preset);
}

void DialogSession::takeLoadedSheet(const PrinterOffer& offer)
{
    if (const QString sheet = nameLoadedSheet(*model_, offer); !sheet.isEmpty())
        filledIn_.insert(QStringLiteral("PaperName"), sheet);
}

// What the user has set for the job goes with the job to another printer, as far as that one takes it.
void DialogSession::keepJobAttributes()
{
    for (auto it = jobAttributes_.cbegin(); it != jobAttributes_.cend(); ++it) {
        const QStringList sheets =
            it.key() == QLatin1StringView("job-sheets") ? it->split(QLatin1Char(',')) : QStringList();
        if (std::ranges::all_of(sheets,
                                [this](const QString& name) { return jobOffer_.sheets.contains(name); }))
            model_->restore({{it.key(), it.value()}});
    }
}

void DialogSession::rememberStart(const SettledOption& settled)
{
    history_.endGroup();
    remember(settled.key, settled.before, ChangeOrigin::user, settled.sideChanges);
}

void DialogSession::loadPanels()
{
    const std::optional<QString> bundle =
        ppd::attribute(model_->file(), QString::fromLatin1(kExtensionKeyword));
    if (!bundle || bundle->isEmpty())
        return;
    if (const QString problem = panels_.load(*bundle); !problem.isEmpty())
        Q_EMIT notice(problem);
    // The panel of the papers makes its view soon anyway, and settles on a feed then. Made now, the view
    // shows what is chosen before the papers come.
    panels_.restore(request_.panelsChangeOptions ? kPaperFeed : QString());
}

void DialogSession::setPage(const PageSettings& page)
{
    if (page.scaling != page_.settings().scaling)
        photos_.centre();
    page_.set(page);
    pageIsUsers_ = true;
    Q_EMIT optionsChanged();
}

Look DialogSession::look() const
{
    if (!model_)
        return {};
    const QMap<QString, QString> values = model_->values();
    return {adjust::colorAdjustments(values), adjust::sharpening(values)};
}

int DialogSession::resolution() const
{
    return model_ ? model_->resolution() : kUsualResolution;
}

ChangeResult DialogSession::change(const QString& key, const QVariant& value, NumberReading reading,
                                   ChangeOrigin origin)
{
    const QString before = model_->value(key);
    return accept(key, before, origin, model_->change(key, value, reading));
}

ChangeResult DialogSession::accept(const QString& key, const QString& before, ChangeOrigin origin,
                                   const ChangeResult& result)
{
    if (!result.accepted) {
        Q_EMIT refused(result.refusal);
        return result;
    }
    storeInSettings(key);
    for (const SideChange& side : result.sideChanges) {
        storeInSettings(side.key);
        panels_.tell(side.key, side.choice);
    }
    keeper_->forget(key);
    if (origin == ChangeOrigin::filling)
        filledIn_.insert(key, model_->value(key));
    remember(key, before, origin, result.sideChanges);
    if (origin == ChangeOrigin::user)
        history_.choose(key);
    Q_EMIT optionsChanged();
    return result;
}

void DialogSession::remember(const QString& key, const QString& before, ChangeOrigin origin,
                             const QList<SideChange>& others)
{
    const QString now = model_->value(key);
    const SideChange change{key, before, now, model_->optionText(key), model_->choiceText(key, now)};
    const ChangeHistory::Effect effect = history_.note(change, origin, others);
    if (effect == ChangeHistory::Effect::expired)
        Q_EMIT undoExpired();
    else if (effect == ChangeHistory::Effect::none)
        dropClashingUndo(change, others);
    if (effect != ChangeHistory::Effect::toTell)
        return;
    // Together with what else follows from the same cause.
    panels_.later([this] { tellChanges(); });
}

// What was chosen since may go with what is marked now and not with what was before.
void DialogSession::dropClashingUndo(const SideChange& change, const QList<SideChange>& others)
{
    const QMap<QString, QString>& undo = history_.undo();
    const auto clashes = [&](const SideChange& made) { return model_->wouldClash(made.key, undo); };
    if (undo.isEmpty() || !(clashes(change) || std::ranges::any_of(others, clashes)))
        return;
    history_.expire();
    Q_EMIT undoExpired();
}

void DialogSession::tellChanges()
{
    const ChangeHistory::News news = history_.takeNews();
    switch (news.kind) {
    case ChangeHistory::News::Kind::none:
        break;
    case ChangeHistory::News::Kind::users:
        Q_EMIT otherOptionsChanged(news.changes);
        break;
    case ChangeHistory::News::Kind::corrected:
        Q_EMIT optionsCorrected(news.changes);
        break;
    case ChangeHistory::News::Kind::correctedAgain:
        Q_EMIT undoFailed(news.changes);
        break;
    }
}

void DialogSession::storeInSettings(const QString& key)
{
    settings_->setValue(key, model_->isKept(key) ? QVariant(model_->value(key)) : QVariant(), false);
}

bool DialogSession::changeOption(const QString& key, const QVariant& value)
{
    history_.endGroup();
    if (!model_)
        return false;
    const QString before = model_->value(key);
    if (!accept(key, before, ChangeOrigin::user, model_->choose(key, value, history_.chosen())).accepted)
        return false;
    history_.endGroup();
    panels_.tell(key, model_->value(key));
    return true;
}

PaperRoom DialogSession::chosenPaper() const
{
    if (!model_ || !keeper_)
        return {};
    const QString key = QStringLiteral("PaperName");
    return paperRoom(keeper_->offer(), model_->values(), model_->choiceText(key, model_->value(key)));
}

std::optional<PageMisfit> DialogSession::pageMisfit() const
{
    return model_ && keeper_ ? findMisfit(*model_, keeper_->offer()) : std::nullopt;
}

void DialogSession::setJobAttribute(const QString& name, const QString& value)
{
    jobAttributes_.insert(name, value);
    if (model_)
        changeOption(name, value);
}

void DialogSession::undoLastChange()
{
    const bool isStep = history_.undoesStep();
    const QMap<QString, QString> before = history_.takeUndo();
    if (!model_ || (before.isEmpty() && !isStep))
        return;
    history_.endGroup();
    model_->restore(before);
    for (auto it = before.cbegin(); it != before.cend(); ++it) {
        storeInSettings(it.key());
        panels_.tell(it.key(), it.value());
    }
    if (isStep && presetStep_) {
        page_.set(withoutPreset(page(), presetStep_->after, presetStep_->before));
        if (presets_.chosen().isSame(presetStep_->chosenAfter))
            presets_.choose(presetStep_->chosenBefore);
    }
    presetStep_.reset();
    Q_EMIT optionsChanged();
}

ppd_file_t* DialogSession::hostPpdFile()
{
    return model_ ? model_->file() : nullptr;
}

bool DialogSession::hostWillChange(const QString& key, const QVariant& choice)
{
    if (!model_ || !request_.panelsChangeOptions)
        return false;
    if (!UserAction::isUnderWay())
        return takeProposal(key, choice);
    const ChangeOrigin origin = UserAction::takeProposal() ? ChangeOrigin::user : ChangeOrigin::rule;
    // Panels ask at every keystroke.
    return change(key, choice, NumberReading::leading, origin).accepted;
}

// What a panel changes by itself before it knows its papers is nobody's choice.
bool DialogSession::takeProposal(const QString& key, const QVariant& choice)
{
    const PaperKeeper::Answer answer = keeper_->judge(key, valueText(choice));
    // A panel that proposes something by itself has read its papers, so there may be news of them.
    if (!panels_.isTelling() && request_.panelsAskPrinter)
        printer_.readOfferAgain();
    if (answer == PaperKeeper::Answer::refuse) {
        handBack(key);
        return false;
    }
    const ChangeOrigin origin =
        answer == PaperKeeper::Answer::fillIn ? ChangeOrigin::filling : ChangeOrigin::rule;
    return change(key, choice, NumberReading::leading, origin).accepted;
}

// A panel that corrects a choice does not look at the answer: it is told what stays chosen.
void DialogSession::handBack(const QString& key)
{
    // What it says to that is its last word.
    if (!panels_.isTelling())
        panels_.tell(key, model_->value(key));
}

std::shared_ptr<PageFormat> DialogSession::hostPageFormat()
{
    const std::vector<size_t> pages = chosenPages().pages;
    return model_ ? page_.format(*model_, pages.empty() ? nullptr : &photos()[pages.front()]) : nullptr;
}

void DialogSession::takeOffer(const PrinterOffer& offer)
{
    model_->setOffer(offer);
    const OptionValues overdue = keeper_->takeOffer(offer);
    for (const OptionValue& option : overdue) {
        const ChangeOrigin origin =
            keeper_->isByDefault(option.key) ? ChangeOrigin::filling : ChangeOrigin::rule;
        if (change(option.key, option.value, NumberReading::whole, origin).accepted)
            panels_.tell(option.key, model_->value(option.key));
    }
    Q_EMIT offerChanged();
}

QString DialogSession::whyNotPrintable() const
{
    if (printerName().isEmpty())
        return tr("No printer is chosen. Choose one from the list.");
    if (!model_)
        return tr("Nothing is known of the printer \"%1\" yet. Wait for it, or choose another one.")
            .arg(displayText(printerName()));
    if (!document() && !photos_.isDone())
        return tr("The photos are still being read. Wait a moment.");
    if (!document() && photos().empty())
        return tr("There is no photo to print. Open the dialog with one.");
    const QString problem = chosenPages().problem;
    return problem.isEmpty() ? colourProblem() : problem;
}

QString DialogSession::colourProblem() const
{
    // Another program's document has its colours already.
    return document() ? QString() : colours_.profileFor(page().colours, model_.get()).problem;
}

PdfQuality DialogSession::quality() const
{
    return {resolution(), colours_.planFor(page().colours, model_.get())};
}

JobInputs DialogSession::jobInputs() const
{
    JobInputs inputs{
        {}, settings_->values(), page().copies, int(chosenPages().pages.size()), page().isCollated};
    if (!model_)
        return inputs;
    inputs.values = model_->values();
    const QMap<QString, QString>& kept = model_->kept();
    for (auto it = kept.cbegin(); it != kept.cend(); ++it) {
        // What a panel has saved instead is spelled by the panel.
        if (valueText(inputs.settings.value(it.key(), *it)) == *it)
            inputs.settings.insert(it.key(), model_->jobValue(it.key()));
    }
    if (page().colours.isByDialog && !document()) {
        for (const OptionValue& off : withoutDriverColours(*model_))
            inputs.settings.insert(off.key, off.value);
    }
    return inputs;
}

OptionValues DialogSession::collectOptions()
{
    panels_.save();
    if (keeper_)
        keeper_->settleSaved();
    return mergeJobOptions(jobInputs());
}

void DialogSession::noteUse()
{
    recentPrinters_.use(printerName());
    if (model_)
        recentPapers_.use(model_->value(QStringLiteral("PageSize")));
}

QString DialogSession::jobTitle() const
{
    const ChosenPages chosen = chosenPages();
    if (const QString title = page().title.trimmed(); !title.isEmpty() || chosen.pages.empty())
        return title;
    return QFileInfo(photos()[chosen.pages.front()].path).fileName();
}

std::vector<PageToPrint> DialogSession::pagesToPrint() const
{
    std::vector<PageToPrint> pages;
    for (const size_t place : chosenPages().pages)
        pages.push_back({photos()[place], layoutFor(photos()[place])});
    return pages;
}

PrintRun* DialogSession::makeRun()
{
    std::vector<PageToPrint> pages = pagesToPrint();
    JobRequest job{printerName(), jobTitle(), collectOptions(), model_->secrets()};
    auto* run = new PrintRun(std::move(job), std::move(pages), quality(), this);
    run->setPhotosPerJob(request_.photosPerJob);
    if (request_.remembers)
        rememberWhenSent(run);
    return run;
}

} // namespace halvern
