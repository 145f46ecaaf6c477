// SPDX-License-Identifier: MIT
// Which photos are printed, what is wanted of each, and how they are put on sheets.
#include "dialog/session/dialog_session.h"

#include <algorithm>

namespace halvern {

void DialogSession::setPlacement(size_t photo, const PhotoPlacement& placement)
{
    photos_.setPlacement(photo, placement);
    Q_EMIT optionsChanged();
}

void DialogSession::cropAllAs(size_t photo)
{
    const PhotoPlacement crop = photos().at(photo).placement;
    for (size_t i = 0; i < photos().size(); ++i)
        photos_.setPlacement(i, withCropOf(photos()[i].placement, crop));
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
    setPage(changed);
}

std::vector<SheetToPrint> DialogSession::sheetsToPrint() const
{
    std::vector<SheetToPrint> sheets;
    SheetPlan plan = sheetPlan();
    for (Sheet& sheet : plan.sheets) {
        SheetToPrint printed;
        for (const PlacedPhoto& placed : sheet.photos)
            printed.photos.push_back(photos()[placed.photo]);
        printed.sheet = std::move(sheet);
        printed.caption = page().sheets.caption;
        sheets.push_back(std::move(printed));
    }
    return sheets;
}

} // namespace halvern
