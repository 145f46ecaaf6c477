// SPDX-License-Identifier: MIT
#pragma once

#include "platform/foundation/export.h"
#include "platform/printing/exchange_watch.h"

#include <QList>
#include <QMap>
#include <QSet>
#include <QString>
#include <QStringList>

#include <memory>
#include <mutex>
#include <optional>
#include <set>

/// Getting in: names, passwords and certificates, once for a host and kept for the life of the process.
namespace HALVERN_EXPORT halvern {
namespace cups {

/// Who wants to know who the user is. Values; any thread.
struct Place {
    QString host; ///< the print server, or the print server of the queue, as it is reached
    QString queue =
        {}; ///< the printer's own name and password, which the server hands on; empty: the server's

    bool operator==(const Place&) const = default;

    bool operator<(const Place& other) const
    {
        return host != other.host ? host < other.host : queue < other.queue;
    }
};

struct Login {
    QString user;
    QString password;
    bool mayTravelOpenly = false; ///< the user says that it may go over a connection that others can read
    bool isForLater = false;      ///< the user wants it kept beyond this session

    bool operator==(const Login&) const = default;
};

struct LoginQuestion {
    Place place;
    QString user;            ///< the name to offer
    bool isEncrypted = true; ///< false: what is answered could be read on its way
    bool wasRefused = false; ///< the last answer was wrong
};

/// A server whose certificate is not the one that it had, or not one to trust.
struct CertificateQuestion {
    QString host;
    QString known;       ///< what the server had before, in words; empty: it was never seen
    QString now;         ///< what it has now
    bool isOpen = false; ///< it does not encrypt any more, and has shown none
};

/// Somebody who can be asked while a conversation waits. Called on the conversation's thread, which may be
/// any; each call may take as long as the user does, and ends when the flag is raised.
class AccessQuestions {
public:
    virtual ~AccessQuestions() = default;

    /// Nothing if nobody can, or wants to, answer.
    virtual std::optional<Login> askLogin(const LoginQuestion& question, const CancelFlag& cancelled) = 0;

    /// A login that was answered now has let the user in.
    virtual void loginWasRight(const Place& place, const Login& login) = 0;

    /// Whether the server with that certificate is the one that is meant.
    virtual bool askCertificate(const CertificateQuestion& question, const CancelFlag& cancelled) = 0;
};

/// What was answered, for all conversations of the process. Any thread. Nothing of it is written anywhere.
class Access {
public:
    static Access& shared();

    /// From now on these are asked, in the place of those who were added before.
    void addQuestions(std::shared_ptr<AccessQuestions> questions);

    /// They are not asked any more; of those who are left, whoever was added last is.
    void removeQuestions(const AccessQuestions* questions);

    /// The login for a place: the kept one, or what is answered now. One question for a place at a time: who
    /// comes meanwhile gets its answer. `refused` is what the place has just turned down. Nothing if nobody
    /// answers; then nobody is asked about that place again before askAgain().
    std::optional<Login> login(const LoginQuestion& question, const std::optional<Login>& refused,
                               const CancelFlag& cancelled);

    /// It has let the user in: others may use it, too.
    void wasRight(const Place& place, const Login& login);

    /// The place has turned the login down: it is forgotten, unless another one is kept by now, and what is
    /// kept beyond the session does not answer the next question.
    void wasWrong(const Place& place, const Login& login);

    /// The name under which the host has the user's jobs, by what this process knows; empty: the user's own;
    /// nothing: nobody has looked.
    std::optional<QString> jobOwner(const QString& host) const;

    void setJobOwner(const QString& host, const QString& user);

    /// The same for certificates; an answer counts for that certificate of that host.
    bool trusts(const CertificateQuestion& question, const CancelFlag& cancelled);

    /// Whether anybody wanted a name and a password and was given none that is right.
    bool lacksLogin() const;

    /// The user has said that asking again is welcome.
    void askAgain();

private:
    std::shared_ptr<AccessQuestions> questions() const;

    mutable std::mutex mutex_;                          ///< for what follows
    std::mutex asking_;                                 ///< held while a question is open
    QList<std::shared_ptr<AccessQuestions>> questions_; ///< the last one is asked
    QMap<Place, Login> kept_;
    QMap<QString, QString> jobOwners_; ///< by host
    std::set<Place> wrong_;            ///< whose kept login was turned down
    std::set<Place> declined_;         ///< about which nobody answered
    QSet<QString> trusted_;
    QSet<QString> distrusted_;
};

} // namespace cups
} // namespace halvern
