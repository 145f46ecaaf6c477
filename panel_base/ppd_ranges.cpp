#include "panel_base/base_panel.h"

#include "platform/printing/ppd.h"
#include "platform/toolkit/control.h"
#include "platform/toolkit/decimal_slider.h"

namespace halvern {

void KSTRVLBasePDEHalvern::takeSliderRangesFromPPD(SliderMark mark)
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
        }
        bool isNumber = false;
        const double byDefault = defaultValueForOptionKey(key).value_or(QString()).toDouble(&isNumber);
        if (mark == SliderMark::atPPDDefault && isNumber)
            slider->setNeutralValue(byDefault);
    }
}

} // namespace halvern
