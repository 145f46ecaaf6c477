// SPDX-License-Identifier: MIT
#include "dialog/session/page_setup.h"

#include "dialog/options/ppd_model.h"
#include "dialog/page/photo.h"
#include "platform/printing/page_format.h"

namespace halvern {

namespace {

PageRect toPageRect(const QRectF& rect)
{
    return {rect.top(), rect.left(), rect.bottom(), rect.right()};
}

} // namespace

void PageSetup::takeWishes(const PageWishes& wishes)
{
    if (std::exchange(hasTakenWishes_, true))
        return;
    if (wishes.scaling == QLatin1StringView("fill"))
        settings_.scaling = Scaling::fill;
    else if (wishes.scaling == QLatin1StringView("none"))
        settings_.scaling = Scaling::actualSize;
    settings_.isCollated = wishes.isCollated.value_or(settings_.isCollated);
}

PageLayout PageSetup::layout(const Photo& photo, const PpdModel* model) const
{
    SheetGeometry sheet{QSizeF(595.28, 841.89), QRectF(0.0, 0.0, 595.28, 841.89)};
    if (model)
        sheet = model->sheet();
    return layOut(
        {sheet.paper, sheet.imageable, photo.ownSize, settings_.scaling, settings_.turn, photo.position});
}

std::shared_ptr<PageFormat> PageSetup::format(const PpdModel& model, const Photo* first) const
{
    const SheetGeometry sheet = model.sheet();
    const bool turned = first ? layout(*first, &model).turned : settings_.turn == PageTurn::landscape;
    return std::make_shared<PageFormat>(toPageRect(QRectF(QPointF(), sheet.paper)),
                                        toPageRect(sheet.imageable),
                                        turned ? PageOrientation::landscape : PageOrientation::portrait);
}

} // namespace halvern
