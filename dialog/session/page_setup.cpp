// SPDX-License-Identifier: MIT
#include "dialog/session/page_setup.h"

#include "dialog/options/ppd_model.h"
#include "dialog/session/session_request.h"
#include "platform/printing/page_format.h"

#include <algorithm>

namespace halvern {

namespace {

constexpr QSizeF kUsualSheet(595.28, 841.89);

PageRect toPageRect(const QRectF& rect)
{
    return {rect.top(), rect.left(), rect.bottom(), rect.right()};
}

} // namespace

PageSetup::PageSetup(const SessionRequest& request)
{
    settings_.copies = request.copies;
    settings_.pages = request.pages;
    settings_.turn = request.turn;
    settings_.title = request.title;
    settings_.scaling = request.scaling.value_or(settings_.scaling);
    settings_.isCollated = request.isCollated;
    settings_.scalePercent = request.scalePercent;
    settings_.colours = request.colours;
    settings_.sheets = request.sheets;
    const std::optional<Layout> layout = layouts_.find(request.sheets.layout);
    if (!request.scaling && layout && layout->scaling)
        settings_.scaling = *layout->scaling;
    if (!request.scaling && settings_.sheets.percent != SheetSettings().percent)
        settings_.scaling = Scaling::actualSize;
}

QString scalingWord(Scaling scaling)
{
    switch (scaling) {
    case Scaling::fit:
        return QStringLiteral("fit");
    case Scaling::fill:
        return QStringLiteral("fill");
    case Scaling::actualSize:
        break;
    }
    return QStringLiteral("none");
}

void PageSetup::takeWishes(const PageWishes& wishes)
{
    if (std::exchange(hasTakenWishes_, true))
        return;
    for (const Scaling scaling : {Scaling::fit, Scaling::fill, Scaling::actualSize}) {
        if (wishes.scaling == scalingWord(scaling))
            settings_.scaling = scaling;
    }
    settings_.isCollated = wishes.isCollated.value_or(settings_.isCollated);
    PageChoice& pages = settings_.pages;
    if (pages.ranges.isEmpty())
        pages.ranges = wishes.pageRanges;
    if (wishes.pageSet == QLatin1StringView("odd"))
        pages.parity = PageParity::odd;
    else if (wishes.pageSet == QLatin1StringView("even"))
        pages.parity = PageParity::even;
    pages.isReversed = wishes.isReversed.value_or(pages.isReversed);
}

void PageSetup::keepChoice(const std::vector<size_t>& left, size_t count)
{
    PageChoice& choice = settings_.pages;
    if (choice.ranges.isEmpty() && choice.parity == PageParity::all)
        return;
    const std::vector<size_t> chosen = choosePages(choice, count).pages;
    std::vector<size_t> places;
    for (size_t i = 0; i < left.size(); ++i) {
        if (std::ranges::find(chosen, left[i]) != chosen.end())
            places.push_back(i);
    }
    if (places.empty())
        return;
    choice.ranges = rangesOf(places);
    choice.parity = PageParity::all;
}

SheetPlan PageSetup::plan(const std::vector<Photo>& photos, const std::vector<size_t>& chosen,
                          const PpdModel* model) const
{
    const std::optional<Layout> layout = layouts_.find(settings_.sheets.layout);
    if (!layout)
        return {{}, layouts_.unknownText(settings_.sheets.layout)};
    SheetGeometry sheet{kUsualSheet, QRectF(QPointF(), kUsualSheet)};
    if (model)
        sheet = model->sheet();
    return planSheets({sheet.paper, sheet.imageable, settings_.turn, settings_.scaling, *layout,
                       settings_.sheets, model ? model->resolution() : kUsualResolution},
                      photos, chosen);
}

PageLayout PageSetup::layout(const Photo& photo, const PpdModel* model) const
{
    const SheetPlan alone = plan({photo}, {0}, model);
    return alone.sheets.empty() ? PageLayout() : alone.sheets.front().photos.front().layout;
}

PageLayout PageSetup::sheet(const PpdModel* model) const
{
    SheetGeometry sheet{kUsualSheet, QRectF(QPointF(), kUsualSheet)};
    if (model)
        sheet = model->sheet();
    // What is as large as the sheet turns it only where the user says so.
    return layOut({sheet.paper, sheet.imageable, sheet.paper, settings_.scaling, settings_.turn});
}

std::shared_ptr<PageFormat> PageSetup::format(const PpdModel& model, const Sheet* first) const
{
    const SheetGeometry sheet = model.sheet();
    const bool turned = first ? first->page.turned : settings_.turn == PageTurn::landscape;
    return std::make_shared<PageFormat>(toPageRect(QRectF(QPointF(), sheet.paper)),
                                        toPageRect(sheet.imageable),
                                        turned ? PageOrientation::landscape : PageOrientation::portrait);
}

} // namespace halvern
