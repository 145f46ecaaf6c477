// SPDX-License-Identifier: MIT
#include "dialog/options/preset_file.h"

#include "platform/foundation/log.h"
#include "platform/foundation/whole_file.h"

#include <QCoreApplication>
#include <QCryptographicHash>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonArray>
#include <QStandardPaths>
#include <QUrl>

#include <algorithm>
#include <cstdio>
#include <new>

namespace halvern {

namespace {

struct PresetFileWords {
    Q_DECLARE_TR_FUNCTIONS(Presets)
};

constexpr int kLockMilliseconds = 1000;
constexpr qint64 kLargestFile = qint64(32) << 20;
constexpr qsizetype kMostPresets = 1000;
constexpr int kMostFiles = 500;
constexpr qsizetype kLongestFileName = 150;
const QString kPresets = QStringLiteral("presets");
const QString kLastUsed = QStringLiteral("lastUsed");
const QString kName = QStringLiteral("name");
const QString kQueue = QStringLiteral("queue");

QString folder()
{
    return QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) +
           QStringLiteral("/halvern/presets");
}

// Queues may be called nearly anything, and a file's name has an end.
QString fileNameOf(const QString& queue)
{
    QByteArray name = QUrl::toPercentEncoding(queue, {}, ".~");
    if (name.size() > kLongestFileName)
        name = name.left(kLongestFileName) + '-' +
               QCryptographicHash::hash(queue.toUtf8(), QCryptographicHash::Sha256).toHex().left(16);
    return QString::fromLatin1(name) + QStringLiteral(".json");
}

struct ReadFile {
    QByteArray text;
    QString problem;
    bool isDamaged = false;
};

ReadFile readWhole(const QString& path)
{
    // A pipe would never end.
    if (!QFileInfo(path).isFile())
        return {{}, PresetFileWords::tr("It is no file."), true};
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return {{}, file.errorString(), false};
    const QByteArray text = file.read(kLargestFile + 1);
    if (text.size() > kLargestFile)
        return {{}, PresetFileWords::tr("It is too large."), true};
    return {text, file.error() == QFileDevice::NoError ? QString() : file.errorString(), false};
}

// The empty sentence, or why it could not be written. The file is there whole or as it was.
QString writeWhole(const QString& path, const QByteArray& text)
{
    if (QFileInfo::exists(path) && !QFileInfo(path).isFile())
        return PresetFileWords::tr("It is no file.");
    return writeWholeFile(path, text, NewFile::forMyself);
}

qsizetype indexOf(const QJsonArray& presets, const QString& name)
{
    for (qsizetype i = 0; i < presets.size(); ++i) {
        if (presets[i].toObject().value(kName).toString() == name)
            return i;
    }
    return -1;
}

QString putInto(QJsonArray& presets, const Preset& preset)
{
    const qsizetype at = indexOf(presets, preset.name);
    if (at < 0 && presets.size() >= kMostPresets)
        return PresetFileWords::tr("There are %1 presets already. Delete one first.").arg(kMostPresets);
    if (at < 0)
        presets.append(toJson(preset));
    else
        presets[at] = toJson(preset);
    return {};
}

QString noSuchPreset(const QString& name)
{
    return PresetFileWords::tr("The preset \"%1\" is not there any more.").arg(name);
}

} // namespace

PresetFile::PresetFile(const QString& queue)
    : queue_(queue), path_(folder() + QLatin1Char('/') + fileNameOf(queue))
{
}

PresetDocument PresetFile::load() const
{
    // QFileInfo::exists() does not see a link to nowhere, which is written through.
    if (!QFileInfo::exists(path_))
        return {emptyPresetDocument(), {}, false};
    const ReadFile file = readWhole(path_);
    if (!file.problem.isEmpty())
        return {{}, file.problem, file.isDamaged};
    return readPresetDocument(file.text);
}

