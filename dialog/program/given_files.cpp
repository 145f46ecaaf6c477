// SPDX-License-Identifier: MIT
#include "dialog/program/given_files.h"

#include "dialog/page/photo_names.h"
#include "dialog/page/photo_problem.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QTemporaryFile>

#include <cstdio>

namespace halvern {

namespace {

constexpr qint64 kPiece = 1024 * 1024;
constexpr qint64 kLongestList = 16 * 1024 * 1024;

// Empty if it cannot be kept.
QString copyOfStandardInput()
{
    static QTemporaryFile copy(QDir::tempPath() + QStringLiteral("/standard-input-XXXXXX"));
    static bool isRead = false;
    if (isRead)
        return copy.fileName();
    isRead = true;
    QFile input;
    if (!input.open(stdin, QIODevice::ReadOnly) || !copy.open())
        return {};
    while (true) {
        const QByteArray piece = input.read(kPiece);
        if (piece.isEmpty())
            break;
        if (copy.write(piece) != piece.size())
            return {};
    }
    return copy.flush() ? copy.fileName() : QString();
}

QStringList namesIn(const QString& list, QStringList* problems)
{
    if (const QString problem = fileProblem(list); !problem.isEmpty()) {
        problems->append(problem);
        return {};
    }
    QFile file(list);
    file.open(QIODevice::ReadOnly);
    QStringList names;
    for (const QByteArray& line : file.read(kLongestList).split('\n')) {
        const QByteArray name = line.endsWith('\r') ? line.chopped(1) : line;
        if (!name.isEmpty())
            names.append(QFile::decodeName(name));
    }
    return names;
}

} // namespace

QStringList givenFiles(const QStringList& arguments, QStringList* problems)
{
    QStringList names;
    for (const QString& argument : arguments) {
        if (argument == QLatin1StringView("-")) {
            const QString copy = copyOfStandardInput();
            if (copy.isEmpty())
                problems->append(QCoreApplication::translate(
                    "CommandLine",
                    "Standard input cannot be kept in a temporary file. Make room on the disk."));
            else
                names.append(copy);
        } else if (argument.startsWith(QLatin1Char('@')) && argument.size() > 1) {
            names.append(namesIn(argument.mid(1), problems));
        } else {
            names.append(argument);
        }
    }
    return withFoldersOpened(names, problems);
}

} // namespace halvern
