// SPDX-License-Identifier: MIT
#include "platform/maker/summary_rules.h"

#include <QRegularExpression>

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

bool saysNothing(const QString& key, const Values& values)
{
    if (key == QLatin1StringView("HalvernLastResolution"))
        return true;
    return std::ranges::any_of(kDependences, [&](const Dependence& dependence) {
        return key == QLatin1StringView(dependence.key) &&
               values(QLatin1StringView(dependence.on)) == QLatin1StringView(dependence.value);
    });
}

Feed feedOf(const Values& values)
{
    const QString feed = values(QStringLiteral("PaperFeed"));
    if (feed == QLatin1StringView("Roll"))
        return Feed::roll;
    return feed == QLatin1StringView("Sheet") ? Feed::sheet : Feed::unknown;
}

bool printsOnBack(const Values& values)
{
    const auto isOn = [&](const char* line) {
        const QString key = QLatin1StringView(line);
        return values(QStringLiteral("Enable") + key) == QLatin1StringView("True") && !values(key).isEmpty();
    };
    return isOn("CVP1") || isOn("CVP2");
}

QString surfaceWords(const QString& text)
{
    static const QRegularExpression number(QStringLiteral("^\\d+ - "));
    return QString(text).remove(number);
}

} // namespace halvern::maker
