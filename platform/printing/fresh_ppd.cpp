// SPDX-License-Identifier: MIT
#include "platform/printing/fresh_ppd.h"

#include "platform/foundation/threads/work_queue.h"
#include "platform/printing/cups_connection.h"
#include "platform/printing/cups_ppd.h"
#include "platform/printing/patience.h"
#include "platform/printing/ppd.h"

#include <QHash>

#include <mutex>

namespace halvern::ppd {

namespace {

constexpr std::chrono::seconds kDeadline(5);
// A worker that takes longer is stuck where no deadline reaches, in a look-up of a name for instance.
constexpr std::chrono::seconds kStuck(7);

using Clock = std::chrono::steady_clock;

struct Question {
    QString queue;
    QByteArray key;     ///< the server and the queue
    quint64 number = 0; ///< questions are numbered as they are asked
    Clock::time_point asked = Clock::now();
    bool isDone = false;
    std::optional<QByteArray> text;
};

struct Text {
    quint64 number = 0;
    QByteArray text;
};

std::optional<QByteArray> getText(cups::Connection& server, const QString& queue)
{
    std::optional<QByteArray> text =
        server.isConnected() ? server.get(resourceOf(queue).constData()) : std::nullopt;
    return text && !isPacked(*text) ? text : std::nullopt;
}

/// Owns its connection; one question at a time.
struct Worker {
    WorkQueue queue;
    std::unique_ptr<cups::Connection> server; ///< the queue's only
    QByteArray serverName;
    std::shared_ptr<Question> question; ///< what it is at; null while it is idle

    std::optional<QByteArray> get(const QString& destination)
    {
        if (!server || serverName != cupsServer()) {
            serverName = cupsServer();
            server = std::make_unique<cups::Connection>(nullptr, cups::Limits{kDeadline, kDeadline});
        }
        const std::optional<QByteArray> text = getText(*server, destination);
        if (!server->isConnected())
            server.reset();
        return text;
    }
};

/// The main thread's way to a fresh PPD.
class FreshTexts {
public:
    static FreshTexts& instance()
    {
        // Never destroyed: a worker may be late.
        static auto* const texts = std::make_unique<FreshTexts>().release();
        return *texts;
    }

    std::optional<QByteArray> take(const QString& queue)
    {
        const QByteArray key = keyOf(queue);
        std::unique_lock lock(mutex_);
        const auto held = worker_ ? worker_->question : nullptr;
        const bool isLate = held && held->key == key && Clock::now() - held->asked < kStuck;
        if (!isLate) {
            const std::shared_ptr<Question> question = ask(queue, key);
            if (cups::waitPatiently(changed_, lock, [&] { return question->isDone; }))
                return question->text;
        }
        const auto last = known_.constFind(key);
        return last == known_.constEnd() ? std::nullopt : std::optional(last->text);
    }

    void remember(const QString& queue, const QByteArray& text)
    {
        const std::scoped_lock lock(mutex_);
        keep(keyOf(queue), ++lastNumber_, text);
    }

private:
    static QByteArray keyOf(const QString& queue) { return cupsServer() + QByteArray("\n") + queue.toUtf8(); }

    // Both with the lock held.

    std::shared_ptr<Question> ask(const QString& queue, const QByteArray& key)
    {
        // One that is at another question would keep this one waiting: it is left to itself.
        if (!worker_ || worker_->question)
            worker_ = std::make_shared<Worker>();
        auto question = std::make_shared<Question>();
        question->queue = queue;
        question->key = key;
        question->number = ++lastNumber_;
        worker_->question = question;
        worker_->queue.async([this, worker = worker_, question] {
            std::optional<QByteArray> text = worker->get(question->queue);
            const std::scoped_lock answered(mutex_);
            if (text)
                keep(question->key, question->number, *text);
            question->text = std::move(text);
            question->isDone = true;
            worker->question = nullptr;
            changed_.notify_all();
        });
        return question;
    }

    void keep(const QByteArray& key, quint64 number, const QByteArray& text)
    {
        Text& last = known_[key];
        if (number > last.number)
            last = {number, text};
    }

    std::mutex mutex_;
    std::condition_variable changed_;
    std::shared_ptr<Worker> worker_;
    QHash<QByteArray, Text> known_;
    quint64 lastNumber_ = 0;
};

} // namespace

QByteArray resourceOf(const QString& queue)
{
    return "/printers/" + queue.toUtf8() + ".ppd";
}

std::optional<QByteArray> freshText(const QString& queue)
{
    if (cups::isMainThread())
        return FreshTexts::instance().take(queue);
    cups::Connection server(nullptr, {kDeadline, kDeadline});
    return getText(server, queue);
}

void rememberText(const QString& queue, const QByteArray& text)
{
    FreshTexts::instance().remember(queue, text);
}

} // namespace halvern::ppd
