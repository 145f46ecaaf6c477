// SPDX-License-Identifier: MIT
#include "dialog/options/loaded_trays.h"

#include "dialog/options/ipp_twins.h"
#include "dialog/options/paper_shape.h"
#include "dialog/options/ppd_keywords.h"
#include "dialog/options/ppd_model.h"
#include "dialog/options/tray_words.h"
#include "platform/printing/cups_ppd.h"

#include <cmath>

namespace halvern {

namespace {

const QString kInputSlot = QStringLiteral("InputSlot");
const QString kMediaType = QStringLiteral("MediaType");
// PPDs count in whole points, printers in hundredths of a millimetre.
constexpr double kLoadedTolerance = 2.0;

// "photographic-glossy" and "PhotographicGlossy" are the same.
QString plainForm(const QString& keyword)
{
    QString form;
    for (const QChar letter : keyword) {
        if (letter.isLetterOrNumber())
            form.append(letter.toLower());
    }
    return form;
}

QString choiceLike(const PpdModel& model, const QString& key, const QString& keyword)
{
    const QString wanted = plainForm(keyword);
    const ppd_option_t* option = ppdFindOption(model.file(), key.toUtf8().constData());
    for (int i = 0; option && !wanted.isEmpty() && i < option->num_choices; ++i) {
        const QString choice = QString::fromUtf8(option->choices[i].choice);
        // A name that somebody gave is none of a choice's.
        if (plainForm(choice) == wanted || plainForm(ippValueOf(model.file(), key, choice)) == wanted)
            return choice;
    }
    return {};
}

bool isSameLength(double a, double b)
{
    return std::abs(a - b) <= kLoadedTolerance;
}

// The chosen one goes before its neighbours, then what has the same margins.
QString pageFor(const PpdModel& model, const TrayPaper& paper)
{
    const QString chosen = model.value(kPageSize);
    QString best;
    int bestRank = 0;
    for (int i = 0; i < model.file()->num_sizes; ++i) {
        const ppd_size_t& size = model.file()->sizes[i];
        const QString keyword = QString::fromUtf8(size.name);
        if (!isPageOf(QSizeF(double(size.width), double(size.length)), paper) ||
            ppd_lookup::listedChoice(model.file(), kPageSize, keyword) == nullptr)
            continue;
        const int rank =
            1 + (isWithoutMargins(size) == paper.isBorderless ? 1 : 0) + (keyword == chosen ? 2 : 0);
        if (rank > bestRank) {
            best = keyword;
            bestRank = rank;
        }
    }
    return best;
}

// What the PPD calls a choice, unless that is the keyword itself.
QString modelText(const PpdModel& model, const QString& key, const QString& choice)
{
    const QString text = choice.isEmpty() ? QString() : model.choiceText(key, choice);
    return text == choice ? QString() : text;
}

} // namespace

TrayChoice choiceFor(const PpdModel& model, const TrayPaper& paper)
{
    return {pageFor(model, paper), choiceLike(model, kInputSlot, paper.source),
            choiceLike(model, kMediaType, paper.type)};
}

bool isAutomatic(const QString& choice)
{
    return choice.isEmpty() || plainForm(choice).startsWith(QLatin1StringView("auto"));
}

bool isPageOf(const QSizeF& page, const TrayPaper& paper)
{
    if (paper.isRoll)
        return isSameLength(page.width(), paper.points.width()) ||
               isSameLength(page.height(), paper.points.width());
    return (isSameLength(page.width(), paper.points.width()) &&
            isSameLength(page.height(), paper.points.height())) ||
           (isSameLength(page.width(), paper.points.height()) &&
            isSameLength(page.height(), paper.points.width()));
}

QString trayText(const PpdModel& model, const TrayPaper& paper)
{
    const QString text = modelText(model, kInputSlot, choiceLike(model, kInputSlot, paper.source));
    return text.isEmpty() ? traySourceWords(paper.source) : text;
}

QString paperTypeText(const PpdModel& model, const TrayPaper& paper)
{
    const QString text = modelText(model, kMediaType, choiceLike(model, kMediaType, paper.type));
    return text.isEmpty() ? mediaTypeWords(paper.type) : text;
}

int trayInUse(const PpdModel& model, const QList<TrayPaper>& trays)
{
    for (int i = 0; i < trays.size(); ++i) {
        const TrayChoice choice = choiceFor(model, trays[i]);
        const bool isSlot =
            choice.slot.isEmpty() ? trays.size() == 1 : model.value(kInputSlot) == choice.slot;
        if (isSlot && isPageOf(model.sheet().paper, trays[i]))
            return i;
    }
    return -1;
}

} // namespace halvern
