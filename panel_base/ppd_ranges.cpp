// SPDX-License-Identifier: MIT
#include "panel_base/base_panel.h"

#include "platform/printing/ppd.h"
#include "platform/toolkit/control.h"
#include "platform/toolkit/decimal_slider.h"

#include <algorithm>
#include <cmath>

namespace halvern {

namespace {

// A slider with fewer positions than these is a poor tool.
constexpr double kFewestSteps = 20.0;

// The greatest of 1, 2 and 5 times a power of ten that goes into the span often enough.
double readableStep(double span)
{
    const double most = span / kFewestSteps;
    const double decade = std::pow(10.0, std::floor(std::log10(most)));
    for (const double factor : {10.0, 5.0, 2.0}) {
        // A span such as 0.7 - 0.5 falls short of what it means by a hair.
        if (factor * decade <= most * (1.0 + 1e-9))
            return factor * decade;
    }
    return decade;
}

} // namespace

void KSTRVLBasePDEHalvern::takeSliderRangesFromPPD(SliderStep step)
{
    if (!_panelView)
        return;
    const QList<DecimalSlider*> sliders = _panelView->findChildren<DecimalSlider*>();
    for (DecimalSlider* slider : sliders) {
        const std::optional<QString> key = ppdOptionKeyForTag(control::tagOf(slider));
        if (!key)
            continue;
        if (const auto range = ppd::customRange(ppd, *key)) {
            slider->setMinimumValue(range->minimum);
            slider->setMaximumValue(range->maximum);
            if (step == SliderStep::fineForRange && !range->isWhole)
                slider->setSingleStepValue(
                    std::min(slider->singleStepValue(), readableStep(range->maximum - range->minimum)));
        }
    }
}

} // namespace halvern
