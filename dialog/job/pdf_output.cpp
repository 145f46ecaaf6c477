// SPDX-License-Identifier: MIT
#include "dialog/job/pdf_output.h"

#include "platform/foundation/threads/work_queue.h"

#include <QFileInfo>
#include <QPointer>
#include <QSaveFile>

namespace halvern {

namespace {

QString fileProblem(const QString& path, const QString& reason)
{
    return PdfOutput::tr("The file \"%1\" could not be written: %2.").arg(path, reason);
}

PdfOutcome writeFile(const QString& path, const std::vector<SheetToPrint>& sheets, const PdfQuality& quality,
                     const cups::CancelFlag& cancelled, const std::function<void(double)>& report)
{
    // A device would be replaced by a file.
    if (const QFileInfo there(path); there.exists() && !there.isFile())
        return {false, false, PdfOutput::tr("\"%1\" is no regular file. Name a file to write.").arg(path)};
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly))
        return {false, false, fileProblem(path, file.errorString())};
    const auto keepGoing = [&](double share) {
        report(share);
        return !cancelled->load();
    };
    const QString problem = writePdf(file, sheets, quality, {keepGoing});
    if (cancelled->load())
        return {false, true, PdfOutput::tr("Cancelled: no file was written.")};
    if (!file.flush() || file.error() != QFileDevice::NoError)
        return {false, false, fileProblem(path, file.errorString())};
    if (!problem.isEmpty())
        return {false, false, PdfOutput::tr("No file was written. %1").arg(problem)};
    if (!file.commit())
        return {false, false, fileProblem(path, file.errorString())};
    const size_t count = sheets.size();
    return {true, false,
            count == 1 ? PdfOutput::tr("1 page was written to \"%1\".").arg(path)
                       : PdfOutput::tr("%1 pages were written to \"%2\".").arg(QString::number(count), path)};
}

} // namespace

PdfOutput::PdfOutput(QString path, std::vector<SheetToPrint> sheets, PdfQuality quality, QObject* parent)
    : QObject(parent),
      path_(std::move(path)),
      sheets_(std::move(sheets)),
      quality_(std::move(quality)),
      cancelled_(cups::makeCancelFlag())
{
}

PdfOutput::~PdfOutput()
{
    cancel();
}

void PdfOutput::start()
{
    QPointer<PdfOutput> self(this);
    const auto report = [self](double share) {
        mainQueue().async([self, share] {
            if (self && !self->isOver_)
                Q_EMIT self->progressed(share);
        });
    };
    const auto end = [self](const PdfOutcome& outcome) {
        mainQueue().async([self, outcome] {
            if (!self)
                return;
            self->isOver_ = true;
            Q_EMIT self->finished(outcome);
        });
    };
    const bool isStarted = WorkQueue().async(
        [end, report, path = path_, sheets = std::move(sheets_), quality = quality_, cancelled = cancelled_] {
            end(writeFile(path, sheets, quality, cancelled, report));
        });
    if (!isStarted)
        end({false, false, tr("The computer is too busy to write the file. Close something and try again.")});
}

} // namespace halvern
