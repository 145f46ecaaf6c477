// SPDX-License-Identifier: MIT
#include "tests/panel_base/test_panel.h"

#include "panel_base/tags.h"
#include "platform/toolkit/decimal_slider.h"

namespace halvern {

std::optional<QString> TestPanel::ppdOptionKeyForTag(int tag)
{
    if (tag == tags::kToggle + 1)
        return q("T");
    const int option = tags::withoutCompanionBits(tag);
    if (option < 1 || option > kOptions)
        return std::nullopt;
    return QString(QChar(char16_t(u'A' + option - 1)));
}

void TestPanel::updateUI()
{
    ++refreshes;
    KSTRVLBasePDEHalvern::updateUI();
}

QVariant TestPanel::ppdChoiceForTag(int tag)
{
    return tag >= 1 && tag <= 3 ? QVariant(q("cell %1").arg(tag)) : QVariant();
}

int TestPanel::tagForStringValue(const QVariant& value)
{
    const QString text = value.toString();
    return text.startsWith(QLatin1String("cell ")) ? text.mid(5).toInt() : 0;
}

DecimalSlider* addSlider(QWidget* view, int tag, double minimum, double maximum, double step)
{
    auto* slider = addControl<DecimalSlider>(view, tag);
    slider->setMinimumValue(minimum);
    slider->setMaximumValue(maximum);
    slider->setSingleStepValue(step);
    return slider;
}

} // namespace halvern
