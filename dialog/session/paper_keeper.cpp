// SPDX-License-Identifier: MIT
#include "dialog/session/paper_keeper.h"

#include "dialog/options/page_fit.h"
#include "platform/printing/print_settings.h"

namespace halvern {

namespace {

const QString kFeed = QStringLiteral("PaperFeed");
const QString kSheetName = QStringLiteral("PaperName");

} // namespace

PaperKeeper::PaperKeeper(PpdModel& model, PrintSettings& settings, PrinterOffer offer)
    : model_(model), settings_(settings), offer_(std::move(offer))
{
}

PaperKeeper::Answer PaperKeeper::judge(const QString& key, const QString& choice)
{
    if (key == kFeed && choice == QLatin1StringView("Roll"))
        hideSheetName();
    if (key == kSheetName)
        showSheetName();
    const QString now = model_.value(key);
    if (!dependsOnOffer(key) || now == choice)
        return Answer::accept;
    if (now.isEmpty())
        return Answer::fillIn;
    if (isOffered(offer_, model_.values(), key)) {
        refused_.insert(key, choice);
        return Answer::refuse;
    }
    if (key != kSheetName)
        return Answer::accept;
    if (isByDefault(key)) {
        // The first by name is not what a user would take. Which one is, is settled with the papers at hand.
        const QString fitting = fittingSheet(model_, offer_);
        if (!offer_.papers.isEmpty() && (fitting.isEmpty() || fitting == choice))
            return Answer::fillIn;
        refused_.insert(key, choice);
        return Answer::refuse;
    }
    // The panel takes the first sheet because it was shown no name at all. The PPD's own goes before it.
    const std::optional<QString> standard = standardSheet();
    if (!standard)
        return Answer::accept;
    refused_.insert(key, *standard);
    return Answer::refuse;
}

bool PaperKeeper::isByDefault(const QString& key) const
{
    return key == kSheetName &&
           model_.value(key) == ppd::defaultChoice(model_.file(), key).value_or(QString());
}

// The PPD's own name of a sheet, if the printer offers it.
std::optional<QString> PaperKeeper::standardSheet() const
{
    QMap<QString, QString> choices = model_.values();
    choices.insert(kSheetName, ppd::defaultChoice(model_.file(), kSheetName).value_or(QString()));
    return isOffered(offer_, choices, kSheetName) ? std::optional(choices.value(kSheetName)) : std::nullopt;
}

void PaperKeeper::forget(const QString& key)
{
    refused_.remove(key);
}

OptionValues PaperKeeper::takeOffer(PrinterOffer offer)
{
    offer_ = std::move(offer);
    // A panel puts the PPD's own name in place of one that is gone without a word.
    const std::optional<QString> standard = standardSheet();
    if (!offer_.papers.isEmpty() && standard && !refused_.contains(kSheetName))
        refused_.insert(kSheetName, *standard);
    if (const QString fitting = fittingSheet(model_, offer_);
        refused_.contains(kSheetName) && isByDefault(kSheetName) && !fitting.isEmpty())
        refused_.insert(kSheetName, fitting);
    OptionValues overdue;
    QMap<QString, QString> choices = model_.values();
    for (auto it = refused_.begin(); it != refused_.end();) {
        if (isOffered(offer_, choices, it.key())) {
            ++it;
            continue;
        }
        overdue.append({it.key(), it.value()});
        choices.insert(it.key(), it.value());
        it = refused_.erase(it);
    }
    return overdue;
}

void PaperKeeper::keepChosen(const QString& key)
{
    settings_.setValue(key, model_.isKept(key) ? QVariant(model_.value(key)) : QVariant(), false);
}

void PaperKeeper::settleSaved()
{
    showSheetName();
    const QStringList refused = refused_.keys();
    for (const QString& key : refused)
        keepChosen(key);
    // A panel that was restored while the name was hidden holds an empty one until it is told another.
    QVariant saved;
    if (settings_.getValue(kSheetName, saved) == kPrintingOk && saved.toString().isEmpty())
        keepChosen(kSheetName);
}

void PaperKeeper::hideSheetName()
{
    model_.hide(kSheetName);
    settings_.setValue(kSheetName, QVariant(), false);
}

void PaperKeeper::showSheetName()
{
    if (!model_.isHidden(kSheetName))
        return;
    model_.show(kSheetName);
    settings_.setValue(kSheetName, model_.value(kSheetName), false);
}

} // namespace halvern
