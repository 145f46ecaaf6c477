#include "dialog/server/state_reasons.h"

#include <QCoreApplication>

#include <array>

namespace halvern {

namespace {

struct ReasonText {
    const char* reason;
    const char* text;
};

constexpr std::array kReasonTexts{
    ReasonText{"media-empty", QT_TRANSLATE_NOOP("StateReasons", "out of paper")},
    ReasonText{"media-needed", QT_TRANSLATE_NOOP("StateReasons", "out of paper")},
    ReasonText{"media-low", QT_TRANSLATE_NOOP("StateReasons", "paper is low")},
    ReasonText{"media-jam", QT_TRANSLATE_NOOP("StateReasons", "paper jam")},
    ReasonText{"door-open", QT_TRANSLATE_NOOP("StateReasons", "a door is open")},
    ReasonText{"cover-open", QT_TRANSLATE_NOOP("StateReasons", "the cover is open")},
    ReasonText{"offline", QT_TRANSLATE_NOOP("StateReasons", "not connected or switched off")},
    ReasonText{"connecting-to-device", QT_TRANSLATE_NOOP("StateReasons", "connecting")},
    ReasonText{"paused", QT_TRANSLATE_NOOP("StateReasons", "paused")},
    ReasonText{"moving-to-paused", QT_TRANSLATE_NOOP("StateReasons", "pausing")},
    ReasonText{"shutdown", QT_TRANSLATE_NOOP("StateReasons", "switched off")},
    ReasonText{"toner-low", QT_TRANSLATE_NOOP("StateReasons", "toner is low")},
    ReasonText{"toner-empty", QT_TRANSLATE_NOOP("StateReasons", "out of toner")},
    ReasonText{"marker-supply-low", QT_TRANSLATE_NOOP("StateReasons", "ink is low")},
    ReasonText{"marker-supply-empty", QT_TRANSLATE_NOOP("StateReasons", "out of ink")},
    ReasonText{"marker-waste-almost-full",
               QT_TRANSLATE_NOOP("StateReasons", "the waste tank is nearly full")},
    ReasonText{"marker-waste-full", QT_TRANSLATE_NOOP("StateReasons", "the waste tank is full")},
    ReasonText{"output-area-full", QT_TRANSLATE_NOOP("StateReasons", "the output tray is full")},
    ReasonText{"timed-out", QT_TRANSLATE_NOOP("StateReasons", "does not answer")},
    ReasonText{"cups-missing-filter", QT_TRANSLATE_NOOP("StateReasons", "its driver is not installed")},
    ReasonText{"cups-insecure-filter",
               QT_TRANSLATE_NOOP("StateReasons", "its driver is not installed safely")},
    ReasonText{"other", QT_TRANSLATE_NOOP("StateReasons", "needs attention")},
};

} // namespace

QString reasonText(const QString& reason)
{
    QString bare = reason;
    for (const char* suffix : {"-error", "-warning", "-report"}) {
        if (bare.endsWith(QLatin1StringView(suffix)))
            bare.chop(int(qstrlen(suffix)));
    }
    for (const ReasonText& known : kReasonTexts) {
        if (bare == QLatin1StringView(known.reason))
            return QCoreApplication::translate("StateReasons", known.text);
    }
    // Drivers and the server have words of their own for what nobody needs to see.
    if (!reason.endsWith(QLatin1StringView("-error")))
        return {};
    return bare.replace(QLatin1Char('-'), QLatin1Char(' '));
}

} // namespace halvern
