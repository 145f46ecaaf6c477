// SPDX-License-Identifier: MIT
#include "platform/printing/access.h"

#include <chrono>
#include <thread>

namespace halvern::cups {

namespace {

constexpr std::chrono::milliseconds kLookAtFlag(50);

bool isRaised(const CancelFlag& flag)
{
    return flag && flag->load();
}

bool isFit(const Login& login, const LoginQuestion& question, const std::optional<Login>& refused)
{
    const bool isOther = !refused || refused->user != login.user || refused->password != login.password;
    return isOther && (question.isEncrypted || login.mayTravelOpenly);
}

QString nameOf(const CertificateQuestion& question)
{
    return question.host + QLatin1Char('\n') + question.now;
}

} // namespace

Access& Access::shared()
{
    // Workers that nobody joins may still use it when the program ends.
    static auto* access = new Access;
    return *access;
}

void Access::setQuestions(std::shared_ptr<AccessQuestions> questions)
{
    const std::scoped_lock lock(mutex_);
    questions_ = std::move(questions);
    // What nobody could answer so far, somebody may now.
    if (questions_)
        declined_.clear();
}

std::shared_ptr<AccessQuestions> Access::questions() const
{
    const std::scoped_lock lock(mutex_);
    return questions_;
}

std::optional<Login> Access::login(const LoginQuestion& question, const std::optional<Login>& refused,
                                   const CancelFlag& cancelled)
{
    std::unique_lock<std::mutex> asking(asking_, std::defer_lock);
    while (!asking.try_lock()) {
        if (isRaised(cancelled))
            return std::nullopt;
        std::this_thread::sleep_for(kLookAtFlag);
    }
    LoginQuestion asked = question;
    {
        const std::scoped_lock lock(mutex_);
        const auto kept = kept_.constFind(question.place);
        if (kept != kept_.cend() && isFit(*kept, question, refused))
            return *kept;
        // Nobody sends a wrong password again and again: servers lock the doors after some.
        if (refused && kept != kept_.cend() && kept->user == refused->user &&
            kept->password == refused->password)
            kept_.remove(question.place);
        if (declined_.contains(question.place) || !questions_) {
            declined_.insert(question.place);
            return std::nullopt;
        }
        asked.wasRefused = refused.has_value() || wrong_.erase(question.place) > 0;
        if (refused)
            asked.user = refused->user;
    }
    const std::shared_ptr<AccessQuestions> somebody = questions();
    const std::optional<Login> login = somebody ? somebody->askLogin(asked, cancelled) : std::nullopt;
    const std::scoped_lock lock(mutex_);
    if (login)
        kept_.insert(question.place, *login);
    else if (!isRaised(cancelled))
        declined_.insert(question.place);
    return login;
}

void Access::wasRight(const Place& place, const Login& login)
{
    if (const std::shared_ptr<AccessQuestions> somebody = questions())
        somebody->loginWasRight(place, login);
    const std::scoped_lock lock(mutex_);
    kept_.insert(place, login);
}

void Access::wasWrong(const Place& place)
{
    const std::scoped_lock lock(mutex_);
    if (kept_.remove(place) > 0)
        wrong_.insert(place);
}

bool Access::trusts(const CertificateQuestion& question, const CancelFlag& cancelled)
{
    std::unique_lock<std::mutex> asking(asking_, std::defer_lock);
    while (!asking.try_lock()) {
        if (isRaised(cancelled))
            return false;
        std::this_thread::sleep_for(kLookAtFlag);
    }
    const QString name = nameOf(question);
    {
        const std::scoped_lock lock(mutex_);
        if (trusted_.contains(name))
            return true;
        if (distrusted_.contains(name) || !questions_)
            return false;
    }
    const std::shared_ptr<AccessQuestions> somebody = questions();
    const bool isTrusted = somebody && somebody->askCertificate(question, cancelled);
    const std::scoped_lock lock(mutex_);
    if (isTrusted || !isRaised(cancelled))
        (isTrusted ? trusted_ : distrusted_).insert(name);
    return isTrusted;
}

bool Access::lacksLogin() const
{
    const std::scoped_lock lock(mutex_);
    return !declined_.empty();
}

void Access::askAgain()
{
    const std::scoped_lock lock(mutex_);
    declined_.clear();
    distrusted_.clear();
}

} // namespace halvern::cups
