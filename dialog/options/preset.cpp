// SPDX-License-Identifier: MIT
#include "dialog/options/preset.h"

#include "platform/foundation/display_text.h"

#include <QCoreApplication>
#include <QJsonArray>
#include <QJsonDocument>

namespace halvern {

namespace {

struct PresetWords {
    Q_DECLARE_TR_FUNCTIONS(Presets)
};

const QString kSchema = QStringLiteral("halvern-presets");
constexpr int kVersion = 1;
constexpr qsizetype kMostOptions = 20000;
constexpr qsizetype kLongestValue = 16384;

using Texts = QMap<QString, QString>;

QJsonObject textsToJson(const Texts& texts)
{
    QJsonObject object;
    for (auto it = texts.cbegin(); it != texts.cend(); ++it)
        object.insert(it.key(), it.value());
    return object;
}

std::optional<Texts> textsFromJson(const QJsonObject& object)
{
    if (object.size() > kMostOptions)
        return std::nullopt;
    Texts texts;
    for (auto it = object.begin(); it != object.end(); ++it) {
        const QString value = it.value().toString();
        const bool isTooLong = it.key().size() > kLongestValue || value.size() > kLongestValue;
        if (!it.value().isString() || it.key().isEmpty() || isTooLong)
            return std::nullopt;
        texts.insert(it.key(), value);
    }
    return texts;
}

bool isSameName(const QString& name, const QString& translated, const char* english)
{
    return name.compare(translated, Qt::CaseInsensitive) == 0 ||
           name.compare(QLatin1StringView(english), Qt::CaseInsensitive) == 0;
}

} // namespace

QString presetName(const QString& typed)
{
    const QString name = displayText(typed, int(kLongestPresetName) + 1).simplified();
    return name.size() > kLongestPresetName ? QString() : name.normalized(QString::NormalizationForm_C);
}

QJsonObject toJson(const Preset& preset)
{
    QJsonObject object;
    const auto insertText = [&](const char* key, const QString& text) {
        if (!text.isEmpty())
            object.insert(QLatin1StringView(key), text);
    };
    insertText("name", preset.name);
    insertText("makeAndModel", preset.makeAndModel);
    insertText("saved", preset.saved.isValid() ? preset.saved.toUTC().toString(Qt::ISODate) : QString());
    insertText("basedOn", preset.basedOn);
    object.insert(QStringLiteral("options"), textsToJson(preset.options));
    QStringList changed = preset.changed.values();
    changed.sort();
    object.insert(QStringLiteral("changed"), QJsonArray::fromStringList(changed));
    object.insert(QStringLiteral("page"), textsToJson(preset.page));
    return object;
}

std::optional<Preset> presetFromJson(const QJsonObject& object)
{
    const QJsonValue written = object.value(QStringLiteral("options"));
    const std::optional<Texts> options = textsFromJson(written.toObject());
    const std::optional<Texts> page = textsFromJson(object.value(QStringLiteral("page")).toObject());
    if (!written.isObject() || !options || !page)
        return std::nullopt;
    Preset preset;
    preset.name = presetName(object.value(QStringLiteral("name")).toString());
    preset.makeAndModel = displayText(object.value(QStringLiteral("makeAndModel")).toString());
    preset.saved = QDateTime::fromString(object.value(QStringLiteral("saved")).toString(), Qt::ISODate);
    preset.basedOn = presetName(object.value(QStringLiteral("basedOn")).toString());
    preset.options = *options;
    preset.page = *page;
    for (const QJsonValue& key : object.value(QStringLiteral("changed")).toArray()) {
        if (preset.options.contains(key.toString()))
            preset.changed.insert(key.toString());
    }
    // Without the list, whatever is in it was chosen.
    if (!object.value(QStringLiteral("changed")).isArray())
        preset.changed = QSet<QString>(preset.options.keyBegin(), preset.options.keyEnd());
    return preset;
}

PresetDocument readPresetDocument(const QByteArray& text)
{
    QJsonParseError error;
    const QJsonDocument document = QJsonDocument::fromJson(text, &error);
    const QJsonObject root = document.object();
    const QString notOurs = PresetWords::tr("It holds no presets of this program.");
    if (!document.isObject())
        return {{}, error.error == QJsonParseError::NoError ? notOurs : error.errorString(), true};
    if (root.value(QStringLiteral("schema")).toString() != kSchema)
        return {{}, notOurs, true};
    const int version = root.value(QStringLiteral("version")).toInt();
    if (version < 1)
        return {{}, notOurs, true};
    if (version > kVersion)
        return {{}, PresetWords::tr("It was written by a newer version of this program."), false};
    return {root, {}, false};
}

QList<Preset> presetsOf(const QJsonObject& root, int* unreadable)
{
    QList<Preset> presets;
    int failures = 0;
    for (const QJsonValue& entry : root.value(QStringLiteral("presets")).toArray()) {
        const std::optional<Preset> preset = presetFromJson(entry.toObject());
        if (preset && !preset->name.isEmpty())
            presets.append(*preset);
        else
            ++failures;
    }
    if (unreadable)
        *unreadable = failures;
    return presets;
}

QJsonObject emptyPresetDocument()
{
    return {{QStringLiteral("schema"), kSchema}, {QStringLiteral("version"), kVersion}};
}

QByteArray presetText(const QJsonObject& root)
{
    return QJsonDocument(root).toJson(QJsonDocument::Indented);
}

QString printerDefaultsName()
{
    return PresetWords::tr("Printer Defaults");
}

QString lastUsedName()
{
    return PresetWords::tr("Last Used");
}

bool isPrinterDefaultsName(const QString& name)
{
    return isSameName(name, printerDefaultsName(), "Printer Defaults");
}

bool isLastUsedName(const QString& name)
{
    return isSameName(name, lastUsedName(), "Last Used");
}

} // namespace halvern
