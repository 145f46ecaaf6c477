// SPDX-License-Identifier: MIT
#include "dialog/window/access_dialogs.h"

#include "dialog/server/secret_store.h"
#include "dialog/session/login_words.h"
#include "dialog/window/login_dialog.h"
#include "platform/foundation/threads/work_queue.h"
#include "platform/printing/patience.h"
#include "platform/toolkit/plain_text.h"

#include <QMessageBox>
#include <QPointer>
#include <QPushButton>

#include <condition_variable>

namespace halvern {

namespace {

constexpr std::chrono::milliseconds kLookAtFlag(100);

QMessageBox* makeCertificateBox(const cups::CertificateQuestion& question, QWidget* parent)
{
    QStringList words = certificateWords(question);
    auto* box = new QMessageBox(QMessageBox::Warning, AccessDialogs::tr("Trust this print server?"),
                                displayText(words.takeFirst()), QMessageBox::Cancel, parent);
    box->setObjectName(QStringLiteral("certificateQuestion"));
    box->setAttribute(Qt::WA_DeleteOnClose);
    box->setTextFormat(Qt::PlainText);
    QStringList lines;
    for (const QString& sentence : words)
        lines.append(displayText(sentence));
    box->setInformativeText(lines.join(QStringLiteral("\n\n"))); // plain: the box shows plain text only
    box->addButton(AccessDialogs::tr("&Trust It from Now On"), QMessageBox::AcceptRole);
    box->setDefaultButton(QMessageBox::Cancel);
    return box;
}

} // namespace

/// Lives on in the worker that waits, when the window has gone.
class AccessDialogs::Questions : public cups::AccessQuestions,
                                 public std::enable_shared_from_this<AccessDialogs::Questions> {
public:
    explicit Questions(QWidget* window) : hasWindow_(window), window_(window) {}

    /// The window goes: nobody answers any more.
    void close()
    {
        const std::scoped_lock lock(mutex_);
        isClosed_ = true;
        changed_.notify_all();
    }

    std::optional<cups::Login> askLogin(const cups::LoginQuestion& question,
                                        const cups::CancelFlag& cancelled) override
    {
        if (cups::isMainThread())
            return std::nullopt;
        if (!question.wasRefused && question.isEncrypted) {
            if (std::optional<cups::Login> kept = secret_store::find(question.place))
                return kept;
        }
        auto answer = std::make_shared<Answer>();
        const bool canKeep = secret_store::isThere();
        const bool isAnswered = wait(answer, cancelled, [this, answer, question, canKeep]() -> QDialog* {
            auto* dialog = new LoginDialog(question, canKeep, window_);
            QObject::connect(dialog, &QDialog::accepted, dialog,
                             [answer, dialog] { answer->login = dialog->login(); });
            return dialog;
        });
        return isAnswered ? answer->login : std::nullopt;
    }

    void loginWasRight(const cups::Place& place, const cups::Login& login) override
    {
        if (login.isForLater)
            WorkQueue().async([place, login] { secret_store::keep(place, login); });
    }

    bool askCertificate(const cups::CertificateQuestion& question, const cups::CancelFlag& cancelled) override
    {
        if (cups::isMainThread())
            return false;
        auto answer = std::make_shared<Answer>();
        const bool isAnswered = wait(answer, cancelled, [this, answer, question]() -> QDialog* {
            QMessageBox* box = makeCertificateBox(question, window_);
            QObject::connect(box, &QMessageBox::buttonClicked, box, [answer, box](QAbstractButton* button) {
                answer->isTrusted = box->buttonRole(button) == QMessageBox::AcceptRole;
            });
            return box;
        });
        return isAnswered && answer->isTrusted;
    }

private:
    struct Answer {
        std::optional<cups::Login> login;
        bool isTrusted = false;
        bool isThere = false;
    };

    /// Has the main thread open a dialog, and waits until it is closed; closes it if nobody wants to know any
    /// more.
    bool wait(const std::shared_ptr<Answer>& answer, const cups::CancelFlag& cancelled,
              const std::function<QDialog*()>& makeDialog)
    {
        const std::shared_ptr<Questions> self = shared_from_this();
        auto shown = std::make_shared<QPointer<QDialog>>();
        mainQueue().async([self, answer, makeDialog, shown] {
            if (self->hasWindow_ && !self->window_) {
                self->finish(answer);
                return;
            }
            QDialog* dialog = makeDialog();
            *shown = dialog;
            QObject::connect(dialog, &QObject::destroyed, [self, answer] { self->finish(answer); });
            dialog->open();
            if (!self->hasWindow_)
                dialog->activateWindow();
        });
        std::unique_lock<std::mutex> lock(mutex_);
        while (!answer->isThere && !isClosed_ && !(cancelled && cancelled->load()))
            changed_.wait_for(lock, kLookAtFlag);
        if (!answer->isThere)
            mainQueue().async([shown] { delete shown->data(); });
        return answer->isThere;
    }

    void finish(const std::shared_ptr<Answer>& answer)
    {
        const std::scoped_lock lock(mutex_);
        answer->isThere = true;
        changed_.notify_all();
    }

    const bool hasWindow_;
    QPointer<QWidget> window_; ///< the main thread's
    std::mutex mutex_;
    std::condition_variable changed_;
    bool isClosed_ = false;
};

AccessDialogs::AccessDialogs(QWidget* window)
    : QObject(window), questions_(std::make_shared<Questions>(window))
{
    cups::Access::shared().addQuestions(questions_);
}

AccessDialogs::~AccessDialogs()
{
    // First, so that a question that ends here does not count as declined.
    cups::Access::shared().removeQuestions(questions_.get());
    questions_->close();
}

} // namespace halvern