// The sentence that says where it is now.
QString PresetFile::setAside(const QString& why) const
{
    const QString stamp = QDateTime::currentDateTimeUtc().toString(QStringLiteral("yyyyMMdd-HHmmss-zzz"));
    const QString aside = path_ + QStringLiteral(".damaged-") + stamp;
    if (std::rename(QFile::encodeName(path_).constData(), QFile::encodeName(aside).constData()) != 0)
        return PresetFileWords::tr("The presets of \"%1\" cannot be read, and %2 cannot be moved away. %3")
            .arg(queue_, path_, why);
    return PresetFileWords::tr(
               "The presets of \"%1\" could not be read, and begin anew. What was there is in %2. %3")
        .arg(queue_, aside, why);
}

KeptPresets PresetFile::read() const
{
    try {
        return readKept();
    } catch (const std::bad_alloc&) {
        return {{}, {}, PresetFileWords::tr("There is not enough memory to read the presets.")};
    }
}

KeptPresets PresetFile::readKept() const
{
    PresetDocument document = load();
    if (document.isDamaged) {
        // Another dialog may have mended it by now.
        const FileLock lock(path_ + QStringLiteral(".lock"), kLockMilliseconds);
        if (!lock.isHeld())
            return {{}, {}, document.problem};
        document = load();
        if (document.isDamaged)
            return {{}, {}, setAside(document.problem)};
    }
    if (!document.problem.isEmpty())
        return {
            {}, {}, PresetFileWords::tr("The presets in %1 cannot be used. %2").arg(path_, document.problem)};
    KeptPresets kept;
    int unreadable = 0;
    kept.presets = presetsOf(document.root, &unreadable);
    std::ranges::sort(kept.presets,
                      [](const Preset& a, const Preset& b) { return a.name.localeAwareCompare(b.name) < 0; });
    if (document.root.contains(kLastUsed))
        kept.lastUsed = presetFromJson(document.root.value(kLastUsed).toObject());
    if (unreadable > 0 || (document.root.contains(kLastUsed) && !kept.lastUsed))
        kept.problem =
            PresetFileWords::tr("Some presets in %1 cannot be read and are left alone.").arg(path_);
    return kept;
}

QString PresetFile::change(const Edit& edit) const
{
    const auto failed = [this](const QString& why) {
        return PresetFileWords::tr("The presets of \"%1\" could not be written to %2. %3")
            .arg(queue_, path_, why);
    };
    if (!QDir().mkpath(folder()))
        return failed(PresetFileWords::tr("The folder cannot be made."));
    const QString lockPath = path_ + QStringLiteral(".lock");
    const FileLock lock(lockPath, kLockMilliseconds);
    if (!lock.isHeld())
        return failed(PresetFileWords::tr("Another program holds the lock %1.").arg(lockPath));
    PresetDocument document = load();
    if (document.isDamaged) {
        // Told where it was read first.
        logLine(setAside(document.problem));
        document = load();
    }
    if (!document.problem.isEmpty())
        return failed(document.problem);
    document.root.insert(kQueue, queue_);
    if (const QString refusal = edit(document.root); !refusal.isEmpty())
        return refusal;
    const QByteArray text = presetText(document.root);
    const QString problem =
        text.size() > kLargestFile ? PresetFileWords::tr("It would be too large.") : writeWhole(path_, text);
    return problem.isEmpty() ? problem : failed(problem);
}

QString PresetFile::save(const Preset& preset) const
{
    return change([&](QJsonObject& root) {
        QJsonArray presets = root.value(kPresets).toArray();
        const QString refusal = putInto(presets, preset);
        root.insert(kPresets, presets);
        return refusal;
    });
}

QString PresetFile::rename(const QString& from, const QString& to) const
{
    return change([&](QJsonObject& root) {
        QJsonArray presets = root.value(kPresets).toArray();
        const qsizetype at = indexOf(presets, from);
        if (at < 0)
            return noSuchPreset(from);
        if (from != to && indexOf(presets, to) >= 0)
            return PresetFileWords::tr("There is a preset \"%1\" already. Choose another name.").arg(to);
        QJsonObject renamed = presets[at].toObject();
        renamed.insert(kName, to);
        presets[at] = renamed;
        root.insert(kPresets, presets);
        return QString();
    });
}

