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
    settings_.sheets = withWishes({}, request.sheets);
    if (!request.scaling)
        settings_.scaling = scalingWith(settings_.scaling, request.sheets);
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

std::optional<Scaling> scalingOf(const QString& word)
{
    for (const Scaling scaling : {Scaling::fit, Scaling::fill, Scaling::actualSize}) {
        if (word == scalingWord(scaling))
            return scaling;
    }
    return std::nullopt;
}

void PageSetup::takeWishes(const PageWishes& wishes)
{
    if (std::exchange(hasTakenWishes_, true))
        return;
    settings_.scaling = scalingOf(wishes.scaling).value_or(settings_.scaling);
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
    const ChosenPages before = choosePages(choice, count);
    if (choice.ranges.isEmpty() || before.pages.empty())
        return;
    std::vector<size_t> places;
    for (size_t i = 0; i < left.size(); ++i) {
        if (std::ranges::binary_search(before.pages, left[i]))
            places.push_back(i);
    }
    choice.isGone = places.empty();
    if (!choice.isGone)
        choice.ranges = rangesOf(places);
}

SheetRequest PageSetup::requestFor(const Layout& layout, const PpdModel* model) const
{
    SheetGeometry sheet{kUsualSheet, QRectF(QPointF(), kUsualSheet)};
    if (model)
        sheet = model->sheet();
    return {sheet.paper,
            sheet.imageable,
            settings_.turn,
            settings_.scaling,
            layout,
            settings_.sheets,
            model ? model->resolution() : kUsualResolution};
}

std::shared_ptr<const SheetPlan> PageSetup::plan(const std::vector<Photo>& photos,
                                                 const std::vector<size_t>& chosen,
                                                 const PpdModel* model) const
{
    const std::optional<Layout> layout = layouts_.find(settings_.sheets.layout);
    if (!layout) {
        planned_.reset();
        plan_ =
            std::make_shared<const SheetPlan>(SheetPlan{{}, layouts_.unknownText(settings_.sheets.layout)});
        return plan_;
    }
    PlanKey key{requestFor(*layout, model), settings_.pages, chosen, {}};
    for (const Photo& photo : photos)
        key.photos.push_back({photo.ownSize, photo.placement});
    if (planned_ != key) {
        plan_ = std::make_shared<const SheetPlan>(
            withChosenSheets(planSheets(key.request, photos, chosen), settings_.pages));
        planned_ = std::move(key);
    }
    return plan_;
}

PageLayout PageSetup::layout(const Photo& photo, const PpdModel* model) const
{
    const Layout layout = layouts_.find(settings_.sheets.layout).value_or(Layout());
    const SheetPlan alone = planSheets(requestFor(layout, model), {photo}, {0});
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
