// SPDX-License-Identifier: MIT
#include "dialog/window/help_book.h"

#include "dialog/options/option_search.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTextDocument>

#include <algorithm>

namespace halvern {

namespace {

const QString kFirstLanguage = QStringLiteral("en");

QString readText(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

QString languageFolder(const QString& folder, const QLocale& locale)
{
    QStringList languages;
    for (const QString& tag : locale.uiLanguages())
        languages.append(tag.section(QLatin1Char('-'), 0, 0));
    languages.append(kFirstLanguage);
    for (const QString& language : std::as_const(languages)) {
        if (QFileInfo(folder + QLatin1Char('/') + language).isDir())
            return folder + QLatin1Char('/') + language + QLatin1Char('/');
    }
    return {};
}

QString titleOf(const QString& page)
{
    const QString after = page.section(QStringLiteral("<title>"), 1);
    return after.section(QStringLiteral("</title>"), 0, 0);
}

} // namespace

HelpBook::HelpBook(const QString& folder, const QLocale& locale) : folder_(languageFolder(folder, locale))
{
    const QStringList contents =
        readText(folder + QStringLiteral("/contents.txt")).split(QLatin1Char('\n'), Qt::SkipEmptyParts);
    for (const QString& line : contents) {
        QStringList words = line.split(QLatin1Char(' '), Qt::SkipEmptyParts);
        if (words.isEmpty() || words.first().startsWith(QLatin1Char('#')))
            continue;
        HelpPage page{words.takeFirst(), words, {}, {}};
        page.path = folder_ + page.name + QStringLiteral(".html");
        page.title = titleOf(readText(page.path));
        if (!page.title.isEmpty())
            pages_.append(page);
    }
}

QString HelpBook::usualFolder()
{
    return QDir::cleanPath(QCoreApplication::applicationDirPath() + QStringLiteral("/../share/halvern/help"));
}

qsizetype HelpBook::pageAbout(const QString& identifier) const
{
    const auto isAbout = [&](const HelpPage& page) { return page.about.contains(identifier); };
    const auto found = std::ranges::find_if(pages_, isAbout);
    return found == pages_.end() ? -1 : found - pages_.begin();
}

qsizetype HelpBook::pageAt(const QString& path) const
{
    const auto found = std::ranges::find(pages_, path, &HelpPage::path);
    return found == pages_.end() ? -1 : found - pages_.begin();
}

QList<HelpHit> HelpBook::find(const SearchWords& words)
{
    if (words.isEmpty())
        return {};
    for (qsizetype i = lines_.size(); i < pages_.size(); ++i) {
        QTextDocument page;
        page.setHtml(readText(pages_[i].path)); // plain: a page of ours, to be searched
        QStringList lines = page.toPlainText().split(QLatin1Char('\n'), Qt::SkipEmptyParts);
        // A picture is a line of its own, of a character that stands for it.
        lines.removeIf(
            [](const QString& line) { return line.trimmed() == QChar::ObjectReplacementCharacter; });
        lines_.append(lines);
    }
    QList<HelpHit> titled;
    QList<HelpHit> others;
    for (qsizetype i = 0; i < pages_.size(); ++i) {
        QList<HelpHit>& hits = words.isAnyIn({pages_[i].title}) ? titled : others;
        const qsizetype before = hits.size();
        for (const QString& line : std::as_const(lines_[i])) {
            if (words.areIn({line}))
                hits.append({i, line});
        }
        const auto first =
            std::ranges::find_if(lines_[i], [&](const QString& line) { return words.isAnyIn({line}); });
        if (hits.size() == before && words.areIn(lines_[i]) && first != lines_[i].end())
            hits.append({i, *first});
    }
    return titled + others;
}

} // namespace halvern
