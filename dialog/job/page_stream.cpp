// SPDX-License-Identifier: MIT
#include "dialog/job/page_stream.h"

#include "platform/foundation/threads/work_queue.h"

#include <QCoreApplication>

#include <algorithm>
#include <condition_variable>
#include <deque>
#include <mutex>

namespace halvern {

namespace {

constexpr qsizetype kPiece = 256 * 1024;
constexpr size_t kMostPieces = 8;

} // namespace

struct PageStream::State {
    mutable std::mutex mutex;
    std::condition_variable changed;
    std::deque<QByteArray> pieces;
    bool isAtEnd = false;
    bool isWhole = false;
    bool isAbandoned = false;
    QString problem;

    // False if nobody reads any more.
    bool put(QByteArray piece)
    {
        std::unique_lock lock(mutex);
        changed.wait(lock, [this] { return isAbandoned || pieces.size() < kMostPieces; });
        if (!isAbandoned)
            pieces.push_back(std::move(piece));
        changed.notify_all();
        return !isAbandoned;
    }

    void end(bool whole, const QString& sentence)
    {
        const std::scoped_lock lock(mutex);
        isAtEnd = true;
        isWhole = whole;
        problem = sentence;
        changed.notify_all();
    }
};

// What the worker writes to.
class PageStream::Inlet : public QIODevice {
public:
    explicit Inlet(State& state) : state_(state)
    {
        open(QIODevice::WriteOnly | QIODevice::Unbuffered);
        piece_.reserve(kPiece);
    }

    bool isSequential() const override { return true; }

    bool flush()
    {
        if (piece_.isEmpty())
            return true;
        const bool isTaken = state_.put(std::move(piece_));
        piece_ = QByteArray();
        piece_.reserve(kPiece);
        return isTaken;
    }

protected:
    qint64 readData(char*, qint64) override { return -1; }

    qint64 writeData(const char* data, qint64 length) override
    {
        for (qint64 done = 0; done < length;) {
            const qint64 count = std::min(length - done, kPiece - piece_.size());
            piece_.append(data + done, count);
            done += count;
            if (piece_.size() == kPiece && !flush())
                return -1;
        }
        return length;
    }

private:
    State& state_;
    QByteArray piece_;
};

PageStream::PageStream(std::vector<SheetToPrint> sheets, PdfQuality quality, PdfControl control)
    : state_(std::make_shared<State>())
{
    const bool isStarted = WorkQueue().async(
        [state = state_, sheets = std::move(sheets), quality, control = std::move(control)]() mutable {
            bool wasStopped = false;
            const auto keepGoing = [&](double share) {
                wasStopped = wasStopped || !control.keepGoing(share);
                return !wasStopped;
            };
            Inlet inlet(*state);
            // What is written during a pause is a sign of life, which waits for nothing.
            const auto isPaused = [&] { return control.isPaused && control.isPaused() && inlet.flush(); };
            const QString problem = writePdf(inlet, sheets, quality, {keepGoing, isPaused});
            state->end(problem.isEmpty() && !wasStopped && inlet.flush(), problem);
        });
    if (!isStarted)
        state_->end(false,
                    QCoreApplication::translate("PageStream", "The computer is too busy to prepare the "
                                                              "pages. Close something and try again."));
}

PageStream::~PageStream()
{
    const std::scoped_lock lock(state_->mutex);
    state_->isAbandoned = true;
    state_->changed.notify_all();
}

std::optional<QByteArray> PageStream::next()
{
    std::unique_lock lock(state_->mutex);
    state_->changed.wait(lock, [this] { return state_->isAtEnd || !state_->pieces.empty(); });
    // What came before a failure is of no use.
    if (state_->isAtEnd && !state_->isWhole)
        return std::nullopt;
    if (state_->pieces.empty())
        return QByteArray();
    QByteArray piece = std::move(state_->pieces.front());
    state_->pieces.pop_front();
    state_->changed.notify_all();
    return piece;
}

QString PageStream::problem() const
{
    const std::scoped_lock lock(state_->mutex);
    return state_->problem;
}

} // namespace halvern
