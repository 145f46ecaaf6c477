// SPDX-License-Identifier: MIT
#include "printer/papers/paper_change.h"

#include "printer/papers/paper_list.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>
#include <cmath>
#include <utility>

namespace halvern {

namespace {

const QLatin1StringView kPapers("papers");
const QLatin1StringView kSheet("sheet");
const QLatin1StringView kRoll("roll");

bool sameWidth(double a, double b)
{
    return std::abs(a - b) < 0.05;
}

bool goesBy(const QJsonObject& paper, const QString& which)
{
    if (which == QStringLiteral("all"))
        return true;
    if (which == QStringLiteral("sheets"))
        return paper.contains(kSheet);
    if (which == QStringLiteral("rolls"))
        return paper.contains(kRoll);
    bool isWidth = false;
    const double width = which.toDouble(&isWidth);
    return paper.value(kSheet).toString() == which ||
           (isWidth && paper.contains(kRoll) && sameWidth(paper.value(kRoll).toDouble(), width));
}

bool samePaper(const QJsonObject& a, const QJsonObject& b)
{
    return a.contains(kSheet)
               ? a.value(kSheet) == b.value(kSheet)
               : b.contains(kRoll) && sameWidth(a.value(kRoll).toDouble(), b.value(kRoll).toDouble());
}

// The list as an object; one that is not valid is left to its reader's words.
std::optional<QJsonObject> parsed(const QByteArray& json, QString& failure)
{
    failure = readPaperList(json).failure;
    if (!failure.isEmpty())
        return std::nullopt;
    const QJsonDocument document = QJsonDocument::fromJson(json);
    QJsonObject list = document.object();
    if (document.isArray())
        list.insert(kPapers, document.array());
    const QJsonValue papers = list.value(kPapers);
    if (papers.isArray() || (papers.isObject() && papers.toObject().isEmpty()))
        return list;
    failure = QStringLiteral("this is a catalogue, not a list of papers; write a list, or use standard.json");
    return std::nullopt;
}

// A list must have a paper; an empty catalogue is written as an empty map.
QByteArray written(QJsonObject list, const QJsonArray& papers)
{
    list.insert(kPapers, papers.isEmpty() ? QJsonValue(QJsonObject()) : QJsonValue(papers));
    return QJsonDocument(list).toJson();
}

/// Splits the papers into those that go by the name and the rest.
std::pair<QJsonArray, QJsonArray> divided(const QJsonObject& list, const QString& which)
{
    std::pair<QJsonArray, QJsonArray> result;
    for (const QJsonValue paper : list.value(kPapers).toArray())
        (goesBy(paper.toObject(), which) ? result.first : result.second).append(paper);
    return result;
}

} // namespace

std::optional<QByteArray> papersTakenOut(const QByteArray& list, const QString& which, QString& failure)
{
    const std::optional<QJsonObject> papers = parsed(list, failure);
    if (!papers)
        return std::nullopt;
    const auto [out, rest] = divided(*papers, which);
    if (out.isEmpty()) {
        failure = QStringLiteral("no paper \"%1\" is loaded; show lists what is").arg(which);
        return std::nullopt;
    }
    return written(*papers, rest);
}

std::optional<QByteArray> papersLoaded(const QByteArray& list, const QByteArray& stock, const QString& which,
                                       QString& failure)
{
    const std::optional<QJsonObject> papers = parsed(list, failure);
    const std::optional<QJsonObject> available = papers ? parsed(stock, failure) : std::nullopt;
    if (!available)
        return std::nullopt;
    const QJsonArray added = divided(*available, which).first;
    if (added.isEmpty()) {
        failure = QStringLiteral("the stock has no paper \"%1\"").arg(which);
        return std::nullopt;
    }
    QJsonArray result;
    for (const QJsonValue old : papers->value(kPapers).toArray()) {
        const bool replaced = std::any_of(added.begin(), added.end(), [&](const QJsonValue paper) {
            return samePaper(paper.toObject(), old.toObject());
        });
        if (!replaced)
            result.append(old);
    }
    for (const QJsonValue paper : added)
        result.append(paper);
    return written(*papers, result);
}

} // namespace halvern
