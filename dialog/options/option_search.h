// SPDX-License-Identifier: MIT
#pragma once

#include <QStringList>

#include <optional>

namespace halvern {

class PpdModel;

/// What somebody is looking for: words that all have to be found, in any order and in any case. A value.
class SearchWords {
public:
    explicit SearchWords(const QString& typed);

    bool isEmpty() const { return words_.isEmpty(); }

    /// Whether each word is in one of the texts.
    bool areIn(const QStringList& texts) const;

    /// Whether one of the words is in one of the texts.
    bool isAnyIn(const QStringList& texts) const;

    /// Whether the text begins with the first word.
    bool begin(const QString& text) const;

    /// Where the words are in a text: first letter and length. They may overlap.
    QList<std::pair<int, int>> placesIn(const QString& text) const;

private:
    QStringList words_;
};

/// Something that was found, and how to get there.
struct SearchHit {
    QString title;       ///< as its page calls it
    QString choice = {}; ///< the choice that was found; empty if the thing itself was
    QString path = {};   ///< where it is, in words
    QString page = {};   ///< the page's identifier
    QString key = {};    ///< the option's keyword, or what else names the thing there
    int rank = 0;        ///< better ones have lower ranks
};

/// Looks for an option by what the user, the PPD and the PPD's author call it, its keyword among that, and by
/// its choices likewise. The path is the title of its group, the page is empty. On the model's thread.
std::optional<SearchHit> findOption(const PpdModel& model, const QString& key, const SearchWords& words);

/// The same for something with these names, of which the first is its title.
std::optional<SearchHit> findNamed(const QStringList& names, const SearchWords& words);

} // namespace halvern
