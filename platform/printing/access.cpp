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

bool isSame(const Login& one, const Login& other)
{
    return one.user == other.user && one.password == other.password;
}

bool isFit(const Login& login, const LoginQuestion& question, const std::optional<Login>& refused)
{
    return !(refused && isSame(*refused, login)) && (question.isEncrypted || login.mayTravelOpenly);
}

QString nameOf(const CertificateQuestion& question)
{
    return question.host + (question.isOpen ? QLatin1Char('\t') : QLatin1Char('\n')) + question.now;
}

} // namespace

Access& Access::shared()
{
    // Workers that nobody joins may still use it when the program ends.
    static auto* access = new Access;
    return *access;
}

void Access::addQuestions(std::shared_ptr<AccessQuestions> questions)
{
    const std::scoped_lock lock(mutex_);
    questions_.append(std::move(questions));
    // What nobody could answer so far, somebody may now.
    declined_.clear();
}

void Access::removeQuestions(const AccessQuestions* questions)
{
    const std::scoped_lock lock(mutex_);
    questions_.removeIf([&](const auto& each) { return each.get() == questions; });
}

std::shared_ptr<AccessQuestions> Access::questions() const
{
    const std::scoped_lock lock(mutex_);
    return questions_.isEmpty() ? nullptr : questions_.back();
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
        if (refused && kept != kept_.cend() && isSame(*kept, *refused))
            kept_.remove(question.place);
        if (declined_.contains(question.place) || questions_.isEmpty()) {
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
    // Whoever was asked may have gone without an answer: that was not the user's.
    const bool isTheirWord = somebody && questions_.contains(somebody);
    if (login)
        kept_.insert(question.place, *login);
    else if (isTheirWord && !isRaised(cancelled))
        declined_.insert(question.place);
    return login;
}

void Access::wasRight(const Place& place, const Login& login)
{
    Login proven = login;
    proven.isForLater = false;
    {
        const std::scoped_lock lock(mutex_);
        // One that is proven already, or that another one has replaced meanwhile, is no news.
        const auto kept = kept_.constFind(place);
        if (kept != kept_.cend() && (*kept == proven || !isSame(*kept, proven)))
            return;
        kept_.insert(place, proven);
    }
    if (const std::shared_ptr<AccessQuestions> somebody = questions())
        somebody->loginWasRight(place, login);
}

void Access::wasWrong(const Place& place, const Login& login)
{
    const std::scoped_lock lock(mutex_);
    const auto kept = kept_.constFind(place);
    if (kept != kept_.cend() && !isSame(*kept, login))
        return;
    kept_.remove(place);
    wrong_.insert(place);
}

std::optional<QString> Access::jobOwner(const QString& host) const
{
    const std::scoped_lock lock(mutex_);
    const auto found = jobOwners_.constFind(host);
    return found == jobOwners_.cend() ? std::nullopt : std::optional(*found);
}

void Access::setJobOwner(const QString& host, const QString& user)
{
    const std::scoped_lock lock(mutex_);
    jobOwners_.insert(host, user);
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
        if (distrusted_.contains(name) || questions_.isEmpty())
            return false;
    }
    const std::shared_ptr<AccessQuestions> somebody = questions();
    const bool isTrusted = somebody && somebody->askCertificate(question, cancelled);
    const std::scoped_lock lock(mutex_);
    if (isTrusted || (questions_.contains(somebody) && !isRaised(cancelled)))
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
