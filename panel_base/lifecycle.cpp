// SPDX-License-Identifier: MIT
#include "panel_base/base_panel.h"

#include "panel_base/broken_pipe.h"
#include "platform/foundation/bundle.h"
#include "platform/foundation/log.h"
#include "platform/foundation/notifications/notification_center.h"
#include "platform/foundation/threads/semaphore.h"
#include "platform/foundation/threads/work_queue.h"
#include "platform/plugin_api/host_callback.h"
#include "platform/printing/ppd.h"
#include "platform/printing/print_session.h"
#include "platform/toolkit/control.h"
#include "platform/toolkit/help_viewer.h"
#include "platform/toolkit/layout_loader.h"

#include <QWidget>

#include <cxxabi.h>

#include <cstdlib>
#include <typeinfo>

namespace halvern {

KSTRVLBasePDEHalvern::KSTRVLBasePDEHalvern() = default;

KSTRVLBasePDEHalvern::~KSTRVLBasePDEHalvern() = default;

QString KSTRVLBasePDEHalvern::className() const
{
    int status = 0;
    const std::unique_ptr<char, decltype(&std::free)> name(
        abi::__cxa_demangle(typeid(*this).name(), nullptr, nullptr, &status), &std::free);
    return QString::fromUtf8(name.get()).section(QStringLiteral("::"), -1);
}

void KSTRVLBasePDEHalvern::logEntered(const char* operation) const
{
    logLine(QStringLiteral("entered %1 in %2").arg(QLatin1StringView(operation), className()));
}

bool KSTRVLBasePDEHalvern::initWithCallback(const std::shared_ptr<HostCallback>& callback)
{
    if (!installBrokenPipeHandler())
        logLine(QStringLiteral("error registering for SIGPIPE handler\n"));
    pdePluginDidUnload = false;
    _panelView.clear();
    cachedSupportedPPDOptionKeys.reset();
    choiceDict.emplace();
    // The key list is settled now, while nothing but the class is known.
    supportedPPDOptionKeys();
    thePDEName.reset();
    ppd = nullptr;
    streamIN = nullptr;
    streamERR = nullptr;
    task = nullptr;
    deviceURI.set(nullptr);
    pdeUnloadSemaphore.set(nullptr);
    pdePluginCallbackObject = callback;
    // The vtable of the object's own class lies in the module that defines it.
    pdeBundle = Bundle::bundleContaining(*reinterpret_cast<const void* const*>(this));
    useConstraintHandling = callback && callback->respondsToWillChangePPDOptionKeyValue();
    if (useConstraintHandling) {
        ppd = callback->ppdFile();
    } else {
        ppd = getPPDOnTiger();
        panelView();
    }
    return ppd != nullptr;
}

void KSTRVLBasePDEHalvern::dealloc()
{
    logEntered("dealloc");
    pdePluginDidUnload = true;
    if (const std::shared_ptr<Semaphore> semaphore = pdeUnloadSemaphore.get()) {
        semaphore->wait();
        logLine(QStringLiteral("continuing dealloc after waiting for unload semaphore"));
        pdeUnloadSemaphore.set(nullptr);
    }
    NotificationCenter::defaultCenter().removeObserver(this);
    ppd = nullptr;
    setPanelView(nullptr);
    pdePluginCallbackObject.reset();
    pdeBundle.reset();
    thePDEName.reset();
    choiceDict.reset();
    cachedSupportedPPDOptionKeys.reset();
    deviceURI.set(nullptr);
}

void KSTRVLBasePDEHalvern::willShow()
{
    logEntered("willShow");
    pdePluginDidUnload = false;
    updateUI();
}

bool KSTRVLBasePDEHalvern::shouldHide()
{
    logEntered("shouldHide");
    pdePluginDidUnload = true;
    return true;
}

void KSTRVLBasePDEHalvern::printWindowWillClose(bool)
{
    logEntered("printWindowWillClose:");
    pdePluginDidUnload = true;
}

std::optional<QString> KSTRVLBasePDEHalvern::nibName()
{
    return std::nullopt;
}

QWidget* KSTRVLBasePDEHalvern::panelView()
{
    if (!_panelView)
        loadPanelView();
    return _panelView;
}

void KSTRVLBasePDEHalvern::loadPanelView()
{
    const std::optional<QString> name = nibName();
    if (!name)
        return;
    std::unique_ptr<QWidget> view = pdeBundle ? loadLayout(*pdeBundle, *name) : nullptr;
    if (!view) {
        logLine(QStringLiteral("Failed to load nib named %1").arg(*name));
        return;
    }
    wireControlsInView(view.get());
    setPanelView(view.release());
    if (!_panelView)
        return;
    populateMenuObjectsInView(_panelView);
    localizeStringsInView_andSubviews_resizeTofit(_panelView, true, false);
    enableTextFieldsForEditingInView(_panelView);
    enableCustom();
}

void KSTRVLBasePDEHalvern::setPanelView(QWidget* view)
{
    if (_panelView == view)
        return;
    if (!_panelView.isNull()) {
        // This may be any thread, and it may be in the middle of one of the view's own events.
        mainQueue().async([old = _panelView] {
            if (old)
                old->deleteLater();
        });
    }
    _panelView = view;
}

QMap<QString, QString> KSTRVLBasePDEHalvern::summaryInfo()
{
    QMap<QString, QString> summary;
    const QStringList keys = supportedPPDOptionKeys();
    for (const QString& key : keys) {
        QString value;
        if (useConstraintHandling) {
            const auto marked = ppd::markedChoice(ppd, key);
            if (!marked)
                continue;
            value = marked->text;
        } else {
            value = storedChoice(key).toString();
        }
        summary.insert(localized(key), localized(value));
    }
    return summary;
}

bool KSTRVLBasePDEHalvern::shouldShowHelp()
{
    const QVariant book = pdeBundle
                              ? pdeBundle->objectForInfoDictionaryKey(QStringLiteral("CFBundleHelpBookName"))
                              : QVariant();
    if (!book.isValid())
        return true;
    return gotoHelpPage(*pdeBundle, book.toString()) != 0;
}

ppd_file_t* KSTRVLBasePDEHalvern::getPPDOnTiger()
{
    if constexpr (sizeof(void*) == 8)
        return nullptr;
    const auto session = pdePluginCallbackObject ? pdePluginCallbackObject->printSession() : nullptr;
    ppd_file_t* file = nullptr;
    if (!session || session->getPPDRef(file) != 0)
        return nullptr;
    return file;
}

QString KSTRVLBasePDEHalvern::localized(const QString& key) const
{
    return pdeBundle ? pdeBundle->localizedString(key) : key;
}

void KSTRVLBasePDEHalvern::performDelayed(int milliseconds, void (KSTRVLBasePDEHalvern::*work)())
{
    mainQueue().after(milliseconds, [self = shared_from_this(), work] { (self.get()->*work)(); });
}

} // namespace halvern
