#include "dialog/session/dialog_session.h"

#include "dialog/options/back_lines.h"
#include "platform/foundation/threads/work_queue.h"
#include "platform/printing/page_format.h"
#include "platform/printing/print_settings.h"
#include "platform/printing/printer.h"
#include "platform/toolkit/user_action.h"

#include <QFileInfo>
#include <QPointer>
#include <QScopedValueRollback>

#include <algorithm>

namespace halvern {

using ppd_lookup::NumberReading;

namespace {

constexpr int kUsualResolution = 300;
constexpr char kExtensionKeyword[] = "HalvernDialogExtension";
const QString kPaperFeed = QStringLiteral("PaperFeed");

PrinterOffer offerOf(const QueuePpd& ppd)
{
    return ppd.file && *ppd.file ? readPrinterOffer(ppd.file->get()) : PrinterOffer();
}

PageRect toPageRect(const QRectF& rect)
{
    return {rect.top(), rect.left(), rect.bottom(), rect.right()};
}

} // namespace

DialogSession::DialogSession(SessionRequest request, PanelSource& panels, QObject* parent)
    : QObject(parent),
      request_(std::move(request)),
      panelSource_(panels),
      saved_(readSavedOptions()),
      printers_(new PrinterList(this)),
      settings_(std::make_shared<PrintSettings>()),
      stopFetching_(cups::makeCancelFlag()),
      stopAll_(cups::makeCancelFlag())
{
    page_.copies = request_.copies;
    filesLeft_ = int(request_.files.size());
    connect(printers_, &PrinterList::changed, this, &DialogSession::takePrinters);
}

DialogSession::~DialogSession()
{
    stopAll_->store(true);
    leavePrinter();
}

void DialogSession::start()
{
    printers_->start();
    // A known name need not wait for the list.
    startedWith_ = request_.printer.isEmpty() ? saved_.defaultPrinter : request_.printer;
    if (!startedWith_.isEmpty())
        selectPrinter(queueOf(startedWith_));
    QPointer<DialogSession> self(this);
    const WorkQueue queue;
    for (const QString& path : request_.files) {
        queue.async([self, path, stop = stopAll_] {
            if (stop->load())
                return;
            PhotoFile file = readPhotoFile(path);
            mainQueue().async([self, file = std::move(file)] {
                if (self)
                    self->takePhotoFile(file);
            });
        });
    }
}

void DialogSession::takePhotoFile(const PhotoFile& file)
{
    --filesLeft_;
    photos_.insert(photos_.end(), file.pages.begin(), file.pages.end());
    if (!file.problem.isEmpty() && file.pages.empty()) {
        Q_EMIT photoFailed(file.problem);
    } else if (!file.problem.isEmpty()) {
        if (!request_.printDamaged)
            damagedFiles_.append(file.problem);
        Q_EMIT photoDamaged(file.problem);
    }
    Q_EMIT photosChanged();
}

void DialogSession::setPosition(size_t photo, const QPointF& position)
{
    if (photo < photos_.size())
        photos_[photo].position = position;
    Q_EMIT optionsChanged();
}

void DialogSession::settleDamaged(bool print)
{
    damagedFiles_.clear();
    if (!print) {
        std::erase_if(photos_, [](const Photo& photo) { return photo.isDamaged; });
        Q_EMIT photosChanged();
    }
}

void DialogSession::takePrinters()
{
    const bool isLost = request_.printer.isEmpty() && request_.replacesLostDefault && !model_ &&
                        printerName_ == queueOf(startedWith_) && !printers_->find(printerName_);
    if ((!printerName_.isEmpty() && !isLost) || printers_->printers().empty())
        return;
    const QString lost = printerName_;
    const QString standard = printers_->serverDefault();
    selectPrinter(printers_->find(standard) ? standard : printers_->printers().front().name);
    if (!lost.isEmpty())
        Q_EMIT notice(
            tr("Your default printer \"%1\" is none of the print server's. \"%2\" was chosen instead.")
                .arg(lost, printerName_));
}

void DialogSession::selectPrinter(const QString& name)
{
    if (name == printerName_ && model_)
        return;
    stopFetching_->store(true);
    leavePrinter();
    printerName_ = name;
    stopFetching_ = cups::makeCancelFlag();
    Q_EMIT printerSelected(name);
    const PrinterInfo* info = printers_->find(name);
    const QString newQueueUri = info && info->isDiscovered ? info->deviceUri : QString();
    QPointer<DialogSession> self(this);
    WorkQueue().async([self, name, newQueueUri, stop = stopFetching_] {
        QueuePpd ppd;
        if (!newQueueUri.isEmpty())
            ppd.problem = createLocalQueue(name, newQueueUri, stop);
        if (ppd.problem.isEmpty())
            ppd = fetchQueuePpd(name, stop);
        // Here, because a PPD may have ten thousand options.
        auto model = ppd.file ? std::make_shared<PpdModel>(std::move(*ppd.file)) : nullptr;
        const PrinterOffer offer = model ? readPrinterOffer(model->file()) : PrinterOffer();
        mainQueue().async([self, name, offer, ppd = std::move(ppd), model = std::move(model), stop] {
            if (self && !stop->load())
                self->takePpd(name, ppd, model, offer);
        });
    });
}

void DialogSession::leavePrinter()
{
    if (!panels_.empty() || model_)
        Q_EMIT printerLeaving();
    // Nothing is asked of the printer any more, and what is asked is taken back, before it is out of reach.
    for (const std::shared_ptr<Panel>& panel : PanelList(panels_))
        panel->shouldHide();
    if (host_)
        host_->detach();
    panels_.clear();
    host_.reset();
    keeper_.reset();
    model_.reset();
    // New ones, not emptied ones: no value and no lock of the old printer's is left.
    settings_ = std::make_shared<PrintSettings>();
    history_.clear();
    undone_.clear();
    isReadingOffer_ = readsOfferAgain_ = false;
    backLinesProblem_.clear();
}

void DialogSession::takePpd(const QString& name, const QueuePpd& ppd, std::shared_ptr<PpdModel> model,
                            const PrinterOffer& offer)
{
    if (!model) {
        Q_EMIT printerFailed(ppd.problem);
        return;
    }
    model_ = std::move(model);
    model_->setWords([this](const QString& text) {
        return panels_.empty() ? text : panelSource_.localized(bundleName_, text);
    });
    // Not from the list, which may come later: a panel asks once and remembers.
    host_ = std::make_shared<PanelHost>(*this, std::make_shared<Printer>(name, ppd.deviceUri),
                                        model_->sharedFile(), request_.panelsAskPrinter);
    applyOptions(ppd.defaults, ppd.jobSheets);
    keeper_ = std::make_unique<PaperKeeper>(*model_, *settings_, offer);
    loadPanels();
    Q_EMIT printerReady();
    Q_EMIT optionsChanged();
}

void DialogSession::applyOptions(const OptionValues& queueDefaults, const QString& queueJobSheets)
{
    const QMap<QString, QString> byDefault = model_->values();
    const QString savedFor = printerName_ == queueOf(startedWith_) ? startedWith_ : printerName_;
    const UnderstoodOptions given =
        understand(model_->file(), givenBy(OptionOrigin::queue, queueDefaults) +
                                       givenBy(OptionOrigin::saved, saved_.optionsOf(savedFor)) +
                                       givenBy(OptionOrigin::typed, request_.options));
    takeWishes(given.page);
    const ApplyResult result = model_->apply(given.options);
    for (const LeftOut& left : given.leftOut + result.leftOut) {
        if (left.origin == OptionOrigin::typed)
            Q_EMIT refused(left.sentence);
        else
            Q_EMIT notice(tr("A saved setting was left out. %1").arg(left.sentence));
    }
    for (const SettledOption& settled : result.settled) {
        history_.endGroup();
        remember(settled.key, settled.before, ChangeOrigin::user, settled.sideChanges);
    }
    applyBackLines();
    // What the queue would add by itself is the panels' to see and to change.
    if (!queueJobSheets.isEmpty())
        settings_->setValue(QStringLiteral("job-sheets"), queueJobSheets, false);
    // A panel that looks at the settings only, and not at the marks, must find what was chosen before it
    // came: it would save the PPD's default over it.
    const QMap<QString, QString> values = model_->values();
    for (auto it = values.cbegin(); it != values.cend(); ++it) {
        if (model_->isKept(it.key()) || byDefault.value(it.key()) != it.value())
            settings_->setValue(it.key(), it.value(), false);
    }
}

// Once: what the user sets afterwards is not taken back by the next printer.
void DialogSession::takeWishes(const PageWishes& wishes)
{
    if (std::exchange(hasTakenWishes_, true))
        return;
    if (wishes.scaling == QLatin1StringView("fill"))
        page_.scaling = Scaling::fill;
    else if (wishes.scaling == QLatin1StringView("none"))
        page_.scaling = Scaling::actualSize;
    page_.isCollated = wishes.isCollated.value_or(page_.isCollated);
}

void DialogSession::applyBackLines()
{
    for (int number = 1; number <= request_.backLines.size(); ++number) {
        if (model_->value(backLineSwitch(number)).isEmpty()) {
            backLinesProblem_ = tr("The printer \"%1\" prints no text on the back of a picture. Leave "
                                   "--backprint out, or choose another printer.")
                                    .arg(printerName_);
            Q_EMIT refused(backLinesProblem_);
            return;
        }
    }
    for (const OptionValue& option : backLineOptions(request_.backLines)) {
        const QString before = model_->value(option.key);
        const ChangeResult result = model_->change(option.key, option.value);
        if (!result.accepted) {
            backLinesProblem_ = result.refusal;
            Q_EMIT refused(result.refusal);
        }
        history_.endGroup();
        remember(option.key, before, ChangeOrigin::user, result.sideChanges);
    }
}

void DialogSession::loadPanels()
{
    const std::optional<QString> bundle =
        ppd::attribute(model_->file(), QString::fromLatin1(kExtensionKeyword));
    if (!bundle || bundle->isEmpty())
        return;
    QString problem;
    bundleName_ = *bundle;
    panels_ = panelSource_.panels(*bundle, host_, &problem);
    if (!problem.isEmpty())
        Q_EMIT notice(problem);
    // A restoring panel may ask for changes, which walk this list.
    const PanelList restoring = panels_;
    for (const std::shared_ptr<Panel>& panel : restoring) {
        // The panel of the papers makes its view soon anyway, and settles on a feed then. Made now, the view
        // shows what is chosen before the papers come.
        if (request_.panelsChangeOptions && panel->supportedPPDOptionKeys().contains(kPaperFeed))
            panel->panelView();
        panel->restoreValuesAndReturnError(nullptr);
    }
}

void DialogSession::setPage(const PageSettings& page)
{
    if (page.scaling != page_.scaling) {
        for (Photo& photo : photos_)
            photo.position = Photo().position;
    }
    page_ = page;
    Q_EMIT optionsChanged();
}

PageLayout DialogSession::layoutFor(const Photo& photo) const
{
    SheetGeometry sheet{QSizeF(595.28, 841.89), QRectF(0.0, 0.0, 595.28, 841.89)};
    if (model_)
        sheet = model_->sheet();
    return layOut({sheet.paper, sheet.imageable, photo.ownSize, page_.scaling, page_.turn, photo.position});
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
    ChangeResult result = model_->change(key, value, reading);
    if (!result.accepted) {
        Q_EMIT refused(result.refusal);
        return result;
    }
    storeInSettings(key);
    for (const SideChange& side : result.sideChanges) {
        storeInSettings(side.key);
        tellPanels(side.key, side.choice);
    }
    keeper_->forget(key);
    if (origin == ChangeOrigin::user)
        undone_.remove(key);
    remember(key, before, origin, result.sideChanges);
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
    if (effect != ChangeHistory::Effect::toTell)
        return;
    // Together with what else follows from the same cause.
    QPointer<DialogSession> self(this);
    mainQueue().async([self, host = host_] {
        if (self && self->host_ == host)
            self->tellChanges();
    });
}

void DialogSession::tellChanges()
{
    const QList<SideChange> changes = history_.takeTold();
    history_.endGroup();
    if (changes.isEmpty())
        return;
    const bool wasUndone = std::ranges::all_of(changes, [this](const SideChange& change) {
        return undone_.contains(change.key) && undone_.value(change.key) == change.before;
    });
    if (history_.isUsers()) {
        Q_EMIT otherOptionsChanged(changes);
    } else if (wasUndone) {
        history_.takeUndo();
        Q_EMIT undoFailed(changes);
    } else {
        Q_EMIT optionsCorrected(changes);
    }
}

void DialogSession::storeInSettings(const QString& key)
{
    settings_->setValue(key, model_->isKept(key) ? QVariant(model_->value(key)) : QVariant(), false);
}

void DialogSession::tellPanels(const QString& key, const QString& choice)
{
    // Later, because a panel that asked for the change stores its own choice only after our answer.
    QPointer<DialogSession> self(this);
    mainQueue().async([self, host = host_, key, choice] {
        if (!self || self->host_ != host)
            return;
        const QScopedValueRollback<bool> telling(self->isTellingPanels_, true);
        const PanelList told = self->panels_;
        for (const std::shared_ptr<Panel>& panel : told)
            panel->PPDOptionKeyValueDidChange_ppdChoice(key, choice);
    });
}

bool DialogSession::changeOption(const QString& key, const QVariant& value)
{
    history_.endGroup();
    if (!model_ || !change(key, value, NumberReading::whole, ChangeOrigin::user).accepted)
        return false;
    history_.endGroup();
    tellPanels(key, model_->value(key));
    return true;
}

std::optional<PageMisfit> DialogSession::pageMisfit() const
{
    return model_ && keeper_ ? findMisfit(*model_, keeper_->offer()) : std::nullopt;
}

void DialogSession::undoLastChange()
{
    const QMap<QString, QString> before = history_.takeUndo();
    if (!model_ || before.isEmpty())
        return;
    history_.endGroup();
    undone_ = before;
    model_->restore(before);
    for (auto it = before.cbegin(); it != before.cend(); ++it) {
        storeInSettings(it.key());
        tellPanels(it.key(), it.value());
    }
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
    readOfferAgain();
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
    if (!isTellingPanels_)
        tellPanels(key, model_->value(key));
}

std::shared_ptr<PageFormat> DialogSession::hostPageFormat()
{
    if (!model_)
        return nullptr;
    const SheetGeometry sheet = model_->sheet();
    const bool turned =
        photos_.empty() ? page_.turn == PageTurn::landscape : layoutFor(photos_.front()).turned;
    return std::make_shared<PageFormat>(toPageRect(QRectF(QPointF(), sheet.paper)),
                                        toPageRect(sheet.imageable),
                                        turned ? PageOrientation::landscape : PageOrientation::portrait);
}

// A panel that proposes something by itself has read its papers, so there may be news of them.
void DialogSession::readOfferAgain()
{
    if (isTellingPanels_ || !request_.panelsAskPrinter)
        return;
    if (isReadingOffer_) {
        readsOfferAgain_ = true;
        return;
    }
    isReadingOffer_ = true;
    QPointer<DialogSession> self(this);
    WorkQueue().async([self, name = printerName_, host = host_, stop = stopFetching_] {
        const QueuePpd ppd = fetchQueuePpd(name, stop);
        mainQueue().async([self, host, offer = offerOf(ppd), isThere = ppd.file != nullptr] {
            if (!self || self->host_ != host)
                return;
            self->isReadingOffer_ = false;
            if (isThere) {
                self->correct(self->keeper_->takeOffer(offer));
                Q_EMIT self->offerChanged();
            }
            if (std::exchange(self->readsOfferAgain_, false))
                self->readOfferAgain();
        });
    });
}

void DialogSession::correct(const OptionValues& overdue)
{
    for (const OptionValue& option : overdue) {
        if (change(option.key, option.value, NumberReading::whole, ChangeOrigin::rule).accepted)
            tellPanels(option.key, model_->value(option.key));
    }
}

bool DialogSession::canPrint() const
{
    return model_ && filesLeft_ == 0 && !photos_.empty();
}

OptionValues DialogSession::collectOptions()
{
    const PanelList saving = panels_;
    for (const std::shared_ptr<Panel>& panel : saving)
        panel->saveValuesAndReturnError(nullptr);
    // A name that the panels were not shown cannot have been changed by them.
    if (keeper_)
        keeper_->showSheetName();
    return mergeJobOptions({model_ ? model_->values() : QMap<QString, QString>(), settings_->values(),
                            page_.copies, int(photos_.size()), page_.isCollated});
}

PrintRun* DialogSession::makeRun()
{
    JobRequest job{printerName_, QFileInfo(photos_.front().path).fileName(), collectOptions()};
    std::vector<PageToPrint> pages;
    for (const Photo& photo : photos_)
        pages.push_back({photo, layoutFor(photo)});
    return new PrintRun(std::move(job), std::move(pages), model_->resolution(), this);
}

} // namespace halvern
