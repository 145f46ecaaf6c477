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
    const char* advice; ///< null: there is nothing to do
};

constexpr std::array kReasonTexts{
    ReasonText{"media-empty", Severity::error, QT_TRANSLATE_NOOP("StateReasons", "out of paper"),
               QT_TRANSLATE_NOOP("StateReasons", "Load paper.")},
    ReasonText{"media-needed", Severity::error, QT_TRANSLATE_NOOP("StateReasons", "out of paper"),
               QT_TRANSLATE_NOOP("StateReasons", "Load the paper that the job wants.")},
    ReasonText{"media-low", Severity::warning, QT_TRANSLATE_NOOP("StateReasons", "paper is low"),
               QT_TRANSLATE_NOOP("StateReasons", "Load paper soon.")},
    ReasonText{"media-jam", Severity::error, QT_TRANSLATE_NOOP("StateReasons", "paper jam"),
               QT_TRANSLATE_NOOP("StateReasons", "Take the jammed paper out.")},
    ReasonText{"input-tray-missing", Severity::error,
               QT_TRANSLATE_NOOP("StateReasons", "a paper tray is missing"),
               QT_TRANSLATE_NOOP("StateReasons", "Push the paper tray in.")},
    ReasonText{"output-tray-missing", Severity::error,
               QT_TRANSLATE_NOOP("StateReasons", "the output tray is missing"),
               QT_TRANSLATE_NOOP("StateReasons", "Put the output tray in.")},
    ReasonText{"output-area-full", Severity::error,
               QT_TRANSLATE_NOOP("StateReasons", "the output tray is full"),
               QT_TRANSLATE_NOOP("StateReasons", "Empty the output tray.")},
    ReasonText{"output-area-almost-full", Severity::warning,
               QT_TRANSLATE_NOOP("StateReasons", "the output tray is nearly full"),
               QT_TRANSLATE_NOOP("StateReasons", "Empty the output tray soon.")},
    ReasonText{"door-open", Severity::error, QT_TRANSLATE_NOOP("StateReasons", "a door is open"),
               QT_TRANSLATE_NOOP("StateReasons", "Close the printer's door; the job goes on then.")},
    ReasonText{"cover-open", Severity::error, QT_TRANSLATE_NOOP("StateReasons", "the cover is open"),
               QT_TRANSLATE_NOOP("StateReasons", "Close the cover; the job goes on then.")},
    ReasonText{"interlock-open", Severity::error, QT_TRANSLATE_NOOP("StateReasons", "something is open"),
               QT_TRANSLATE_NOOP("StateReasons", "Close what is open; the job goes on then.")},
    ReasonText{"offline", Severity::error, QT_TRANSLATE_NOOP("StateReasons", "not connected or switched off"),
               QT_TRANSLATE_NOOP("StateReasons", "Switch the printer on and look at its cable or network.")},
    ReasonText{"connecting-to-device", Severity::report, QT_TRANSLATE_NOOP("StateReasons", "connecting"),
               nullptr},
    ReasonText{"paused", Severity::error, QT_TRANSLATE_NOOP("StateReasons", "paused"),
               QT_TRANSLATE_NOOP("StateReasons", "Resume it, or ask whoever has paused it.")},
    ReasonText{"moving-to-paused", Severity::warning, QT_TRANSLATE_NOOP("StateReasons", "pausing"), nullptr},
    ReasonText{"hold-new-jobs", Severity::warning, QT_TRANSLATE_NOOP("StateReasons", "holds new jobs"),
               QT_TRANSLATE_NOOP("StateReasons", "Release it, and new jobs are printed.")},
    ReasonText{"shutdown", Severity::error, QT_TRANSLATE_NOOP("StateReasons", "switched off"),
               QT_TRANSLATE_NOOP("StateReasons", "Switch the printer on.")},
    ReasonText{"power-down", Severity::error, QT_TRANSLATE_NOOP("StateReasons", "switched off"),
               QT_TRANSLATE_NOOP("StateReasons", "Switch the printer on.")},
    ReasonText{"timed-out", Severity::error, QT_TRANSLATE_NOOP("StateReasons", "does not answer"),
               QT_TRANSLATE_NOOP("StateReasons", "Switch the printer on and look at its cable or network.")},
    ReasonText{"toner-low", Severity::warning, QT_TRANSLATE_NOOP("StateReasons", "toner is low"),
               QT_TRANSLATE_NOOP("StateReasons", "Have new toner at hand.")},
    ReasonText{"toner-empty", Severity::error, QT_TRANSLATE_NOOP("StateReasons", "out of toner"),
               QT_TRANSLATE_NOOP("StateReasons", "Put new toner in.")},
    ReasonText{"marker-supply-low", Severity::warning, QT_TRANSLATE_NOOP("StateReasons", "ink is low"),
               QT_TRANSLATE_NOOP("StateReasons", "Have new ink at hand.")},
    ReasonText{"marker-supply-empty", Severity::error, QT_TRANSLATE_NOOP("StateReasons", "out of ink"),
               QT_TRANSLATE_NOOP("StateReasons", "Put new ink in.")},
    ReasonText{"marker-supply-missing", Severity::error,
               QT_TRANSLATE_NOOP("StateReasons", "an ink cartridge is missing"),
               QT_TRANSLATE_NOOP("StateReasons", "Put the missing cartridge in.")},
    ReasonText{"marker-waste-almost-full", Severity::warning,
               QT_TRANSLATE_NOOP("StateReasons", "the waste tank is nearly full"),
               QT_TRANSLATE_NOOP("StateReasons", "Have a new waste tank at hand.")},
    ReasonText{"marker-waste-full", Severity::error,
               QT_TRANSLATE_NOOP("StateReasons", "the waste tank is full"),
               QT_TRANSLATE_NOOP("StateReasons", "Put a new waste tank in.")},
    ReasonText{"fuser-over-temp", Severity::error, QT_TRANSLATE_NOOP("StateReasons", "too hot"),
               QT_TRANSLATE_NOOP("StateReasons", "Let the printer cool down.")},
    ReasonText{"fuser-under-temp", Severity::report, QT_TRANSLATE_NOOP("StateReasons", "warming up"),
               nullptr},
    ReasonText{"opc-near-eol", Severity::warning,
               QT_TRANSLATE_NOOP("StateReasons", "the drum is nearly worn out"),
               QT_TRANSLATE_NOOP("StateReasons", "Have a new drum at hand.")},
    ReasonText{"opc-life-over", Severity::error, QT_TRANSLATE_NOOP("StateReasons", "the drum is worn out"),
               QT_TRANSLATE_NOOP("StateReasons", "Put a new drum in.")},
    ReasonText{"developer-low", Severity::warning, QT_TRANSLATE_NOOP("StateReasons", "developer is low"),
               QT_TRANSLATE_NOOP("StateReasons", "Have new developer at hand.")},
    ReasonText{"developer-empty", Severity::error, QT_TRANSLATE_NOOP("StateReasons", "out of developer"),
               QT_TRANSLATE_NOOP("StateReasons", "Put new developer in.")},
    ReasonText{"cleaning", Severity::report, QT_TRANSLATE_NOOP("StateReasons", "cleaning"), nullptr},
    ReasonText{"spool-area-full", Severity::error, QT_TRANSLATE_NOOP("StateReasons", "no room for more jobs"),
               QT_TRANSLATE_NOOP("StateReasons", "Wait until jobs are printed, or cancel some.")},
    ReasonText{"stopping", Severity::warning, QT_TRANSLATE_NOOP("StateReasons", "stopping"), nullptr},
    ReasonText{"cups-missing-filter", Severity::error,
               QT_TRANSLATE_NOOP("StateReasons", "its driver is not installed"),
               QT_TRANSLATE_NOOP("StateReasons", "Install the printer's driver.")},
    ReasonText{"cups-insecure-filter", Severity::error,
               QT_TRANSLATE_NOOP("StateReasons", "its driver is not installed safely"),
               QT_TRANSLATE_NOOP("StateReasons", "Install the printer's driver anew.")},
    ReasonText{"other", Severity::warning, QT_TRANSLATE_NOOP("StateReasons", "needs attention"),
               QT_TRANSLATE_NOOP("StateReasons", "Look at the printer's own display.")},
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

QString reasonAdvice(const QString& reason)
{
    const Ending* ending = endingOf(reason);
    const ReasonText* known = find(ending ? reason.chopped(qsizetype(qstrlen(ending->text))) : reason);
    return known && known->advice ? QCoreApplication::translate("StateReasons", known->advice) : QString();
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
