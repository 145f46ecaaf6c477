// SPDX-License-Identifier: MIT
#include "platform/maker/summary_rules.h"

#include <algorithm>
#include <array>

namespace halvern::maker {

namespace {

struct Dependence {
    const char* key;
    const char* on;
    const char* value; ///< of `on`, with which `key` means nothing
};

constexpr std::array kDependences{
    Dependence{"PaperName", "PaperFeed", "Roll"}, Dependence{"PaperWidth", "PaperFeed", "Sheet"},
    Dependence{"PaperSurface", "PaperFeed", "Sheet"}, Dependence{"Overspill", "PaperFeed", "Sheet"},
    Dependence{"BindingWidth", "BindingMargin", "None"}};

} // namespace

bool saysNothing(const QString& key, const QMap<QString, QString>& values)
{
    if (key == QLatin1StringView("HalvernLastResolution"))
        return true;
    return std::ranges::any_of(kDependences, [&](const Dependence& dependence) {
        return key == QLatin1StringView(dependence.key) &&
               values.value(QLatin1StringView(dependence.on)) == QLatin1StringView(dependence.value);
    });
}

} // namespace halvern::maker
