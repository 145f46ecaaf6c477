// SPDX-License-Identifier: MIT
#include "dialog/session/panel_host.h"

#include "platform/printing/printer.h"

#include <QThread>

namespace halvern {

PanelHost::PanelHost(HostSource& source, std::shared_ptr<Printer> printer, std::shared_ptr<ppd_file_t> file,
                     bool forWorkers)
    : source_(&source),
      printer_(std::move(printer)),
      file_(std::move(file)),
      mainThread_(QThread::currentThreadId()),
      forWorkers_(forWorkers)
{
}

void PanelHost::detach()
{
    source_ = nullptr;
    const QMutexLocker lock(&printerMutex_);
    printer_.reset();
}

ppd_file_t* PanelHost::ppdFile()
{
    return source_ ? source_->hostPpdFile() : nullptr;
}

bool PanelHost::willChangePPDOptionKeyValue_ppdChoice(const QString& key, const QVariant& choice)
{
    return source_ && source_->hostWillChange(key, choice);
}

std::shared_ptr<PrintSettings> PanelHost::printSettings()
{
    return source_ ? source_->hostPrintSettings() : nullptr;
}

std::shared_ptr<PageFormat> PanelHost::pageFormat()
{
    return source_ ? source_->hostPageFormat() : nullptr;
}

std::shared_ptr<Printer> PanelHost::PMPrinter()
{
    if (!forWorkers_ && QThread::currentThreadId() != mainThread_)
        return nullptr;
    const QMutexLocker lock(&printerMutex_);
    return printer_;
}

} // namespace halvern
