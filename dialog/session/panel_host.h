// SPDX-License-Identifier: MIT
#pragma once

#include "platform/plugin_api/host_callback.h"

#include <QMutex>

#include <functional>

namespace halvern {

/// What the dialog answers a panel's requests from. Main thread only; lives as long as its panels' printer is
/// selected.
class HostSource {
public:
    virtual ~HostSource() = default;
    virtual ppd_file_t* hostPpdFile() = 0;
    virtual bool hostWillChange(const QString& key, const QVariant& choice) = 0;
    virtual std::shared_ptr<PrintSettings> hostPrintSettings() = 0;
    virtual std::shared_ptr<PageFormat> hostPageFormat() = 0;
};

/// The callback object of one printer's panels. When the dialog goes, or another printer is selected, it is
/// detached and answers null pointers and refusals from then on, however long the panels keep it.
class PanelHost : public HostCallback {
public:
    /// `file` stays open as long as this object lives, since panels keep what ppdFile() answered. If not
    /// `forWorkers`, only the main thread is told the printer: background work of the panels then has nobody
    /// to talk to.
    PanelHost(HostSource& source, std::shared_ptr<Printer> printer, std::shared_ptr<ppd_file_t> file,
              bool forWorkers);

    /// Main thread only, before the source goes.
    void detach();

    ppd_file_t* ppdFile() override;

    bool respondsToWillChangePPDOptionKeyValue() const override { return true; }

    bool willChangePPDOptionKeyValue_ppdChoice(const QString& key, const QVariant& choice) override;
    std::shared_ptr<PrintSettings> printSettings() override;
    std::shared_ptr<PageFormat> pageFormat() override;
    std::shared_ptr<Printer> PMPrinter() override;

private:
    HostSource* source_;
    mutable QMutex printerMutex_; // PMPrinter() is asked by background waits too
    std::shared_ptr<Printer> printer_;
    std::shared_ptr<ppd_file_t> file_;
    const Qt::HANDLE mainThread_; // workers may ask after the application object has gone
    const bool forWorkers_;
};

} // namespace halvern