QString PresetFile::remove(const QString& name) const
{
    return change([&](QJsonObject& root) {
        QJsonArray presets = root.value(kPresets).toArray();
        const qsizetype at = indexOf(presets, name);
        if (at < 0)
            return noSuchPreset(name);
        presets.removeAt(at);
        root.insert(kPresets, presets);
        return QString();
    });
}

QString PresetFile::remember(const Preset& preset) const
{
    return change([&](QJsonObject& root) {
        root.insert(kLastUsed, toJson(preset));
        return QString();
    });
}

QString PresetFile::add(const QList<Preset>& added, QStringList* names) const
{
    return change([&](QJsonObject& root) {
        QJsonArray presets = root.value(kPresets).toArray();
        QString refusal;
        for (Preset preset : added) {
            const QString name = preset.name.left(kLongestPresetName - 8);
            const auto isTaken = [&presets](const QString& wanted) {
                return indexOf(presets, wanted) >= 0 || isLastUsedName(wanted) ||
                       isPrinterDefaultsName(wanted);
            };
            for (int number = 2; isTaken(preset.name); ++number)
                preset.name = QStringLiteral("%1 (%2)").arg(name, QString::number(number));
            if (refusal.isEmpty())
                refusal = putInto(presets, preset);
            names->append(preset.name);
        }
        root.insert(kPresets, presets);
        return refusal;
    });
}

QList<QueuesPreset> presetsForModel(const QString& makeAndModel, const QString& exceptQueue)
{
    QList<QueuesPreset> found;
    if (makeAndModel.isEmpty())
        return found;
    const QStringList files =
        QDir(folder()).entryList({QStringLiteral("*.json")}, QDir::Files | QDir::Readable, QDir::Name);
    for (const QString& name : files.mid(0, kMostFiles)) {
        const ReadFile file = readWhole(folder() + QLatin1Char('/') + name);
        const QJsonObject root = file.problem.isEmpty() ? readPresetDocument(file.text).root : QJsonObject();
        const QString queue = root.value(kQueue).toString();
        if (queue.isEmpty() || queue == exceptQueue)
            continue;
        for (const Preset& preset : presetsOf(root)) {
            if (preset.makeAndModel == makeAndModel)
                found.append({queue, preset});
        }
    }
    return found;
}

ImportedPresets importPresets(const QString& path)
{
    const auto failed = [&](const QString& why) {
        return ImportedPresets{{}, PresetFileWords::tr("No presets were read from %1. %2").arg(path, why)};
    };
    const ReadFile file = readWhole(path);
    if (!file.problem.isEmpty())
        return failed(file.problem);
    const PresetDocument document = readPresetDocument(file.text);
    if (!document.problem.isEmpty())
        return failed(document.problem);
    int unreadable = 0;
    const QList<Preset> presets = presetsOf(document.root, &unreadable).mid(0, kMostPresets);
    if (presets.isEmpty())
        return failed(PresetFileWords::tr("There is none in it that can be read."));
    return {presets,
            unreadable > 0
                ? PresetFileWords::tr("Some presets in %1 cannot be read and were left out.").arg(path)
                : QString()};
}

QString exportPresets(const QString& path, const QList<Preset>& presets)
{
    QJsonArray entries;
    for (const Preset& preset : presets)
        entries.append(toJson(preset));
    QJsonObject root = emptyPresetDocument();
    root.insert(kPresets, entries);
    const QString problem = writeWhole(path, presetText(root));
    return problem.isEmpty()
               ? problem
               : PresetFileWords::tr("The presets could not be written to %1. %2").arg(path, problem);
}

} // namespace halvern
