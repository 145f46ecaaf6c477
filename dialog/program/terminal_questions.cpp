// SPDX-License-Identifier: MIT
#include "dialog/program/terminal_questions.h"

#include "dialog/server/secret_store.h"
#include "dialog/session/login_words.h"
#include "dialog/session/quit_signals.h"
#include "platform/foundation/display_text.h"

#include <QCoreApplication>

#include <fcntl.h>
#include <poll.h>
#include <termios.h>
#include <unistd.h>

namespace halvern {

namespace {

constexpr int kLookAtFlagMilliseconds = 200;
constexpr qsizetype kLongestLine = 1000;

struct TerminalQuestionsWords {
    Q_DECLARE_TR_FUNCTIONS(TerminalQuestions)
};

/// The terminal itself: standard input may be a photo. What it echoes is put back at the end.
class Terminal {
public:
    explicit Terminal(const cups::CancelFlag& cancelled)
        : line_(open("/dev/tty", O_RDWR | O_NOCTTY | O_CLOEXEC)), cancelled_(cancelled)
    {
        hasSettings_ = line_ >= 0 && tcgetattr(line_, &settings_) == 0;
    }

    ~Terminal()
    {
        setEcho(true);
        if (line_ >= 0)
            close(line_);
    }

    Terminal(const Terminal&) = delete;
    Terminal& operator=(const Terminal&) = delete;

    /// Not for who runs in the background: the terminal stops whoever asks from there.
    bool isThere() const { return hasSettings_ && tcgetpgrp(line_) == getpgrp(); }

    void say(const QString& sentence) { put(terminalText(sentence) + QLatin1Char('\n')); }

    /// What is typed; nothing if the program is to end, or at the end of the input.
    std::optional<QString> ask(const QString& question, bool isSecret)
    {
        put(terminalText(question) + QLatin1Char(' '));
        setEcho(!isSecret);
        std::optional<QString> answer = readLine();
        setEcho(true);
        if (isSecret || !answer)
            put(QStringLiteral("\n"));
        return answer;
    }

private:
    void put(const QString& text)
    {
        const QByteArray bytes = text.toLocal8Bit();
        [[maybe_unused]] const ssize_t written = write(line_, bytes.constData(), size_t(bytes.size()));
    }

    void setEcho(bool isShown)
    {
        if (isShown == isEchoing_)
            return;
        isEchoing_ = isShown;
        termios settings = settings_;
        if (!isShown)
            settings.c_lflag &= ~tcflag_t(ECHO | ECHOE | ECHOK | ECHONL);
        tcsetattr(line_, isShown ? TCSANOW : TCSAFLUSH, &settings);
    }

    std::optional<QString> readLine()
    {
        QByteArray bytes;
        while (!quitWasSignalled() && !(cancelled_ && cancelled_->load())) {
            pollfd waits{line_, POLLIN, 0};
            if (poll(&waits, 1, kLookAtFlagMilliseconds) <= 0)
                continue;
            char byte = 0;
            if (read(line_, &byte, 1) != 1)
                return std::nullopt;
            if (byte == '\n')
                return QString::fromLocal8Bit(bytes);
            if (bytes.size() < kLongestLine)
                bytes.append(byte);
        }
        return std::nullopt;
    }

    int line_;
    termios settings_{};
    bool hasSettings_ = false;
    bool isEchoing_ = true;
    const cups::CancelFlag& cancelled_;
};

bool isYes(const std::optional<QString>& answer)
{
    const QString word = answer ? answer->trimmed().toLower() : QString();
    return !word.isEmpty() && (word == QLatin1StringView("y") || word == TerminalQuestionsWords::tr("yes"));
}

} // namespace

std::optional<cups::Login> TerminalQuestions::askLogin(const cups::LoginQuestion& question,
                                                       const cups::CancelFlag& cancelled)
{
    if (!question.wasRefused && question.isEncrypted) {
        if (std::optional<cups::Login> kept = secret_store::find(question.place))
            return kept;
    }
    Terminal terminal(cancelled);
    if (!terminal.isThere())
        return std::nullopt;
    terminal.say(whoAsks(question));
    cups::Login login;
    if (!question.isEncrypted) {
        terminal.say(openWayWarning(question.place));
        login.mayTravelOpenly =
            isYes(terminal.ask(TerminalQuestionsWords::tr("Send it all the same? [y/N]"), false));
        if (!login.mayTravelOpenly)
            return std::nullopt;
    }
    const std::optional<QString> user =
        terminal.ask(TerminalQuestionsWords::tr("Name [%1]:").arg(question.user), false);
    if (!user)
        return std::nullopt;
    login.user = user->isEmpty() ? question.user : *user;
    const std::optional<QString> password = terminal.ask(TerminalQuestionsWords::tr("Password:"), true);
    if (!password || password->isEmpty())
        return std::nullopt;
    login.password = *password;
    return login;
}

bool TerminalQuestions::askCertificate(const cups::CertificateQuestion& question,
                                       const cups::CancelFlag& cancelled)
{
    Terminal terminal(cancelled);
    if (!terminal.isThere())
        return false;
    for (const QString& sentence : certificateWords(question))
        terminal.say(sentence);
    return isYes(terminal.ask(TerminalQuestionsWords::tr("Trust it from now on? [y/N]"), false));
}

} // namespace halvern
