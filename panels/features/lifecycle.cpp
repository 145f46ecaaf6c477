// SPDX-License-Identifier: MIT
#include "panels/features/features_panel.h"
#include "panels/features/features_tags.h"

#include "platform/foundation/description.h"
#include "platform/foundation/log.h"
#include "platform/foundation/notifications/distributed_notification_center.h"
#include "platform/foundation/threads/run_loop_timer.h"
#include "platform/plugin_api/host_callback.h"
#include "platform/printing/ppd.h"
#include "platform/printing/print_settings.h"
#include "platform/toolkit/control.h"
#include "platform/toolkit/matrix.h"
#include "platform/toolkit/plain_text.h"
#include "platform/toolkit/stepper.h"
#include "platform/toolkit/table_markup.h"

#include <QComboBox>
#include <QLabel>
#include <QRadioButton>

#include <array>

namespace halvern {

namespace {

// What the host does not carry into the job by itself.
constexpr std::array<QLatin1StringView, 3> kSavedKeys{
    QLatin1StringView("PaperName"), QLatin1StringView("BindingWidth"), QLatin1StringView("Overspill")};

QString twoColumns(const QStringList& entries)
{
    const qsizetype rows = (entries.size() + 1) / 2;
    QString table;
    for (qsizetype row = 0; row < rows; ++row)
        table += rowMarkup({QStringLiteral("<td>%1</td>").arg(entries[row]),
                            QStringLiteral("<td width='14'></td>"),
                            QStringLiteral("<td>%1</td>").arg(entries.value(row + rows))});
    return tableMarkup(table);
}

} // namespace

void RZFeaturesPDEHalvern::logEnteredSelf(const char* operation) const
{
    logLine(QStringLiteral("entered %1 in (self) %2").arg(QLatin1StringView(operation), className()));
}

bool RZFeaturesPDEHalvern::initWithCallback(const std::shared_ptr<HostCallback>& callback)
{
    if (!KSTRVLBasePDEHalvern::initWithCallback(callback))
        return false;
    logLine(QString::asprintf("initializing the printer features object with cb <HostCallback: %p>",
                              static_cast<const void*>(callback.get())));
    registerNotifications();
    paperDict.set(nullptr);
    _sortedPaper.reset();
    sortedPaperText_.reset();
    ppdUpdateTimer.set(nullptr);
    _waitingOnPaper = false;
    _firstRun = false;
    startPPDUpdateTimer();
    restoreValuesAndReturnError(nullptr);
    return true;
}

void RZFeaturesPDEHalvern::dealloc()
{
    logEnteredSelf("dealloc");
    // Delayed requests hold the panel, so none is left by now.
    DistributedNotificationCenter::defaultCenter().removeObserver(this);
    if (const auto timer = ppdUpdateTimer.exchange(nullptr))
        timer->invalidate();
    _sortedPaper.reset();
    sortedPaperText_.reset();
    paperDict.set(nullptr);
    KSTRVLBasePDEHalvern::dealloc();
}

void RZFeaturesPDEHalvern::willShow()
{
    logEnteredSelf("willShow");
    startPPDUpdateTimer();
    speakString(QStringLiteral("Choose the Tessarin paper and printing opp-shuns."));
    KSTRVLBasePDEHalvern::willShow();
}

bool RZFeaturesPDEHalvern::shouldHide()
{
    const QString name = className();
    logLine(QStringLiteral("entering %1 %2 ").arg(name, operationName("RZFeaturesPDEHalvern", "shouldHide")));
    stopUpdateCycle();
    return KSTRVLBasePDEHalvern::shouldHide();
}

void RZFeaturesPDEHalvern::printWindowWillClose(bool printing)
{
    logEnteredSelf("printWindowWillClose:");
    stopUpdateCycle();
    KSTRVLBasePDEHalvern::printWindowWillClose(printing);
}

QWidget* RZFeaturesPDEHalvern::panelView()
{
    if (_panelView)
        return _panelView;
    if (!KSTRVLBasePDEHalvern::panelView())
        return nullptr;
    QComboBox* resolutions = popup(features::kResolutionTag);
    for (int i = 0; resolutions && i < resolutions->count(); ++i)
        control::setItemTag(resolutions, i, features::kResolutionTag);
    setAvailable(features::kToneTag, true, nullptr);
    // The menus enable no item by themselves: what the rules below say stands.
    takeStepperRanges();
    showSurfaceLegend();
    updatePaperUI();
    return _panelView;
}

// A stepper goes no further than what the printer takes.
void RZFeaturesPDEHalvern::takeStepperRanges()
{
    for (const int tag : {features::kOverspillStepperTag, features::kBindingWidthStepperTag}) {
        auto* stepper = qobject_cast<Stepper*>(view_controlForTag(nullptr, tag));
        const auto range = ppd::customRange(ppd, ppdOptionKeyForTag(tag).value_or(QString()));
        if (!stepper || !range)
            continue;
        stepper->setMinimumValue(range->minimum);
        stepper->setMaximumValue(range->maximum);
    }
}

// The surface buttons show codes; what they mean is the PPD's to say.
void RZFeaturesPDEHalvern::showSurfaceLegend()
{
    const auto* matrix = qobject_cast<const Matrix*>(view_controlForTag(nullptr, features::kSurfaceTag));
    auto* legend = _panelView->findChild<QLabel*>(QStringLiteral("surfaceLegend"));
    const auto choices = ppd::choices(ppd, QStringLiteral("PaperSurface"));
    if (!matrix || !legend || !choices)
        return;
    QStringList entries;
    for (const ppd::Choice& choice : *choices) {
        if (choice.text == choice.keyword)
            continue;
        const QString meaning = localized(choice.text);
        entries.append(markupText(meaning));
        for (QRadioButton* cell : matrix->cells()) {
            if (cell->text() == choice.keyword)
                setPlainName(cell, meaning);
        }
    }
    if (entries.isEmpty())
        return;
    setMarkup(legend, twoColumns(entries));
}

bool RZFeaturesPDEHalvern::saveValuesAndReturnError(PanelError*)
{
    const auto settings = pdePluginCallbackObject ? pdePluginCallbackObject->printSettings() : nullptr;
    if (!settings || !useConstraintHandling)
        return true;
    for (const QLatin1StringView savedKey : kSavedKeys) {
        const QString key = savedKey;
        const QVariant choice = storedChoice(key);
        const int status = choice.isValid() ? settings->setValue(key, choice, false) : kPrintingOk;
        if (status != kPrintingOk) {
            logLine(QStringLiteral("PDE got an error %1 setting the value for %2 !")
                        .arg(QString::number(status), key));
        }
    }
    return true;
}

bool RZFeaturesPDEHalvern::restoreValuesAndReturnError(PanelError* error)
{
    const bool restored = KSTRVLBasePDEHalvern::restoreValuesAndReturnError(error);
    // The host still has the name that is gone: what is stored is what is shown. A name that was chosen since
    // then is another matter.
    const QString name = descriptionOf(storedChoice(QStringLiteral("PaperName")));
    if (namePutInPlace_.isValid() && _sortedPaper && !_sortedPaper->names.contains(name)) {
        setChoice_forKey(namePutInPlace_, QStringLiteral("PaperName"));
        updateUI();
    }
    didSelectNewPaper(nullptr);
    setDuplexAvailable();
    didSelectTwoSided(nullptr);
    return restored;
}

} // namespace halvern
