// The reading half of PpdModel: values, texts and page geometry.
#include "dialog/options/ppd_lookup.h"
#include "dialog/options/ppd_model.h"

#include "platform/printing/cups_ppd.h"

#include <algorithm>

namespace halvern {

namespace {

constexpr int kUsualResolution = 300;

QString textOr(const char* text, const QString& other)
{
    const QString found = QString::fromUtf8(text);
    return found.isEmpty() ? other : found;
}

} // namespace

QString PpdModel::value(const QString& key) const
{
    if (const auto found = kept_.constFind(key); found != kept_.cend())
        return *found;
    const ppd_choice_t* marked = ppdFindMarkedChoice(file_.get(), key.toUtf8().constData());
    return marked ? QString::fromUtf8(marked->choice) : QString();
}

QMap<QString, QString> PpdModel::values() const
{
    QMap<QString, QString> all = kept_;
    for (const OptionItem& option : options()) {
        const QString current = value(option.key);
        if (!current.isEmpty() && !option.isInstallable)
            all.insert(option.key, current);
    }
    return all;
}

// A keyword may have words of its own, which say more than the PPD's short text does.
QString PpdModel::optionText(const QString& key) const
{
    const QString own = inWords(key);
    const ppd_option_t* option = ppd_lookup::option(file_.get(), key);
    return own == key && option ? inWords(textOr(option->text, key)) : own;
}

QString PpdModel::choiceText(const QString& key, const QString& choice) const
{
    const ppd_choice_t* listed = ppd_lookup::listedChoice(file_.get(), key, choice);
    return listed ? inWords(textOr(listed->text, choice)) : choice;
}

OptionItem PpdModel::makeItem(const ppd_option_t& option) const
{
    const QString key = QString::fromUtf8(option.keyword);
    OptionItem item{key, optionText(key), {}, {}};
    for (int i = 0; i < option.num_choices; ++i) {
        const QString keyword = QString::fromUtf8(option.choices[i].choice);
        if (ppd_lookup::listedChoice(file_.get(), key, keyword))
            item.choices.append({keyword, inWords(textOr(option.choices[i].text, keyword))});
    }
    return item;
}

QList<OptionItem> PpdModel::options() const
{
    QList<OptionItem> items;
    for (int g = 0; g < file_->num_groups; ++g) {
        const ppd_group_t& group = file_->groups[g];
        for (int i = 0; i < group.num_options; ++i) {
            if (qstrcmp(group.options[i].keyword, "PageRegion") == 0)
                continue;
            items.append(makeItem(group.options[i]));
            items.last().group = inWords(QString::fromUtf8(group.text));
            items.last().isInstallable = qstrcmp(group.name, "InstallableOptions") == 0;
        }
    }
    return items;
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
