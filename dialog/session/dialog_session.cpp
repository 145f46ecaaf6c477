// SPDX-License-Identifier: MIT
#include "dialog/session/dialog_session.h"

#include "dialog/options/ppd_keywords.h"
#include "dialog/session/driver_colours.h"
#include "dialog/session/starting_options.h"
#include "platform/foundation/units.h"
#include "platform/printing/print_settings.h"
#include "platform/printing/printer.h"
#include "platform/toolkit/user_action.h"

#include <algorithm>

namespace halvern {

namespace {

constexpr qsizetype kRecentNames = 5;
constexpr char kExtensionKeyword[] = "HalvernDialogExtension";

} // namespace

DialogSession::DialogSession(SessionRequest request, PanelSource& panels, QObject* parent)
    : QObject(parent),
      request_(std::move(request)),
      photos_(request_.files, request_.printDamaged, request_.placements),
      printer_(request_),
      panels_(panels),
      watch_(printer_.list()),
      page_(request_),
      options_(panels_),
      presets_({request_, printer_, panels_, page_, options_}),
      recentPrinters_(QStringLiteral("RecentPrinters"), kRecentNames),
      recentPapers_(QStringLiteral("RecentPaperSizes"), kRecentNames)
{
    // What another program has said of the page is not what was printed with last.
    pageIsUsers_ = request_.document.has_value() || request_.scaling.has_value();
    connect(&photos_, &PhotoLoader::changed, this, &DialogSession::keepReadable);
    connect(&photos_, &PhotoLoader::changed, this, &DialogSession::photosChanged);
    connect(&photos_, &PhotoLoader::failed, this, &DialogSession::photoFailed);
    connect(&photos_, &PhotoLoader::damaged, this, &DialogSession::photoDamaged);
    connect(&colours_, &ColourManagement::changed, this, &DialogSession::optionsChanged);
    connect(&colours_, &ColourManagement::changed, this, &DialogSession::coloursKnown);
    connect(&printer_, &PrinterChoice::leaving, this, &DialogSession::leavePrinter);
    connect(&printer_, &PrinterChoice::selected, this, &DialogSession::printerSelected);
    connect(&printer_, &PrinterChoice::notice, this, &DialogSession::notice);
    connect(&printer_, &PrinterChoice::fetched, this, &DialogSession::takePrinter);
    connect(&watch_, &PrinterWatch::changed, this, &DialogSession::takeReport);
    connect(&printer_, &PrinterChoice::offerRead, this, &DialogSession::takeOffer);
    connect(&presets_, &SessionPresets::notice, this, &DialogSession::notice);
    connect(&presets_, &SessionPresets::refused, this, &DialogSession::refused);
    connect(&presets_, &SessionPresets::pageWanted, this, &DialogSession::setPage);
    connect(&presets_, &SessionPresets::applied, this, &DialogSession::presetApplied);
    tellOptions();
}

void DialogSession::tellOptions()
{
    connect(&options_, &OptionChanges::changed, this, &DialogSession::optionsChanged);
    connect(&options_, &OptionChanges::refused, this, &DialogSession::refused);
    connect(&options_, &OptionChanges::othersChanged, this, &DialogSession::otherOptionsChanged);
    connect(&options_, &OptionChanges::putBackDone, this, &DialogSession::optionsPutBack);
    connect(&options_, &OptionChanges::corrected, this, &DialogSession::optionsCorrected);
    connect(&options_, &OptionChanges::undoFailed, this, &DialogSession::undoFailed);
    connect(&options_, &OptionChanges::undoExpired, this, &DialogSession::undoExpired);
}

DialogSession::~DialogSession()
{
    leavePrinter();
}

void DialogSession::start()
{
    for (const QString& problem : layouts().problems())
        Q_EMIT notice(problem);
    printer_.start();
    photos_.start();
}

bool DialogSession::hasBrokenFiles()
{
    const bool isThere = !damagedFiles().isEmpty() || !unreadableFiles().isEmpty();
    if (isThere && request_.skipBroken)
        settleDamaged(false);
    return isThere && !request_.skipBroken;
}

void DialogSession::settleDamaged(bool print)
{
    std::vector<size_t> whole;
    for (size_t i = 0; i < photos().size(); ++i) {
        if (!photos_.isOpen(photos()[i]))
            whole.push_back(i);
    }
    if (!print)
        page_.keepChoice(whole, photos().size());
    photos_.settleDamaged(print);
}

void DialogSession::leavePrinter()
{
    if (hasCustomPanels() || model())
        Q_EMIT printerLeaving();
    if (model())
        profiles_.insert(printerName(), page().colours.profile);
    panels_.leave();
    options_.leave();
    watch_.leave();
    lastTrays_.clear();
    inUse_.reset();
    jobOffer_ = {};
    backLinesProblem_.clear();
    presets_.leave();
}

void DialogSession::takePrinter(const FetchedPrinter& printer)
{
    const QueuePpd& ppd = printer.ppd;
    // The printer itself is asked for whoever looks on.
    watch_.watch(printerName(), request_.isAttended ? ppd.deviceUri : QString());
    if (!printer.model) {
        Q_EMIT printerFailed(ppd.problem);
        return;
    }
    options_.take(printer.model);
    model()->setWords([this](const QString& text) { return panels_.localized(text); });
    // Not from the list, which may come later: a panel asks once and remembers.
    panels_.meet(std::make_shared<PanelHost>(*this, std::make_shared<Printer>(printerName(), ppd.deviceUri),
                                             model()->sharedFile(), request_.panelsAskPrinter));
    presets_.take(printer);
    jobOffer_ = ppd.jobs;
    colours_.setQueue(printerName());
    applyOptions(printer);
    options_.guard(printer.offer);
    loadPanels();
    Q_EMIT printerReady();
    Q_EMIT optionsChanged();
}

void DialogSession::applyOptions(const FetchedPrinter& printer)
{
    const QMap<QString, QString> byDefault = model()->values();
    const std::optional<PresetEntry> preset = presets_.starting();
    const StartingOptions start =
        applyGiven(*model(),
                   givenBy(OptionOrigin::queue, printer.ppd.defaults) +
                       givenBy(OptionOrigin::saved, printer_.savedOptions()),
                   preset ? &preset->preset : nullptr, givenBy(OptionOrigin::typed, request_.options));
    takeStartingPage(start, preset);
    presets_.tellLeftOut(start.leftOut, preset ? preset->title() : QString());
    for (const SettledOption& settled : start.settled)
        options_.noteStart(settled);
    const AppliedLines lines = applyBackLines(*model(), request_.backLines, printerName());
    for (const QString& refusal : lines.refusals) {
        backLinesProblem_ = refusal;
        Q_EMIT refused(refusal);
    }
    for (const SettledOption& settled : lines.settled)
        options_.noteStart(settled);
    if (request_.panelsChangeOptions)
        options_.takeLoadedSheet(printer.offer);
    keepJobAttributes();
    storeStart(*model(), byDefault, printer.ppd.jobSheets, *options_.settings());
    presets_.chooseStarting(preset);
}

void DialogSession::takeStartingPage(const StartingOptions& start, const std::optional<PresetEntry>& preset)
{
    PageWishes wishes = start.page;
    // What was saved for every job gives way to the layout or the size that was asked for here.
    if (const std::optional<Scaling> saved = scalingOf(wishes.scaling); saved && start.isScalingSaved)
        wishes.scaling = scalingWord(scalingWith(*saved, request_.sheets));
    if (preset && !pageIsUsers_)
        page_.set(startingPage(page_.settings(), preset->preset, request_, wishes));
    // What another program has said of its pages stands.
    PageWishes left = wishes;
    if (request_.document || request_.scaling) {
        left.scaling.clear();
        left.isCollated.reset();
    }
    page_.takeWishes(left);
    takeProfile(preset);
    pageIsUsers_ = pageIsUsers_ || !wishes.scaling.isEmpty() || wishes.isCollated;
    hasStartingPage_ = true;
    keepReadable();
}

// Whoever chose pages by their numbers has counted a file that cannot be read, too.
void DialogSession::keepReadable()
{
    if (hasKeptReadable_ || !hasStartingPage_ || !photos_.isDone())
        return;
    hasKeptReadable_ = true;
    const std::vector<size_t>& gone = photos_.unreadablePlaces();
    const size_t count = photos().size() + gone.size();
    std::vector<size_t> left;
    for (size_t place = 0; place < count; ++place) {
        if (!std::ranges::binary_search(gone, place))
            left.push_back(place);
    }
    if (!gone.empty())
        page_.keepChoice(left, count);
}

// Who converts goes with the user from printer to printer, but a profile is one printer's: its own as long as
// nobody chose one for it, except by the command line.
void DialogSession::takeProfile(const std::optional<PresetEntry>& preset)
{
    PageSettings page = page_.settings();
    const QString profile =
        preset && !request_.namesColours ? profileOf(preset->preset) : request_.colours.profile;
    page.colours.profile = profiles_.value(printerName(), profile);
    page_.set(page);
}

// What the user has set for the job goes with the job to another printer, as far as that one takes it.
void DialogSession::keepJobAttributes()
{
    for (auto it = jobAttributes_.cbegin(); it != jobAttributes_.cend(); ++it) {
        const QStringList sheets =
            it.key() == QLatin1StringView("job-sheets") ? it->split(QLatin1Char(',')) : QStringList();
        if (std::ranges::all_of(sheets,
                                [this](const QString& name) { return jobOffer_.sheets.contains(name); }))
            model()->restore({{it.key(), it.value()}});
    }
}

void DialogSession::loadPanels()
{
    const std::optional<QString> bundle =
        ppd::attribute(model()->file(), QString::fromLatin1(kExtensionKeyword));
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
    page_.set(page);
    pageIsUsers_ = true;
    Q_EMIT optionsChanged();
}

Look DialogSession::look() const
{
    if (!model())
        return {};
    const QMap<QString, QString> values = model()->values();
    return {adjust::colorAdjustments(values), adjust::sharpening(values),
            printsGray(*model()) || colours_.profileFor(page().colours, model()).isGray};
}

int DialogSession::resolution() const
{
    return model() ? model()->resolution() : kUsualResolution;
}

PaperRoom DialogSession::chosenPaper() const
{
    const PaperKeeper* keeper = options_.keeper();
    if (!keeper)
        return {};
    const QString key = QStringLiteral("PaperName");
    return paperRoom(keeper->offer(), model()->values(), model()->choiceText(key, model()->value(key)));
}

std::optional<PageMisfit> DialogSession::pageMisfit() const
{
    const PaperKeeper* keeper = options_.keeper();
    return keeper ? findMisfit(*model(), keeper->offer()) : std::nullopt;
}

void DialogSession::setJobAttribute(const QString& name, const QString& value)
{
    jobAttributes_.insert(name, value);
    if (model())
        changeOption(name, value);
}

ppd_file_t* DialogSession::hostPpdFile()
{
    return model() ? model()->file() : nullptr;
}

bool DialogSession::hostWillChange(const QString& key, const QVariant& choice)
{
    if (!model() || !request_.panelsChangeOptions)
        return false;
    if (!UserAction::isUnderWay()) {
        // A panel that proposes something by itself has read its papers, so there may be news of them.
        if (!panels_.isTelling() && request_.panelsAskPrinter)
            printer_.readOfferAgain();
        return options_.takeProposal(key, choice);
    }
    const ChangeOrigin origin = UserAction::takeProposal() ? ChangeOrigin::user : ChangeOrigin::rule;
    return options_.changeByPanel(key, choice, origin);
}

std::shared_ptr<PageFormat> DialogSession::hostPageFormat()
{
    const std::shared_ptr<const SheetPlan> plan = sheetPlan();
    return model() ? page_.format(*model(), plan->sheets.empty() ? nullptr : &plan->sheets.front()) : nullptr;
}

void DialogSession::takeOffer(const PrinterOffer& offer)
{
    options_.takeOffer(offer);
    Q_EMIT offerChanged();
}

void DialogSession::noteUse()
{
    recentPrinters_.use(printerName());
    if (model())
        recentPapers_.use(model()->value(QStringLiteral("PageSize")));
}

} // namespace halvern
