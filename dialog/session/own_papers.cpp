// SPDX-License-Identifier: MIT
#include "dialog/session/own_papers.h"

#include "dialog/options/custom_paper.h"
#include "platform/foundation/display_text.h"
#include "platform/foundation/user_defaults.h"

#include <QStringList>

namespace halvern {

namespace {

const QString kOwnPapersKey = QStringLiteral("OwnPaperSizes");
constexpr qsizetype kMostPapers = 50;
constexpr int kLongestPaperName = 60;

// "Custom.100x250mm Panorama"
std::optional<OwnPaper> readPaper(const QString& line)
{
    const qsizetype blank = line.indexOf(QLatin1Char(' '));
    const std::optional<QSizeF> points = customMeasures(line.left(blank));
    const QString name = displayText(line.mid(blank + 1), kLongestPaperName).trimmed();
    return points && blank > 0 && !name.isEmpty() ? std::optional<OwnPaper>({name, *points}) : std::nullopt;
}

QList<OwnPaper> readPapers(const QVariantMap& values)
{
    QList<OwnPaper> papers;
    for (const QString& line : values.value(kOwnPapersKey).toStringList().mid(0, kMostPapers)) {
        if (const std::optional<OwnPaper> paper = readPaper(line))
            papers.append(*paper);
    }
    return papers;
}

template <typename Change> void changePapers(Change change)
{
    UserDefaults::standardUserDefaults().changeGlobal([&](QVariantMap& values) {
        QList<OwnPaper> papers = readPapers(values);
        change(papers);
        QStringList lines;
        for (const OwnPaper& paper : papers)
            lines.append(customKeyword(paper.points) + QLatin1Char(' ') + paper.name);
        values.insert(kOwnPapersKey, lines);
    });
}

bool isCalled(const OwnPaper& paper, const QString& name)
{
    return paper.name.compare(name, Qt::CaseInsensitive) == 0;
}

} // namespace

QList<OwnPaper> ownPapers()
{
    const UserDefaults& defaults = UserDefaults::standardUserDefaults();
    return readPapers(defaults.persistentDomain(UserDefaults::globalDomain()));
}

void keepOwnPaper(const OwnPaper& paper)
{
    changePapers([&](QList<OwnPaper>& papers) {
        papers.removeIf([&](const OwnPaper& kept) { return isCalled(kept, paper.name); });
        papers.prepend({displayText(paper.name, kLongestPaperName).trimmed(), paper.points});
    });
}

void forgetOwnPaper(const QString& name)
{
    changePapers([&](QList<OwnPaper>& papers) {
        papers.removeIf([&](const OwnPaper& kept) { return isCalled(kept, name); });
    });
}

} // namespace halvern
