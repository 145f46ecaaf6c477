// SPDX-License-Identifier: MIT
#include "dialog/options/option_search.h"

#include "dialog/options/ppd_model.h"

#include <algorithm>

namespace halvern {

namespace {

// Nobody types more, and each word is looked for in every text.
constexpr int kMostWords = 8;
constexpr int kMostLetters = 100;

enum Rank { beginning, inTitle, otherName, ofChoice };

} // namespace

SearchWords::SearchWords(const QString& typed)
    : words_(typed.left(kMostLetters)
                 .simplified()
                 .split(QLatin1Char(' '), Qt::SkipEmptyParts)
                 .mid(0, kMostWords))
{
}

bool SearchWords::areIn(const QStringList& texts) const
{
    return std::ranges::all_of(words_, [&](const QString& word) {
        return std::ranges::any_of(
            texts, [&](const QString& text) { return text.contains(word, Qt::CaseInsensitive); });
    });
}

bool SearchWords::isAnyIn(const QStringList& texts) const
{
    return std::ranges::any_of(words_, [&](const QString& word) {
        return std::ranges::any_of(
            texts, [&](const QString& text) { return text.contains(word, Qt::CaseInsensitive); });
    });
}

bool SearchWords::begin(const QString& text) const
{
    return !words_.isEmpty() && text.startsWith(words_.front(), Qt::CaseInsensitive);
}

QList<std::pair<int, int>> SearchWords::placesIn(const QString& text) const
{
    QList<std::pair<int, int>> places;
    for (const QString& word : words_) {
        for (qsizetype at = text.indexOf(word, 0, Qt::CaseInsensitive); at >= 0;
             at = text.indexOf(word, at + word.size(), Qt::CaseInsensitive))
            places.append({int(at), int(word.size())});
    }
    return places;
}

std::optional<SearchHit> findNamed(const QStringList& names, const SearchWords& words)
{
    if (names.isEmpty() || words.isEmpty() || !words.areIn(names))
        return std::nullopt;
    SearchHit hit{names.front()};
    hit.rank = !words.areIn({hit.title}) ? otherName : words.begin(hit.title) ? beginning : inTitle;
    return hit;
}

std::optional<SearchHit> findOption(const PpdModel& model, const QString& key, const SearchWords& words)
{
    const QStringList names{model.optionText(key), model.ownText(key), key};
    const QString group = model.groupText(key);
    if (std::optional<SearchHit> hit = findNamed(names, words)) {
        hit->path = group;
        hit->key = key;
        return hit;
    }
    if (words.isEmpty())
        return std::nullopt;
    for (const ChoiceItem& choice : model.option(key).choices) {
        const QStringList texts{choice.text, model.ownText(key, choice.keyword), choice.keyword};
        if (words.isAnyIn(texts) && words.areIn(names + texts))
            return SearchHit{names.front(), choice.text, group, {}, key, ofChoice};
    }
    return std::nullopt;
}

} // namespace halvern
