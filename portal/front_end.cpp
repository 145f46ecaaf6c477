// SPDX-License-Identifier: MIT
#include "portal/front_end.h"

#include "platform/foundation/list_text.h"
#include "platform/foundation/whole_file.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QStandardPaths>

#include <algorithm>

namespace halvern {

namespace {

struct FrontEndWords {
    Q_DECLARE_TR_FUNCTIONS(FrontEnd)
};

const QString kInterface = QStringLiteral("org.freedesktop.impl.portal.Print");
const QString kOwnName = QStringLiteral("tessarin");
const QString kGroup = QStringLiteral("[preferred]");
const QString kMark = QStringLiteral("# by halvern-print-portal --enable");
const QString kInPlaceOf = QStringLiteral("# by halvern-print-portal in place of: ");
const QString kUsualPortals = QStringLiteral("/usr/share/xdg-desktop-portal/portals");
constexpr qint64 kMostConfigBytes = 256 * 1024;
constexpr int kPatience = 3000; // milliseconds

QStringList variable(const char* name, const QString& otherwise)
{
    return qEnvironmentVariable(name, otherwise).split(QLatin1Char(':'), Qt::SkipEmptyParts);
}

// `problem`, if given, says why what is there cannot be read whole, and so must not be written over.
QStringList linesOf(const QString& path, QString* problem = nullptr)
{
    QFile file(path);
    const bool isOpen = file.open(QIODevice::ReadOnly);
    QString text = QString::fromUtf8(file.read(kMostConfigBytes));
    if (problem && QFile::exists(path) && (!isOpen || file.error() != QFileDevice::NoError || !file.atEnd()))
        *problem = FrontEndWords::tr("\"%1\" cannot be read: %2.").arg(path, file.errorString());
    if (!isOpen)
        return {};
    if (text.endsWith(QLatin1Char('\n')))
        text.chop(1);
    return text.split(QLatin1Char('\n'));
}

QString valueOf(const QStringList& lines, const QString& key)
{
    for (const QString& line : lines) {
        if (line.section(QLatin1Char('='), 0, 0).trimmed() == key && line.contains(QLatin1Char('=')))
            return line.section(QLatin1Char('='), 1).trimmed();
    }
    return {};
}

/// A back end's description.
struct Description {
    QString name;
    QStringList desktops;
};

// Those for printing, in the order of their files' names.
QList<Description> descriptions(const FrontEnd& frontEnd)
{
    QMap<QString, Description> found;
    for (const QString& folder : frontEnd.portalFolders) {
        for (const QString& file : QDir(folder).entryList({QStringLiteral("*.portal")}, QDir::Files)) {
            const QStringList lines = linesOf(folder + QLatin1Char('/') + file);
            const bool isForPrinting =
                valueOf(lines, QStringLiteral("Interfaces")).split(QLatin1Char(';')).contains(kInterface);
            if (isForPrinting && !found.contains(file))
                found.insert(file, {file.chopped(7), valueOf(lines, QStringLiteral("UseIn"))
                                                         .toLower()
                                                         .split(QLatin1Char(';'), Qt::SkipEmptyParts)});
        }
    }
    return found.values();
}

// The file that is in force: the first there is.
QString configuration(const FrontEnd& frontEnd)
{
    for (const QString& folder : frontEnd.configFolders) {
        QStringList names;
        for (const QString& desktop : frontEnd.desktops)
            names.append(desktop.toLower() + QStringLiteral("-portals.conf"));
        for (const QString& name : names + QStringList(QStringLiteral("portals.conf"))) {
            if (QFile::exists(folder + QLatin1Char('/') + name))
                return folder + QLatin1Char('/') + name;
        }
    }
    return {};
}

// Ours may be there under a second name that comes earlier.
bool isOwnName(const QString& name)
{
    return name == kOwnName || name.endsWith(QLatin1Char('-') + kOwnName);
}

QString chosenByDesktop(const FrontEnd& frontEnd, const QList<Description>& offered)
{
    for (const QString& desktop : frontEnd.desktops) {
        for (const Description& one : offered) {
            if (one.desktops.contains(desktop.toLower()))
                return one.name;
        }
    }
    return offered.isEmpty() ? QString() : offered.front().name;
}

QString chosen(const FrontEnd& frontEnd, const QList<Description>& offered)
{
    const QStringList lines =
        frontEnd.readsConfiguration() ? linesOf(configuration(frontEnd)) : QStringList();
    QString names = valueOf(lines, kInterface);
    if (names.isEmpty())
        names = valueOf(lines, QStringLiteral("default"));
    for (const QString& name : names.split(QLatin1Char(';'), Qt::SkipEmptyParts)) {
        if (name == QLatin1StringView("none"))
            return {};
        for (const Description& one : offered) {
            if (name == one.name || name == QLatin1Char('*'))
                return one.name;
        }
    }
    return chosenByDesktop(frontEnd, offered);
}

QString remedy(const FrontEnd& frontEnd, const QString& winner)
{
    if (frontEnd.readsConfiguration())
        return FrontEndWords::tr("\"halvern-print-portal --enable\" changes that for you.");
    return FrontEndWords::tr(
               "It takes the first by file name. An administrator can put this one before \"%1\": ln -s "
               "tessarin.portal %2/00-tessarin.portal")
        .arg(winner, frontEnd.portalFolders.value(0, kUsualPortals));
}

bool save(const QString& path, const QStringList& lines, QString& problem)
{
    QDir().mkpath(QFileInfo(path).absolutePath());
    const QString why = writeWholeFile(path, lines.join(QLatin1Char('\n')).toUtf8() + '\n');
    if (!why.isEmpty())
        problem = FrontEndWords::tr("\"%1\" cannot be written: %2.").arg(path, why);
    return why.isEmpty();
}

QString restartSentence()
{
    return FrontEndWords::tr(
        "The portal reads that when it starts: log in again, or run \"systemctl --user restart "
        "xdg-desktop-portal\".");
}

// Where the user's own one lies, under the name of the one that is in force.
QString usersFile(const FrontEnd& frontEnd)
{
    const QString inForce = configuration(frontEnd);
    return frontEnd.configFolders.front() + QLatin1Char('/') +
           (inForce.isEmpty() ? QStringLiteral("portals.conf") : QFileInfo(inForce).fileName());
}

QStringList withoutOurLine(QStringList lines)
{
    if (const qsizetype mark = lines.indexOf(kMark); mark >= 0)
        lines.remove(mark, std::min(qsizetype(2), lines.size() - mark));
    for (QString& line : lines) {
        if (line.startsWith(kInPlaceOf))
            line.remove(0, kInPlaceOf.size());
    }
    return lines;
}

} // namespace

FrontEnd FrontEnd::installed()
{
    FrontEnd frontEnd;
    for (const QString& folder :
         {QStringLiteral("/usr/libexec"), QStringLiteral("/usr/lib"),
          QStringLiteral("/usr/lib/xdg-desktop-portal"), QStringLiteral("/usr/local/libexec")}) {
        const QString program = folder + QStringLiteral("/xdg-desktop-portal");
        if (!QFileInfo(program).isExecutable() || QFileInfo(program).isDir() || !frontEnd.version.isNull())
            continue;
        QProcess process;
        process.start(program, {QStringLiteral("--version")});
        if (process.waitForFinished(kPatience))
            frontEnd.version = QVersionNumber::fromString(
                QString::fromUtf8(process.readAllStandardOutput()).trimmed().section(QLatin1Char(' '), -1));
    }
    const QString tail = QStringLiteral("/xdg-desktop-portal");
    frontEnd.portalFolders = variable("XDG_DESKTOP_PORTAL_DIR", QString());
    if (frontEnd.portalFolders.isEmpty() && frontEnd.readsConfiguration()) {
        for (const QString& folder : QStandardPaths::standardLocations(QStandardPaths::GenericDataLocation))
            frontEnd.portalFolders.append(folder + tail + QStringLiteral("/portals"));
    }
    if (frontEnd.portalFolders.isEmpty())
        frontEnd.portalFolders = QStringList(kUsualPortals);
    for (const QString& folder : QStandardPaths::standardLocations(QStandardPaths::GenericConfigLocation) +
                                     QStringList(QStringLiteral("/etc")) +
                                     QStandardPaths::standardLocations(QStandardPaths::GenericDataLocation))
        frontEnd.configFolders.append(folder + tail);
    frontEnd.desktops = variable("XDG_CURRENT_DESKTOP", QString());
    return frontEnd;
}

FrontEndAnswer checkFrontEnd(const FrontEnd& frontEnd)
{
    if (frontEnd.version.isNull())
        return {false, FrontEndWords::tr("There is no portal on this computer: install xdg-desktop-portal.")};
    const QList<Description> offered = descriptions(frontEnd);
    const QString version = frontEnd.version.toString();
    if (std::ranges::none_of(offered, [](const Description& one) { return isOwnName(one.name); }))
        return {false, FrontEndWords::tr(
                           "The portal (%1) does not know this program: there is no tessarin.portal in %2. "
                           "Install it there.")
                           .arg(version, listText(frontEnd.portalFolders))};
    const QString winner = chosen(frontEnd, offered);
    if (isOwnName(winner))
        return {true, FrontEndWords::tr("The portal (%1) chooses this program for printing.").arg(version)};
    if (winner.isEmpty())
        return {false, FrontEndWords::tr("The portal (%1) prints with nothing, as \"%2\" says. %3")
                           .arg(version, configuration(frontEnd), remedy(frontEnd, winner))};
    return {false, FrontEndWords::tr("The portal (%1) chooses \"%2\" for printing. %3")
                       .arg(version, winner, remedy(frontEnd, winner))};
}

FrontEndAnswer enableInFrontEnd(const FrontEnd& frontEnd)
{
    const FrontEndAnswer now = checkFrontEnd(frontEnd);
    if (now.isYes || !frontEnd.readsConfiguration())
        return now;
    const QString path = usersFile(frontEnd);
    // A file of the user's hides the system's: what that says stays said.
    QString problem;
    QStringList lines = withoutOurLine(linesOf(configuration(frontEnd), &problem));
    if (!problem.isEmpty())
        return {false, problem};
    if (lines.removeAll(QString()) >= 0 && !lines.contains(kGroup))
        lines.append(kGroup);
    for (QString& line : lines) {
        if (line.section(QLatin1Char('='), 0, 0).trimmed() == kInterface)
            line.prepend(kInPlaceOf);
    }
    const qsizetype place = lines.indexOf(kGroup) + 1;
    lines.insert(place, kInterface + QLatin1Char('=') + kOwnName);
    lines.insert(place, kMark);
    if (!save(path, lines, problem))
        return {false, problem};
    return {true, FrontEndWords::tr("Written into \"%1\".").arg(path) + QLatin1Char(' ') + restartSentence()};
}

FrontEndAnswer disableInFrontEnd(const FrontEnd& frontEnd)
{
    const QString path = frontEnd.configFolders.isEmpty() ? QString() : usersFile(frontEnd);
    QString problem;
    const QStringList lines = linesOf(path, &problem);
    if (!problem.isEmpty())
        return {false, problem};
    if (!lines.contains(kMark))
        return {true, FrontEndWords::tr("There is no line of this program's in \"%1\".").arg(path)};
    const QStringList left = withoutOurLine(lines);
    const bool isEmpty = left == QStringList(kGroup);
    if (isEmpty ? !QFile::remove(path) : !save(path, left, problem))
        return {false,
                problem.isEmpty() ? FrontEndWords::tr("\"%1\" cannot be removed.").arg(path) : problem};
    return {true, FrontEndWords::tr("Taken out of \"%1\".").arg(path) + QLatin1Char(' ') + restartSentence()};
}

} // namespace halvern
