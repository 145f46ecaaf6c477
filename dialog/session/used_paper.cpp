// SPDX-License-Identifier: MIT
#include "dialog/session/used_paper.h"

#include "dialog/options/custom_paper.h"
#include "dialog/session/dialog_session.h"
#include "platform/foundation/units.h"

#include <algorithm>

namespace halvern {

namespace {

constexpr double kSpare = 2.0; // points, for what is rounded on the way

} // namespace

std::optional<QSizeF> usedPaper(DialogSession& session)
{
    const PpdModel* model = session.model();
    const std::optional<PaperLimits> limits = model ? paperLimits(model->file()) : std::nullopt;
    const std::optional<Layout> layout = session.layouts().find(session.page().sheets.layout);
    if (!limits || !layout || layout->kind != LayoutKind::pack)
        return std::nullopt;
    const std::shared_ptr<const SheetPlan> plan = session.sheetPlan();
    if (plan->sheets.size() != 1 || plan->sheets.front().page.turned)
        return std::nullopt;
    const Sheet& sheet = plan->sheets.front();
    const QSizeF page = sheet.page.page;
    const SheetSettings& settings = session.page().sheets;
    // The margin may hold the cut marks, and what the printer leaves free may not.
    const double free = std::max(page.height() - sheet.page.imageable.bottom(), limits->margins.bottom());
    const double marks = settings.hasCutMarks ? kCutMarkReach * kPointsPerMillimetre : 0.0;
    const double below = std::max(free + marks, settings.margin * kPointsPerMillimetre);
    QSizeF paper(page.width(), sheet.usedLength + below + kSpare);
    paper = paper.expandedTo(limits->least).boundedTo(limits->most);
    const bool isShorter = paper.height() < page.height() - 2.0 * kSpare && paper.width() == page.width();
    return isShorter ? std::optional(paper) : std::nullopt;
}

} // namespace halvern
