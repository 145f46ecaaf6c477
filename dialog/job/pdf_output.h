// SPDX-License-Identifier: MIT
#pragma once

#include "dialog/page/page_renderer.h"
#include "platform/printing/cups_connection.h"

#include <QObject>

namespace halvern {

/// How the writing of a file ended.
struct PdfOutcome {
    bool isWritten = false;
    bool wasCancelled = false;
    QString sentence; ///< for the user
};

/// Writes the pages, as a job would have them, into a PDF file: whole, or not at all, and then what was there
/// before is untouched. The work is done by a worker; this object lives on the main thread, and deleting it
/// makes the worker stop by itself.
class PdfOutput : public QObject {
    Q_OBJECT

public:
    PdfOutput(QString path, std::vector<SheetToPrint> sheets, PdfQuality quality, QObject* parent);
    ~PdfOutput() override;

    void start();

    /// finished() still follows.
    void cancel() { cancelled_->store(true); }

    bool isOver() const { return isOver_; }

Q_SIGNALS:
    /// The share that is done, 0 to 1.
    void progressed(double share);
    /// The end; emitted once.
    void finished(const halvern::PdfOutcome& outcome);

private:
    QString path_;
    std::vector<SheetToPrint> sheets_;
    PdfQuality quality_;
    cups::CancelFlag cancelled_;
    bool isOver_ = false;
};

} // namespace halvern
