// SPDX-License-Identifier: MIT
#pragma once

#include <QList>
#include <QLocale>
#include <QString>
#include <QStringList>

namespace halvern {

class SearchWords;

/// A page of the help book.
struct HelpPage {
    QString name;      ///< its file's name without the suffix
    QStringList about; ///< pages of the dialog, by identifier, and controls, by object name, that it is about
    QString title;
    QString path;
};

/// Where words were found: the page, and the line that they are in.
struct HelpHit {
    qsizetype page = 0; ///< its place in the book
    QString line;
};

/// The help book in one language: a folder of HTML pages, in the order of the file `contents.txt` beside the
/// languages' folders, of which each line names a page and what it is about. A value that reads its files
/// when it is made, and the pages' texts when something is searched. Main thread only.
class HelpBook {
public:
    /// The book in the first of the locale's languages that it has, else in English. Empty without a folder.
    explicit HelpBook(const QString& folder = usualFolder(), const QLocale& locale = QLocale());

    /// Beside the program, in the build tree as where it is installed.
    static QString usualFolder();

    const QList<HelpPage>& pages() const { return pages_; }

    /// The place of the page that is about this; -1: there is none. An empty text is about nothing.
    qsizetype pageAbout(const QString& identifier) const;

    /// The place of the page in this file; -1: it is none of this language.
    qsizetype pageAt(const QString& path) const;

    /// The lines that hold all of the words, and the pages that do, but in several lines: those whose titles
    /// hold one come first.
    QList<HelpHit> find(const SearchWords& words);

private:
    QString folder_;
    QList<HelpPage> pages_;
    QList<QStringList> lines_; ///< of each page; empty before the first search
};

} // namespace halvern
