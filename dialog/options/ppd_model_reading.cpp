// SPDX-License-Identifier: MIT
// The reading half of PpdModel: values, texts and page geometry.
#include "dialog/options/custom_paper.h"
#include "dialog/options/ppd_lookup.h"
#include "dialog/options/ppd_model.h"

#include "platform/foundation/units.h"
#include "platform/printing/cups_ppd.h"

#include <algorithm>

namespace halvern {

namespace {

QString textOr(const char* text, const QString& other)
{
    const QString found = QString::fromUtf8(text);
    return found.isEmpty() ? other : found;
}

} // namespace

void PpdModel::readOptions()
{
    for (int g = 0; g < file_->num_groups; ++g) {
        const ppd_group_t& group = file_->groups[g];
        const bool isEquipment = qstrcmp(group.name, "InstallableOptions") == 0;
        for (int i = 0; i < group.num_options; ++i) {
            const char* keyword = group.options[i].keyword;
            if (qstrcmp(keyword, "PageRegion") == 0)
                continue;
            const QString key = QString::fromUtf8(keyword);
            keys_.append(key);
            groups_.insert(key, g);
            const ppd_choice_t* marked = ppdFindMarkedChoice(file_.get(), keyword);
            const QString choice = marked ? QString::fromUtf8(marked->choice) : QString();
            if (isEquipment)
                equipment_.insert(key, choice);
            else if (marked)
                values_.insert(key, choice);
        }
    }
}

QString PpdModel::value(const QString& key) const
{
    const auto built = equipment_.constFind(key);
    return built != equipment_.cend() ? *built : values_.value(key);
}

// A keyword may have words of its own, which say more than the PPD's short text does.
QString PpdModel::optionText(const QString& key) const
{
    if (key == QLatin1StringView("PageSize"))
        return tr("Paper size");
    const QString own = inWords(key);
    const ppd_option_t* option = ppd_lookup::option(file_.get(), key);
    return own == key && option ? inWords(textOr(option->text, key)) : own;
}

QString PpdModel::choiceText(const QString& key, const QString& choice) const
{
    const ppd_choice_t* listed = ppd_lookup::listedChoice(file_.get(), key, choice);
    if (!listed && key == QLatin1StringView("PageSize"))
        return customText(choice);
    return listed ? inWords(textOr(listed->text, choice)) : choice;
}

int PpdModel::choiceCount(const QString& key) const
{
    const ppd_option_t* option = ppd_lookup::option(file_.get(), key);
    const bool hasCustom = option && ppdFindCustomOption(file_.get(), option->keyword);
    return option ? option->num_choices - (hasCustom ? 1 : 0) : 0;
}

OptionItem PpdModel::option(const QString& key) const
{
    OptionItem item{key, optionText(key), {}, {}, isInstallable(key)};
    const ppd_option_t* option = ppd_lookup::option(file_.get(), key);
    if (!option)
        return item;
    if (const auto group = groups_.constFind(key); group != groups_.cend())
        item.group = inWords(QString::fromUtf8(file_->groups[*group].text));
    const bool hasCustom = ppdFindCustomOption(file_.get(), option->keyword) != nullptr;
    item.choices.reserve(option->num_choices);
    for (int i = 0; i < option->num_choices; ++i) {
        const ppd_choice_t& choice = option->choices[i];
        if (hasCustom && qstrcmp(choice.choice, "Custom") == 0)
            continue;
        const QString keyword = QString::fromUtf8(choice.choice);
        item.choices.append({keyword, inWords(textOr(choice.text, keyword)),
                             item.isInstallable ? QString() : equipmentObstacle(key, keyword)});
    }
    return item;
}

QString PpdModel::unlistedDefault(const QString& key) const
{
    const ppd_option_t* option = ppd_lookup::option(file_.get(), key);
    const QString name = option ? QString::fromUtf8(option->defchoice) : QString();
    return name.isEmpty() || ppd_lookup::listedChoice(file_.get(), key, name) ? QString() : name;
}

SheetGeometry PpdModel::sheet() const
{
    const QByteArray name = value(QStringLiteral("PageSize")).toUtf8();
    const ppd_size_t* size = ppdPageSize(file_.get(), name.isEmpty() ? nullptr : name.constData());
    if (!size && file_->num_sizes > 0)
        size = &file_->sizes[0];
    if (!size || size->width <= 0.0F || size->length <= 0.0F)
        return {QSizeF(595.28, 841.89), QRectF(36.0, 36.0, 523.28, 769.89)};
    // The PPD counts from the bottom left corner.
    const QRectF paper(0.0, 0.0, double(size->width), double(size->length));
    const QRectF imageable(QPointF(double(size->left), double(size->length - size->top)),
                           QPointF(double(size->right), double(size->length - size->bottom)));
    const QRectF usable = imageable.intersected(paper);
    return {paper.size(), usable.isEmpty() ? paper : usable};
}

int PpdModel::resolution() const
{
    QString digits;
    int best = 0;
    for (const QChar c : value(QStringLiteral("Resolution")) + QLatin1Char(' ')) {
        if (c.isDigit()) {
            digits += c;
        } else if (!digits.isEmpty()) {
            best = std::max(best, digits.toInt());
            digits.clear();
        }
    }
    return best > 0 ? best : kUsualResolution;
}

} // namespace halvern
