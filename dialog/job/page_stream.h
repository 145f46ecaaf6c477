// SPDX-License-Identifier: MIT
#pragma once

#include "dialog/page/page_renderer.h"

#include <QByteArray>

#include <memory>
#include <optional>

namespace halvern {

/// A job's document while it is made: a worker writes the pages, and is held up as soon as a few megabytes
/// wait to be sent. One thread reads; letting go of the stream makes the worker stop by itself.
class PageStream {
public:
    /// Starts to write. The calls of `control` come from the worker.
    PageStream(std::vector<SheetToPrint> sheets, PdfQuality quality, PdfControl control);
    ~PageStream();
    PageStream(const PageStream&) = delete;
    PageStream& operator=(const PageStream&) = delete;

    /// The next piece, empty at the end; nothing once the pages cannot be written, or were told to stop.
    /// Waits for it.
    std::optional<QByteArray> next();

    /// Why next() had nothing; empty if the worker was told to stop.
    QString problem() const;

private:
    struct State;
    class Inlet;

    std::shared_ptr<State> state_;
};

} // namespace halvern
