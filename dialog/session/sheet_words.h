// SPDX-License-Identifier: MIT
#pragma once

#include "dialog/job/job_options.h"
#include "dialog/page/layout_library.h"
#include "dialog/page/sheet_plan.h"

#include <QMap>
#include <QStringList>

namespace halvern {

/// How photos are put on sheets, in the words of others. Values; all of this on the main thread.

/// As the command line has it; empty for a photo a page as it always was.
QStringList sheetWords(const SheetSettings& settings, Scaling scaling, const LayoutLibrary& layouts);

/// As a user reads it: "4 on a page, 2 sheets, with captions"; empty for a photo a page as it always was.
QString layoutInWords(const SheetSettings& settings, const LayoutLibrary& layouts, const SheetPlan& plan);

/// A yes or no, as presets keep it.
inline QString trueOrFalse(bool value)
{
    return value ? QStringLiteral("true") : QStringLiteral("false");
}

/// As a preset keeps it, and back: what is not there, or cannot be, stays as it was.
QMap<QString, QString> sheetTexts(const SheetSettings& settings);
SheetSettings sheetsOf(const QMap<QString, QString>& texts, const SheetSettings& before);

/// "100x150", "100x150mm" or "4x6in" in millimetres. Nothing if it is none.
std::optional<QSizeF> photoSizeOf(const QString& text);

/// The lines that the printer writes on the back of each picture, as they are read.
QStringList linesOnBack(const JobValues& values);

/// What is on each sheet, and where, a line each: for whoever does not look at a preview.
QStringList sheetLines(const SheetPlan& plan, const std::vector<Photo>& photos);

} // namespace halvern
