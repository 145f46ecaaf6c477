// SPDX-License-Identifier: MIT
// Which photos are printed, what is wanted of each, and how they are put on sheets.
#include "dialog/session/dialog_session.h"

#include "platform/foundation/display_text.h"
#include "platform/foundation/numbers.h"
#include "platform/foundation/units.h"
#include "platform/maker/summary_rules.h"

#include <QFileInfo>

#include <algorithm>
#include <set>

namespace halvern {

namespace {

constexpr int kLongestTitle = 60;

QString nameOf(const Photo& photo)
{
    return isolated(QFileInfo(photo.path).fileName(), kLongestTitle);
}

} // namespace

void DialogSession::setPlacement(size_t photo, const PhotoPlacement& placement)
{
    photos_.setPlacement(photo, placement);
    Q_EMIT optionsChanged();
}

void DialogSession::cropAllAs(size_t photo)
{
    const PhotoPlacement crop = photos().at(photo).placement;
    const bool isDone = steps_.take(PhotoSteps::Kind::crop, [&] {
        for (size_t i = 0; i < photos().size(); ++i)
            photos_.setPlacement(i, withCropOf(photos()[i].placement, crop));
    });
    if (!isDone)
        return;
    Q_EMIT optionsChanged();
    Q_EMIT stepTaken(tr("All photos are cropped and turned like \"%1\" now.").arg(nameOf(photos()[photo])));
}

void DialogSession::movePhotos(const std::vector<size_t>& places, size_t before)
{
    const std::vector<size_t> order = movedOrder(photos().size(), places, before);
    const bool isDone = steps_.take(PhotoSteps::Kind::order, [&] { arrange(order); });
    if (isDone)
        Q_EMIT stepTaken(places.size() == 1 ? tr("1 photo was moved.")
                                            : tr("%1 photos were moved.").arg(places.size()));
}

void DialogSession::removePhotos(const std::vector<size_t>& places)
{
    std::vector<size_t> left;
    for (size_t i = 0; i < photos().size(); ++i) {
        if (std::ranges::find(places, i) == places.end())
            left.push_back(i);
    }
    const QString first = places.empty() ? QString() : nameOf(photos().at(places.front()));
    if (!steps_.take(PhotoSteps::Kind::removal, [&] { arrange(left); }))
        return;
    Q_EMIT stepTaken(places.size() == 1 ? tr("\"%1\" was taken out.").arg(first)
                                        : tr("%1 photos were taken out.").arg(places.size()));
}

// `order` names what stays, by its places.
void DialogSession::arrange(const std::vector<size_t>& order)
{
    std::vector<Photo> arranged;
    arranged.reserve(order.size());
    for (const size_t place : order)
        arranged.push_back(photos()[place]);
    const bool hadChosen = !choosePages(page().pages, photos().size()).pages.empty();
    page_.keepChoice(order, photos().size());
    if (hadChosen && choosePages(page().pages, arranged.size()).pages.empty()) {
        // None of those that were chosen is left.
        PageSettings all = page();
        all.pages.ranges.clear();
        all.pages.parity = PageParity::all;
        page_.set(all);
    }
    photos_.arrange(std::move(arranged));
    Q_EMIT optionsChanged();
}

void DialogSession::choosePhotos(const std::vector<size_t>& places)
{
    PageSettings chosen = page();
    chosen.pages.ranges = places.size() == photos().size() ? QString() : rangesOf(places);
    chosen.pages.parity = PageParity::all;
    if (places.empty() || !steps_.take(PhotoSteps::Kind::choice, [&] { setPage(chosen); }))
        return;
    Q_EMIT stepTaken(places.size() == photos().size()
                         ? tr("All photos are printed now.")
                         : tr("%1 of %2 photos are printed now.").arg(places.size()).arg(photos().size()));
}

void DialogSession::setPhotoCopies(const std::vector<size_t>& places, int copies)
{
    for (const size_t place : places) {
        PhotoPlacement placement = photos().at(place).placement;
        placement.copies = copies;
        photos_.setPlacement(place, placement);
    }
    Q_EMIT optionsChanged();
}

ChosenPages DialogSession::chosenPages() const
{
    ChosenPages chosen = choosePages(page().pages, photos().size());
    const size_t before = chosen.pages.size();
    std::erase_if(chosen.pages, [this](size_t place) { return !photos()[place].placement.isIncluded; });
    if (before > 0 && chosen.pages.empty())
        chosen.problem = tr("All photos are left out. Include at least one of them.");
    return chosen;
}

std::vector<size_t> DialogSession::printedPhotos() const
{
    const PageParity parity = page().pages.parity;
    if (document() || (parity != PageParity::odd && parity != PageParity::even))
        return chosenPages().pages;
    std::set<size_t> printed;
    const std::shared_ptr<const SheetPlan> plan = sheetPlan();
    for (const Sheet& sheet : plan->sheets) {
        for (const PlacedPhoto& placed : sheet.photos)
            printed.insert(placed.photo);
    }
    return {printed.begin(), printed.end()};
}

// What the layout before it has set goes with it.
void DialogSession::chooseLayout(const QString& id)
{
    const std::optional<Layout> before = layouts().find(page().sheets.layout);
    const std::optional<Layout> layout = layouts().find(id);
    if (!layout)
        return;
    PageSettings changed = page();
    changed.sheets = withLayout(changed.sheets, *layout);
    if (layout->scaling)
        changed.scaling = *layout->scaling;
    else if (before && before->scaling == changed.scaling)
        changed.scaling = Scaling::fit;
    changeSheets(changed);
}

void DialogSession::changeSheets(const PageSettings& wanted)
{
    const SheetSettings& now = page().sheets;
    const SheetSettings& then = wanted.sheets;
    const bool isLayout = now.layout != then.layout;
    const bool isSize = now.photo != then.photo || now.percent != then.percent || now.corner != then.corner ||
                        page().scaling != wanted.scaling;
    const auto change = [&] { setPage(wanted); };
    // The way back to a layout that is gone is none.
    if (isLayout && layouts().find(now.layout)) {
        if (steps_.take(PhotoSteps::Kind::layout, change))
            Q_EMIT stepTaken(tr("The layout was changed."));
    } else if (isSize && !isLayout) {
        if (steps_.take(PhotoSteps::Kind::size, change))
            Q_EMIT stepTaken(tr("The photo's size or place was changed."));
    } else {
        change();
    }
}

double DialogSession::overspill() const
{
    const QString key = QStringLiteral("Overspill");
    const auto value = [this](const QString& other) { return model()->value(other); };
    if (!model() || maker::saysNothing(key, value))
        return 0.0;
    const PageLayout page = sheet();
    const bool isToTheEdges =
        page.imageable.adjusted(-0.5, -0.5, 0.5, 0.5).contains(QRectF(QPointF(), page.page));
    const double millimetres = leadingDouble(value(key));
    return isToTheEdges && millimetres > 0.0 ? millimetres * kPointsPerMillimetre : 0.0;
}

std::vector<SheetToPrint> DialogSession::sheetsToPrint() const
{
    std::vector<SheetToPrint> sheets;
    const std::shared_ptr<const SheetPlan> plan = sheetPlan();
    for (const Sheet& sheet : plan->sheets) {
        SheetToPrint printed;
        for (const PlacedPhoto& placed : sheet.photos)
            printed.photos.push_back(photos()[placed.photo]);
        printed.sheet = sheet;
        printed.caption = page().sheets.caption;
        sheets.push_back(std::move(printed));
    }
    return sheets;
}

} // namespace halvern
