// SPDX-License-Identifier: MIT
#include "dialog/session/login_words.h"

#include <QCoreApplication>

namespace halvern {

namespace {

struct LoginWordsWords {
    Q_DECLARE_TR_FUNCTIONS(LoginWords)
};

} // namespace

QString whoAsks(const cups::LoginQuestion& question)
{
    const cups::Place& place = question.place;
    const QString who =
        place.queue.isEmpty()
            ? LoginWordsWords::tr("The print server at %1 wants to know who you are.").arg(place.host)
            : LoginWordsWords::tr(
                  "The printer \"%1\" wants a name and a password of its own; the print server "
                  "at %2 hands them on to it.")
                  .arg(place.queue, place.host);
    return question.wasRefused
               ? LoginWordsWords::tr("That name or password was wrong.") + QLatin1Char(' ') + who
               : who;
}

QString openWayWarning(const cups::Place& place)
{
    return LoginWordsWords::tr(
               "The connection to %1 is not encrypted: others could read the password on its way.")
        .arg(place.host);
}

QStringList certificateWords(const cups::CertificateQuestion& question)
{
    const QString now = question.now.isEmpty() ? LoginWordsWords::tr("It shows none.")
                                               : LoginWordsWords::tr("It shows now: %1").arg(question.now);
    if (question.known.isEmpty())
        return {
            LoginWordsWords::tr("The print server at %1 cannot prove who it is, and was never seen before.")
                .arg(question.host),
            now};
    if (question.isOpen)
        return {LoginWordsWords::tr(
                    "The print server at %1 encrypted before, and does not any more. It may have been "
                    "set up anew, or somebody else may be answering in its place. What you print there "
                    "could be read on its way.")
                    .arg(question.host),
                LoginWordsWords::tr("It had: %1").arg(question.known)};
    return {LoginWordsWords::tr(
                "The print server at %1 has another certificate than before. It may have been renewed, or "
                "somebody else may be answering in its place.")
                .arg(question.host),
            LoginWordsWords::tr("It had: %1").arg(question.known), now};
}

} // namespace halvern
