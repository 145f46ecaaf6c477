// SPDX-License-Identifier: MIT
#include "dialog/page/layout_library.h"

#include "platform/foundation/display_text.h"
#include "platform/foundation/list_text.h"
#include "platform/foundation/whole_file.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonDocument>
#include <QRegularExpression>
#include <QStandardPaths>

#include <algorithm>
#include <utility>

// A resource in a static library has to be asked for, outside any namespace.
static void initLayouts()
{
    Q_INIT_RESOURCE(layouts);
}

namespace halvern {

namespace {

struct LayoutLibraryWords {
    Q_DECLARE_TR_FUNCTIONS(Layouts)
};

constexpr qint64 kLargestFile = 256 * 1024;
constexpr qsizetype kMostFiles = 200;
const QString kSuffix = QStringLiteral(".json");
const QString kProgramsFolder = QStringLiteral(":/halvern/layouts");

// As people look for them: tables by how many they take, then sizes, then the rest.
bool isBefore(const Layout& one, const Layout& other)
{
    const auto rank = [](const Layout& layout) {
        return std::pair(layout.kind, layout.rows * layout.columns);
    };
    return rank(one) < rank(other);
}

ReadLayout readFile(const QString& path)
{
    const QString id = QFileInfo(path).completeBaseName();
    // A pipe would never end.
    if (!QFileInfo(path).isFile())
        return {{}, LayoutLibraryWords::tr("It is no file.")};
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return {{}, file.errorString()};
    const QByteArray text = file.read(kLargestFile + 1);
    if (text.size() > kLargestFile)
        return {{}, LayoutLibraryWords::tr("It is too large.")};
    QJsonParseError error;
    const QJsonDocument document = QJsonDocument::fromJson(text, &error);
    if (!document.isObject())
        return {{}, LayoutLibraryWords::tr("It is no JSON object: %1.").arg(error.errorString())};
    return layoutFromJson(document.object(), id);
}

// What a file's name and a command line take without quotes.
QString idOf(const QString& name)
{
    static const QRegularExpression other(QStringLiteral("[^\\p{L}\\p{N}]+"));
    QString id = name.toLower().replace(other, QStringLiteral("-"));
    while (id.startsWith(QLatin1Char('-')))
        id.remove(0, 1);
    while (id.endsWith(QLatin1Char('-')))
        id.chop(1);
    return id.left(kLongestLayoutName);
}

} // namespace

LayoutLibrary::LayoutLibrary()
{
    initLayouts();
    readAgain();
}

QString LayoutLibrary::ownFolder()
{
    return QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) +
           QStringLiteral("/halvern/layouts");
}

void LayoutLibrary::readAgain()
{
    layouts_.clear();
    problems_.clear();
    for (const QString& folder : {kProgramsFolder, ownFolder()}) {
        const QStringList names =
            QDir(folder).entryList({QLatin1Char('*') + kSuffix}, QDir::Files | QDir::System, QDir::Name);
        for (const QString& name : names.mid(0, kMostFiles)) {
            const QString path = folder + QLatin1Char('/') + name;
            ReadLayout read = readFile(path);
            if (read.problem.isEmpty() && find(read.layout.id))
                read.problem = LayoutLibraryWords::tr("There is another layout \"%1\".").arg(read.layout.id);
            read.layout.isOwn = folder != kProgramsFolder;
            if (read.problem.isEmpty())
                layouts_.append(read.layout);
            else
                problems_.append(LayoutLibraryWords::tr("The layout %1 was left out. %2")
                                     .arg(displayText(path), read.problem));
        }
        if (folder == kProgramsFolder)
            std::ranges::stable_sort(layouts_, isBefore);
    }
}

std::optional<Layout> LayoutLibrary::find(const QString& id) const
{
    if (id.isEmpty())
        return Layout();
    for (const Layout& layout : layouts_) {
        if (layout.id == id)
            return layout;
    }
    return layoutOfMeasures(id);
}

QString LayoutLibrary::unknownText(const QString& id) const
{
    QStringList ids;
    for (const Layout& layout : layouts_)
        ids.append(layout.id);
    const QString unknown =
        LayoutLibraryWords::tr(
            "There is no layout \"%1\". There are: %2; and rows x columns, such as 3x4, and sizes, "
            "such as 90x130mm.")
            .arg(displayText(id, kLongestLayoutName), listText(ids));
    return (QStringList(unknown) + problems_).join(QLatin1Char(' '));
}

QString LayoutLibrary::save(Layout layout, const QString& name, QString* id)
{
    layout.name = displayText(name, kLongestLayoutName).trimmed();
    layout.id = idOf(layout.name);
    const std::optional<Layout> there = find(layout.id);
    if (layout.id.isEmpty() || layout.kind == LayoutKind::single)
        return LayoutLibraryWords::tr("Write a name with letters or numbers.");
    if (there && !there->isOwn)
        return LayoutLibraryWords::tr("\"%1\" is a layout that is always there. Choose another name.")
            .arg(layout.name);
    if (!QDir().mkpath(ownFolder()))
        return LayoutLibraryWords::tr("The folder %1 cannot be made.").arg(displayText(ownFolder()));
    const QString path = ownFolder() + QLatin1Char('/') + layout.id + kSuffix;
    if (there ? there->name != layout.name : QFileInfo::exists(path))
        return LayoutLibraryWords::tr(
                   "The file %1 holds something else already. Choose another name, or take the file away.")
            .arg(displayText(path));
    const QString problem = writeWholeFile(path, QJsonDocument(toJson(layout)).toJson());
    if (!problem.isEmpty())
        return LayoutLibraryWords::tr("The layout could not be kept in %1. %2")
            .arg(displayText(path), problem);
    *id = layout.id;
    readAgain();
    return {};
}

QString LayoutLibrary::remove(const QString& id)
{
    const std::optional<Layout> layout = find(id);
    QFile file(ownFolder() + QLatin1Char('/') + id + kSuffix);
    if (!layout || !layout->isOwn)
        return LayoutLibraryWords::tr("Only layouts of your own can be deleted.");
    if (!file.remove())
        return LayoutLibraryWords::tr("%1 could not be deleted. %2")
            .arg(displayText(file.fileName()), file.errorString());
    readAgain();
    return {};
}

} // namespace halvern
