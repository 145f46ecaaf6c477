// SPDX-License-Identifier: MIT
#include "panels/backprint/backprint_panel.h"

#include "panel_base/option_tags.h"
#include "panels/backprint/back_preview.h"
#include "panels/backprint/backprint_tags.h"
#include "panels/backprint/line_watcher.h"
#include "platform/foundation/log.h"
#include "platform/foundation/notifications/notification_center.h"
#include "platform/maker/backprint_text.h"
#include "platform/plugin_api/host_callback.h"
#include "platform/printing/page_format.h"
#include "platform/printing/print_settings.h"
#include "platform/toolkit/plain_text.h"

#include <QApplication>
#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QVBoxLayout>

#include <array>

namespace halvern {

namespace {

constexpr std::array<TaggedOption, 5> kOptions{{
    {"CVP1", backprint::kLine1},
    {"CVP2", backprint::kLine2},
    {"EnableCVP1", backprint::kToggleLine1},
    {"EnableCVP2", backprint::kToggleLine2},
    {"DebugLog", backprint::kToggleDebugLog},
}};

constexpr char kUnloadNotification[] = "com.halvern.vlx.PDEPluginIsUnloading";
constexpr char kPrompt[] = "Enter up to two lines of text to appear on the back side of the picture.";

QString remaining(const QString& format, qsizetype length)
{
    return format.arg(qMax<qsizetype>(0, backprint::kLongestLine - length));
}

QSizeF uprightSheet(const std::shared_ptr<HostCallback>& host)
{
    const std::shared_ptr<PageFormat> format = host ? host->pageFormat() : nullptr;
    PageRect rect;
    if (!format || format->getUnadjustedPaperRect(rect) != kPrintingOk)
        return {};
    return {rect.right - rect.left, rect.bottom - rect.top};
}

} // namespace

bool RZBackprintPDEHalvern::initWithCallback(const std::shared_ptr<HostCallback>& callback)
{
    if (!KSTRVLBasePDEHalvern::initWithCallback(callback))
        return false;
    safeSet = backprint::safeCharacters();
    lastResponder.clear();
    // What was restored, or the default, is in the settings from the start.
    restoreValuesAndReturnError(nullptr);
    saveValuesAndReturnError(nullptr);
    return true;
}

void RZBackprintPDEHalvern::dealloc()
{
    stopFollowingFocus();
    NotificationCenter::defaultCenter().post(QString::fromLatin1(kUnloadNotification),
                                             pdePluginCallbackObject.get());
    safeSet = nullptr;
    KSTRVLBasePDEHalvern::dealloc();
}

QStringList RZBackprintPDEHalvern::supportedPPDOptionKeys()
{
    if (!cachedSupportedPPDOptionKeys)
        cachedSupportedPPDOptionKeys = keysOf(kOptions);
    return *cachedSupportedPPDOptionKeys;
}

std::optional<QString> RZBackprintPDEHalvern::nibName()
{
    return QStringLiteral("TessarinCVP");
}

std::optional<QString> RZBackprintPDEHalvern::panelName()
{
    if (!thePDEName)
        thePDEName = localized(QStringLiteral("Backprint"));
    return thePDEName;
}

std::optional<QString> RZBackprintPDEHalvern::panelKind()
{
    return QStringLiteral("com.halvern.print.pde.cvp");
}

std::optional<QString> RZBackprintPDEHalvern::ppdOptionKeyForTag(int tag)
{
    return keyForTag(kOptions, tag);
}

void RZBackprintPDEHalvern::enableCustom()
{
    BackPreview* preview = nullptr;
    if (auto* holder = _panelView->findChild<QWidget*>(QStringLiteral("previewHolder"))) {
        auto* layout = new QVBoxLayout(holder);
        layout->setContentsMargins(0, 0, 0, 0);
        const auto sheet = [host = std::weak_ptr(pdePluginCallbackObject)] {
            return uprightSheet(host.lock());
        };
        preview = new BackPreview(
            sheet, localized(QStringLiteral("Nothing is printed on the back.")),
            localized(QStringLiteral("So long a line is printed in very small letters.")), holder);
        setPlainName(preview, localized(QStringLiteral("Preview of the back of the picture")));
        layout->addWidget(preview);
    }
    setUpLine(backprint::kLine1, backprint::kToggleLine1, preview);
    setUpLine(backprint::kLine2, backprint::kToggleLine2, preview);
}

// What a line shows beside itself follows its widgets, whoever changes them.
void RZBackprintPDEHalvern::setUpLine(int number, int toggleTag, BackPreview* preview)
{
    auto* field = qobject_cast<QLineEdit*>(view_controlForTag(nullptr, number));
    auto* toggle = qobject_cast<QAbstractButton*>(view_controlForTag(nullptr, toggleTag));
    auto* count = _panelView->findChild<QLabel*>(QStringLiteral("count%1").arg(number));
    if (!field || !toggle)
        return;
    const QString format = localized(QStringLiteral("%1 left"));
    const auto show = [=] {
        if (count)
            setPlainText(count, remaining(format, field->text().size()));
        if (preview)
            preview->setLine(number - 1, toggle->isChecked() ? field->text() : QString());
    };
    QObject::connect(field, &QLineEdit::textChanged, field, show);
    QObject::connect(toggle, &QAbstractButton::toggled, field, show);
    if (count)
        count->setMinimumWidth(count->fontMetrics().horizontalAdvance(remaining(format, 0)));
    show();
    const auto self = std::static_pointer_cast<RZBackprintPDEHalvern>(shared_from_this());
    const std::weak_ptr<RZBackprintPDEHalvern> weak = self;
    new LineWatcher(
        field, [weak] { return weak.lock(); },
        [weak, field] {
            if (const auto panel = weak.lock())
                panel->controlTextDidChange(field);
        });
}

void RZBackprintPDEHalvern::willShow()
{
    speakString(QString::fromLatin1(kPrompt));
    logLine(QStringLiteral("will show backprint"));
    stopFollowingFocus();
    const auto self = std::static_pointer_cast<RZBackprintPDEHalvern>(shared_from_this());
    focusObservation = QObject::connect(
        qApp, &QApplication::focusChanged, qApp, [weak = std::weak_ptr(self)](QWidget* old, QWidget*) {
            if (const auto panel = weak.lock(); panel && old)
                panel->observeValueForKeyPath_ofObject_change_context(
                    QStringLiteral("firstResponder"), old->window(), old,
                    QStringLiteral("com.halvern.pde.backprint.firstResponder"));
        });
}

bool RZBackprintPDEHalvern::shouldHide()
{
    logLine(QStringLiteral("entering %1 %2 ")
                .arg(className(), operationName("RZBackprintPDEHalvern", "shouldHide")));
    stopFollowingFocus();
    return true;
}

void RZBackprintPDEHalvern::stopFollowingFocus()
{
    QObject::disconnect(focusObservation);
}

} // namespace halvern
