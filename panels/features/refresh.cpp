// SPDX-License-Identifier: MIT
#include "panels/features/features_panel.h"
#include "panels/features/features_tags.h"
#include "platform/foundation/notifications/notification_bus.h"
#include "platform/maker/refresh_date.h"

#include "platform/foundation/archive/keyed_unarchiver.h"
#include "platform/foundation/description.h"
#include "platform/foundation/log.h"
#include "platform/foundation/notifications/distributed_notification_center.h"
#include "platform/foundation/notifications/notification_center.h"
#include "platform/foundation/threads/run_loop_timer.h"
#include "platform/foundation/threads/work_queue.h"
#include "platform/toolkit/control.h"
#include "platform/toolkit/view_search.h"

#include <QProgressBar>

namespace halvern {

namespace {

const char* const kRefreshClass = "RZFeaturesPDEHalvern";

constexpr int kTimerIntervalMs = 300 * 1000;

// A busy bar has no range. What is stopped neither turns nor shows.
void animate(QProgressBar* indicator, bool running)
{
    if (!indicator)
        return;
    indicator->setRange(0, running ? 0 : 1);
    indicator->setVisible(running);
}

} // namespace

// The double registrations are meant: what carries the matching object arrives twice.
void RZFeaturesPDEHalvern::registerNotifications()
{
    const std::weak_ptr<RZFeaturesPDEHalvern> weak = sharedSelf();
    const auto unload = [weak](const Notification& notification) {
        if (const auto self = weak.lock())
            self->shouldUnload(notification);
    };
    NotificationCenter& local = NotificationCenter::defaultCenter();
    const QString unloading = QStringLiteral("com.halvern.vlx.PDEPluginIsUnloading");
    local.addObserver(this, unloading, pdePluginCallbackObject.get(), unload);
    local.addObserver(this, unloading, nullptr, unload);

    const auto paper = [weak](const DistributedNotification& notification) {
        if (const auto self = weak.lock())
            self->newPaperDict(notification);
    };
    DistributedNotificationCenter& distributed = DistributedNotificationCenter::defaultCenter();
    const QString thisPrinter = printerDeviceURI();
    distributed.addObserver(this, QString::fromLatin1(notification_bus::kPrinterInfoDidUpdate), thisPrinter,
                            [weak](const DistributedNotification& notification) {
                                if (const auto self = weak.lock())
                                    self->printInfoDidChange(notification);
                            });
    const QString paperChanged = QString::fromLatin1(notification_bus::kPrinterPaperDidUpdate);
    distributed.addObserver(this, paperChanged, thisPrinter, paper);
    distributed.addObserver(this, paperChanged, std::nullopt, paper);
}

void RZFeaturesPDEHalvern::startPPDUpdateTimer()
{
    if (ppdUpdateTimer)
        return;
    // The timer does not keep its panel alive; the work that it starts does.
    const std::weak_ptr<RZFeaturesPDEHalvern> weak = sharedSelf();
    const auto timer = RunLoopTimer::scheduled(kTimerIntervalMs, [weak] {
        if (const auto self = weak.lock())
            self->ppdUpdateTimerDidFire();
    });
    ppdUpdateTimer.set(timer);
    timer->fire();
}

void RZFeaturesPDEHalvern::ppdUpdateTimerDidFire()
{
    waitForUpdatePPD();
}

void RZFeaturesPDEHalvern::waitForUpdatePPD()
{
    if (_waitingOnPaper)
        return;
    WorkQueue().async([self = sharedSelf()] { self->checkPrinterData(); });
}

// On the check's own queue.
void RZFeaturesPDEHalvern::checkPrinterData()
{
    if (const std::optional<QDateTime> date = lastUpdateDate()) {
        logLine(QStringLiteral("last paper dict update from printer was %1").arg(descriptionOf(*date)));
        updatePaperDict();
    }
    if (!ppdDataIsStale())
        return;
    _waitingOnPaper = true;
    mainQueue().async([self = sharedSelf()] {
        animate(self->progressIndicator(), true);
        self->showStatusControl(true);
    });
    sendPrinterCommands({QStringLiteral("ReportStatus"), QStringLiteral("AutoConfigure")});
}

std::optional<QDateTime> RZFeaturesPDEHalvern::lastUpdateDate()
{
    const std::optional<QString> stamp = ppdValueForAttribute(QStringLiteral("VLXTimeStamp"));
    std::optional<QDateTime> date;
    if (stamp)
        date = dateOfTimeStamp(*stamp);
    pdelastRefreshTimeUpdateWithDate(date);
    return date;
}

void RZFeaturesPDEHalvern::pdelastRefreshTimeUpdateWithDate(const std::optional<QDateTime>& date)
{
    // Dated now, worded on the main thread, where the translations are.
    const std::optional<QString> text = refreshDateText(date, QDateTime::currentDateTimeUtc());
    mainQueue().async([self = sharedSelf(), never = !date, text] {
        const QString shown =
            never ? self->localized(QStringLiteral("never")) : text.value_or(QStringLiteral("(null)"));
        const QString status =
            self->localized(QStringLiteral("Last updated %@")).replace(QStringLiteral("%@"), shown);
        control::setStringValue(self->view_controlForTag(self->panelView(), features::kStatusTag), status);
    });
}

bool RZFeaturesPDEHalvern::ppdDataIsStale()
{
    const std::optional<QDateTime> date = lastUpdateDate();
    return isRefreshStale(date, QDateTime::currentDateTimeUtc());
}

QProgressBar* RZFeaturesPDEHalvern::progressIndicator()
{
    const QList<QWidget*> children = subviewsOf(_panelView);
    for (QWidget* child : children) {
        if (auto* indicator = qobject_cast<QProgressBar*>(child))
            return indicator;
    }
    return nullptr;
}

void RZFeaturesPDEHalvern::showStatusControl(bool shown)
{
    if (QWidget* status = view_controlForTag(nullptr, features::kStatusTag))
        status->setVisible(shown);
}

void RZFeaturesPDEHalvern::updatePaperDict()
{
    const quint64 number = ++startedReads_;
    const std::optional<QByteArray> data = ppdSavedDataForAttribute(QStringLiteral("VLXPapersKnown"));
    std::shared_ptr<const PaperCatalogue> catalogue;
    if (data && !data->isEmpty()) {
        const KeyedUnarchiver::Result result = KeyedUnarchiver::unarchiveDictionary(*data);
        if (result.root)
            catalogue = std::make_shared<const PaperCatalogue>(*result.root);
    }
    const qsizetype count = catalogue ? catalogue->size() : 0;
    logLine(QStringLiteral("PDE recovered %1 Tessarin Papers").arg(count));
    if (count == 0)
        return;
    lastUpdateDate();
    takeCatalogue(number, catalogue);
}

// Reads run on several queues: one that began earlier and is late does not replace what a later one has
// brought.
void RZFeaturesPDEHalvern::takeCatalogue(quint64 number, std::shared_ptr<const PaperCatalogue> catalogue)
{
    auto newest = std::make_shared<const NumberedCatalogue>(NumberedCatalogue{number, std::move(catalogue)});
    if (!newestRead_.setIf([&](const NumberedCatalogue* held) { return !held || held->number < number; },
                           newest))
        return;
    // Another may come between the decision and the hand-over; whoever hands over last looks again.
    bool isNew = false;
    do {
        newest = newestRead_.get();
        const auto held = unsortedPaper();
        if (held && isSameValue(*held, *newest->catalogue))
            continue;
        setUnsortedPaper(newest->catalogue);
        isNew = true;
    } while (newest != newestRead_.get());
    if (isNew)
        mainQueue().async([self = sharedSelf()] { self->updatePaperInfo(nullptr); });
}

void RZFeaturesPDEHalvern::ppdDidUpdate()
{
    logLine(QStringLiteral("%1 ...").arg(operationName(kRefreshClass, "ppdDidUpdate")));
    stopUpdateCycle();
    updatePaperDict();
    mainQueue().async([self = sharedSelf()] { self->showStatusControl(false); });
}

void RZFeaturesPDEHalvern::ppdUpdateDidAbort()
{
    // The status line stays, with the old time.
    logLine(QStringLiteral("%1 ...").arg(operationName(kRefreshClass, "ppdUpdateDidAbort")));
    stopUpdateCycle();
}

void RZFeaturesPDEHalvern::stopUpdateCycle()
{
    if (const auto timer = ppdUpdateTimer.exchange(nullptr))
        timer->invalidate();
    mainQueue().async([self = sharedSelf()] {
        self->_waitingOnPaper = false;
        animate(self->progressIndicator(), false);
    });
}

void RZFeaturesPDEHalvern::newPaperDict(const DistributedNotification& notification)
{
    logLine(QStringLiteral("entering %1 for %2 with object %3")
                .arg(operationName(kRefreshClass, "newPaperDict:"), notification.name,
                     notification.object.value_or(QStringLiteral("(null)"))));
    // Off the main thread, which a silent server would hold up; in order, so that the second delivery finds
    // what the first has brought.
    paperNews_.async([self = sharedSelf()] { self->updatePaperDict(); });
}

void RZFeaturesPDEHalvern::printInfoDidChange(const DistributedNotification& notification)
{
    didSelectTwoSided(&notification);
}

void RZFeaturesPDEHalvern::shouldUnload(const Notification&)
{
    logLine(QStringLiteral("got notification to unload "));
    pdePluginDidUnload = true;
    stopUpdateCycle();
}

std::shared_ptr<RZFeaturesPDEHalvern> RZFeaturesPDEHalvern::sharedSelf()
{
    return std::static_pointer_cast<RZFeaturesPDEHalvern>(shared_from_this());
}

} // namespace halvern
