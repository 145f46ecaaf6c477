#include "panels/features/inquiry/printer_inquiry.h"

#include "panel_base/base_panel.h"
#include "platform/foundation/threads/semaphore.h"
#include "platform/plugin_api/host_callback.h"
#include "platform/printing/printer.h"

#include <condition_variable>
#include <mutex>
#include <thread>

namespace halvern {

namespace {

using End = InquiryResult::End;

constexpr std::chrono::milliseconds kLookUp(250);
// The watch sees within half a second that it shall end, and then has to tell the server.
constexpr std::chrono::seconds kTidyTime(3);
constexpr std::chrono::milliseconds kTidyLook(20);

/// The host of a panel without a dialog: a printer and its PPD.
class QueueHost : public HostCallback {
public:
    QueueHost(const QString& queue, std::shared_ptr<ppd_file_t> file)
        : printer_(std::make_shared<Printer>(queue, QString())), file_(std::move(file))
    {
    }

    ppd_file_t* ppdFile() override { return file_.get(); }

    bool respondsToWillChangePPDOptionKeyValue() const override { return true; }

    bool willChangePPDOptionKeyValue_ppdChoice(const QString&, const QVariant&) override { return false; }

    std::shared_ptr<PrintSettings> printSettings() override { return nullptr; }

    std::shared_ptr<PageFormat> pageFormat() override { return nullptr; }

    std::shared_ptr<Printer> pmPrinter() override { return printer_; }

private:
    std::shared_ptr<Printer> printer_;
    std::shared_ptr<ppd_file_t> file_;
};

/// A panel that shows nothing: only its command jobs count.
class AskingPanel : public KSTRVLBasePDEHalvern {
public:
    void waitForJobCompletion(int jobID) override
    {
        jobId_ = jobID;
        wasSent_ = true;
        KSTRVLBasePDEHalvern::waitForJobCompletion(jobID);
    }

    void ppdDidUpdate() override { finish(End::reported); }

    void ppdUpdateDidAbort() override { finish(End::failed); }

    using KSTRVLBasePDEHalvern::ppdUpdateDidAbort;

    InquiryResult ask(const std::function<bool(int)>& keepWaiting)
    {
        sendPrinterCommands({QStringLiteral("ReportStatus"), QStringLiteral("AutoConfigure")});
        if (!wasSent_)
            return {End::busy, 0};
        std::unique_lock lock(mutex_);
        while (!end_) {
            // A watch that could not begin tells nobody.
            if (!pdeUnloadSemaphore)
                return {End::failed, jobId_};
            if (changed_.wait_for(lock, kLookUp, [this] { return end_.has_value(); }))
                break;
            lock.unlock();
            const bool goOn = keepWaiting(jobId_);
            lock.lock();
            if (goOn)
                continue;
            lock.unlock();
            return {takeBack() ? End::abandoned : End::adrift, jobId_};
        }
        return {*end_, jobId_};
    }

private:
    // Whether the watch has ended in time.
    bool takeBack()
    {
        pdePluginDidUnload = true;
        const auto end = std::chrono::steady_clock::now() + kTidyTime;
        while (pdeUnloadSemaphore && std::chrono::steady_clock::now() < end)
            std::this_thread::sleep_for(kTidyLook);
        return !pdeUnloadSemaphore;
    }

    void finish(End end)
    {
        const std::lock_guard lock(mutex_);
        end_ = end;
        changed_.notify_all();
    }

    std::mutex mutex_;
    std::condition_variable changed_;
    std::optional<End> end_;
    int jobId_ = 0;
    bool wasSent_ = false;
};

} // namespace

InquiryResult askPrinterForReport(const QString& queue, const std::shared_ptr<ppd_file_t>& file,
                                  const std::function<bool(int jobId)>& keepWaiting)
{
    const auto panel = makePanel<AskingPanel>(std::make_shared<QueueHost>(queue, file));
    return panel ? panel->ask(keepWaiting) : InquiryResult{End::failed, 0};
}

} // namespace halvern
