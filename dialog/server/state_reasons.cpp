// SPDX-License-Identifier: MIT
#include "dialog/server/state_reasons.h"

#include "platform/foundation/display_text.h"

#include <QCoreApplication>
#include <QRegularExpression>

#include <algorithm>
#include <array>

namespace halvern {

namespace {

constexpr int kLongestMessage = 160;

struct ReasonText {
    const char* reason;
    Severity severity; ///< if the reason comes without one
    const char* text;
};

constexpr std::array kReasonTexts{
    ReasonText{"media-empty", Severity::error, QT_TRANSLATE_NOOP("StateReasons", "out of paper")},
    ReasonText{"media-needed", Severity::error, QT_TRANSLATE_NOOP("StateReasons", "out of paper")},
    ReasonText{"media-low", Severity::warning, QT_TRANSLATE_NOOP("StateReasons", "paper is low")},
    ReasonText{"media-jam", Severity::error, QT_TRANSLATE_NOOP("StateReasons", "paper jam")},
    ReasonText{"door-open", Severity::error, QT_TRANSLATE_NOOP("StateReasons", "a door is open")},
    ReasonText{"cover-open", Severity::error, QT_TRANSLATE_NOOP("StateReasons", "the cover is open")},
    ReasonText{"offline", Severity::error,
               QT_TRANSLATE_NOOP("StateReasons", "not connected or switched off")},
    ReasonText{"connecting-to-device", Severity::report, QT_TRANSLATE_NOOP("StateReasons", "connecting")},
    ReasonText{"paused", Severity::error, QT_TRANSLATE_NOOP("StateReasons", "paused")},
    ReasonText{"moving-to-paused", Severity::warning, QT_TRANSLATE_NOOP("StateReasons", "pausing")},
    ReasonText{"shutdown", Severity::error, QT_TRANSLATE_NOOP("StateReasons", "switched off")},
    ReasonText{"toner-low", Severity::warning, QT_TRANSLATE_NOOP("StateReasons", "toner is low")},
    ReasonText{"toner-empty", Severity::error, QT_TRANSLATE_NOOP("StateReasons", "out of toner")},
    ReasonText{"marker-supply-low", Severity::warning, QT_TRANSLATE_NOOP("StateReasons", "ink is low")},
    ReasonText{"marker-supply-empty", Severity::error, QT_TRANSLATE_NOOP("StateReasons", "out of ink")},
    ReasonText{"marker-waste-almost-full", Severity::warning,
               QT_TRANSLATE_NOOP("StateReasons", "the waste tank is nearly full")},
    ReasonText{"marker-waste-full", Severity::error,
               QT_TRANSLATE_NOOP("StateReasons", "the waste tank is full")},
    ReasonText{"output-area-full", Severity::error,
               QT_TRANSLATE_NOOP("StateReasons", "the output tray is full")},
    ReasonText{"timed-out", Severity::error, QT_TRANSLATE_NOOP("StateReasons", "does not answer")},
    ReasonText{"cups-missing-filter", Severity::error,
               QT_TRANSLATE_NOOP("StateReasons", "its driver is not installed")},
    ReasonText{"cups-insecure-filter", Severity::error,
               QT_TRANSLATE_NOOP("StateReasons", "its driver is not installed safely")},
    ReasonText{"other", Severity::warning, QT_TRANSLATE_NOOP("StateReasons", "needs attention")},
};

struct Ending {
    const char* text;
    Severity severity;
};

constexpr std::array kEndings{
    Ending{"-error", Severity::error},
    Ending{"-warning", Severity::warning},
    Ending{"-report", Severity::report},
};

const Ending* endingOf(const QString& reason)
{
    const auto found = std::ranges::find_if(
        kEndings, [&](const Ending& ending) { return reason.endsWith(QLatin1StringView(ending.text)); });
    return found == kEndings.end() ? nullptr : &*found;
}

const ReasonText* find(const QString& bare)
{
    const auto found = std::ranges::find_if(
        kReasonTexts, [&](const ReasonText& known) { return bare == QLatin1StringView(known.reason); });
    return found == kReasonTexts.end() ? nullptr : &*found;
}

} // namespace

Severity severityOf(const QString& reason)
{
    if (const Ending* ending = endingOf(reason))
        return ending->severity;
    const ReasonText* known = find(reason);
    return known ? known->severity : Severity::report;
}

QString reasonText(const QString& reason)
{
    const Ending* ending = endingOf(reason);
    QString bare = ending ? reason.chopped(qsizetype(qstrlen(ending->text))) : reason;
    if (const ReasonText* known = find(bare))
        return QCoreApplication::translate("StateReasons", known->text);
    // Drivers and the server have words of their own for what nobody needs to see.
    if (severityOf(reason) != Severity::error)
        return {};
    return bare.replace(QLatin1Char('-'), QLatin1Char(' '));
}

QString messageText(const QString& message)
{
    static const QRegularExpression chatter(
        QStringLiteral("^(color manager|printing page|processing page|(start )?rendering|loading|loaded|"
                       "ready to print|print(ing)? (file|job)|sending|sent |spooling|connect(ed|ing) to|"
                       "looking up|(paused|rejecting jobs)\\.?$)|\\d ?%"),
        QRegularExpression::CaseInsensitiveOption);
    if (chatter.match(message).hasMatch())
        return {};
    QString text = displayText(message, kLongestMessage);
    if (text.endsWith(QLatin1Char('.')))
        text.chop(1);
    return text;
}

} // namespace halvern
