// SPDX-License-Identifier: MIT
#include "dialog/adjust/adjust.h"

#include "platform/foundation/numbers.h"

namespace halvern::adjust {

namespace {

using Choices = QMap<QString, QString>;

bool isOn(const Choices& choices, QLatin1StringView toggle)
{
    return choices.value(toggle).compare(QLatin1StringView("True"), Qt::CaseInsensitive) == 0;
}

double number(const Choices& choices, QLatin1StringView key, double neutral)
{
    const auto found = choices.constFind(key);
    return found == choices.constEnd() ? neutral : leadingDouble(*found);
}

} // namespace

ColorAdjustments colorAdjustments(const Choices& choices)
{
    ColorAdjustments result;
    if (!isOn(choices, QLatin1StringView("AdjustmentsEnabled")))
        return result;
    result.brightness = number(choices, QLatin1StringView("Brightness"), result.brightness);
    result.contrast = number(choices, QLatin1StringView("Contrast"), result.contrast);
    result.saturation = number(choices, QLatin1StringView("Saturation"), result.saturation);
    result.gamma = number(choices, QLatin1StringView("Gamma"), result.gamma);
    result.red = number(choices, QLatin1StringView("Red"), result.red);
    result.green = number(choices, QLatin1StringView("Green"), result.green);
    result.blue = number(choices, QLatin1StringView("Blue"), result.blue);
    return result;
}

Sharpening sharpening(const Choices& choices)
{
    if (!isOn(choices, QLatin1StringView("SharpnessEnabled")))
        return {};
    return {number(choices, QLatin1StringView("SharpnessRadius"), 0.0),
            number(choices, QLatin1StringView("SharpnessIntensity"), 0.0)};
}

} // namespace halvern::adjust
