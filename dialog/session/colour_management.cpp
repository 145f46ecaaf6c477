// SPDX-License-Identifier: MIT
#include "dialog/session/colour_management.h"

#include "dialog/options/ppd_model.h"
#include "dialog/page/colour_profile.h"
#include "platform/foundation/display_text.h"
#include "platform/foundation/threads/work_queue.h"
#include "platform/printing/cups_ppd.h"

#include <QCoreApplication>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusObjectPath>
#include <QDBusReply>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QPointer>

#include <array>

// A resource in a static library has to be asked for, outside any namespace.
static void initColourDrivers()
{
    Q_INIT_RESOURCE(colour_drivers);
}

namespace halvern {

namespace {

constexpr qint64 kLargestProfile = 64 * 1024 * 1024;
constexpr int kServiceMilliseconds = 2000;
constexpr qsizetype kLongestName = 60;
constexpr qsizetype kLongestShort = 40;
const QString kService = QStringLiteral("org.freedesktop.ColorManager");
const QString kDataFolder = QStringLiteral("/usr/share/cups/profiles");

struct Words {
    Q_DECLARE_TR_FUNCTIONS(ColourManagement)
};

struct IntentRow {
    ColourIntent intent;
    const char* word;
    const char* name;
};

constexpr std::array kIntents{
    IntentRow{ColourIntent::perceptual, "perceptual", QT_TRANSLATE_NOOP("ColourManagement", "Perceptual")},
    IntentRow{ColourIntent::relative, "relative",
              QT_TRANSLATE_NOOP("ColourManagement", "Relative colorimetric")},
    IntentRow{ColourIntent::saturation, "saturation", QT_TRANSLATE_NOOP("ColourManagement", "Saturation")},
    IntentRow{ColourIntent::absolute, "absolute",
              QT_TRANSLATE_NOOP("ColourManagement", "Absolute colorimetric")},
};

struct DriverRow {
    QString option;
    QString choice;
    bool isEverywhere = false;
};

QList<DriverRow> readDriverRows()
{
    initColourDrivers();
    QFile file(QStringLiteral(":/halvern/colour-drivers.json"));
    QList<DriverRow> rows;
    if (!file.open(QIODevice::ReadOnly))
        return rows;
    const QJsonArray array = QJsonDocument::fromJson(file.readAll())[QLatin1StringView("rows")].toArray();
    for (const QJsonValue& row : array)
        rows.append({row[QLatin1StringView("option")].toString(), row[QLatin1StringView("choice")].toString(),
                     row[QLatin1StringView("everywhere")].toBool()});
    return rows;
}

// The option whose choice a profile's qualifier names.
QString qualifierOption(ppd_file_t* file, int place)
{
    const QByteArray keyword = "cupsICCQualifier" + QByteArray::number(place);
    const QString named = ppd::attribute(file, QString::fromLatin1(keyword)).value_or(QString());
    if (!named.isEmpty())
        return named;
    return place == 1   ? QStringLiteral("ColorModel")
           : place == 2 ? QStringLiteral("MediaType")
                        : QStringLiteral("Resolution");
}

// Whether a profile for "RGB.Glossy.600dpi" is for what is chosen; what it leaves out, it is for all of.
bool isForChoices(const PpdModel& model, const QString& qualifiers)
{
    const QStringList parts = qualifiers.split(QLatin1Char('.'));
    for (qsizetype i = 0; i < parts.size() && i < 3; ++i) {
        const QString chosen = model.value(qualifierOption(model.file(), int(i) + 1));
        if (!parts[i].isEmpty() && !chosen.isEmpty() && parts[i].compare(chosen, Qt::CaseInsensitive) != 0)
            return false;
    }
    return true;
}

// What the colour service has for a queue; empty without it. Waits for its answers.
QString askService(const QString& queue)
{
    const QDBusConnection bus = QDBusConnection::systemBus();
    const auto ask = [&](const QString& path, const QString& interface, const QString& method,
                         const QVariantList& arguments) {
        QDBusMessage call = QDBusMessage::createMethodCall(kService, path, interface, method);
        call.setArguments(arguments);
        return bus.call(call, QDBus::Block, kServiceMilliseconds);
    };
    const QDBusReply<QDBusObjectPath> device =
        ask(QStringLiteral("/org/freedesktop/ColorManager"), kService, QStringLiteral("FindDeviceById"),
            {QStringLiteral("cups-") + queue});
    if (!device.isValid())
        return {};
    const QDBusReply<QDBusObjectPath> profile =
        ask(device.value().path(), kService + QStringLiteral(".Device"),
            QStringLiteral("GetProfileForQualifiers"), {QStringList{QStringLiteral("*")}});
    if (!profile.isValid())
        return {};
    const QDBusReply<QDBusVariant> file =
        ask(profile.value().path(), QStringLiteral("org.freedesktop.DBus.Properties"), QStringLiteral("Get"),
            {kService + QStringLiteral(".Profile"), QStringLiteral("Filename")});
    return file.isValid() ? file.value().variant().toString() : QString();
}

PrinterProfile failed(const QString& path, const QString& problem)
{
    PrinterProfile profile;
    profile.path = path;
    profile.problem = problem;
    return profile;
}

} // namespace

PrinterProfile readPrinterProfile(const QString& path)
{
    QFile file(path);
    const QString shown = isolated(QDir::toNativeSeparators(path));
    if (!QFileInfo(path).isFile() || file.size() > kLargestProfile || !file.open(QIODevice::ReadOnly))
        return failed(path, Words::tr("The colour profile \"%1\" cannot be read. Choose another one, or let "
                                      "the printer manage colours.")
                                .arg(shown));
    const QByteArray bytes = file.readAll();
    const OpenProfile profile = openProfile(bytes);
    if (!profile || !canConvertTo(profile))
        return failed(path, Words::tr("\"%1\" is no colour profile of a printer. Choose another one, or let "
                                      "the printer manage colours.")
                                .arg(shown));
    const QString name = profileName(profile);
    return {bytes, path, name.isEmpty() ? QFileInfo(path).completeBaseName() : name, {}};
}

QString profileOfPpd(const PpdModel& model)
{
    for (ppd_attr_t* row = ppdFindAttr(model.file(), "cupsICCProfile", nullptr); row;
         row = ppdFindNextAttr(model.file(), "cupsICCProfile", nullptr)) {
        const QString path = QDir(kDataFolder).absoluteFilePath(QString::fromUtf8(row->value));
        if (isForChoices(model, QString::fromUtf8(row->spec)) && QFileInfo(path).isFile())
            return path;
    }
    return {};
}

OptionValues withoutDriverColours(const PpdModel& model)
{
    static const QList<DriverRow> rows = readDriverRows();
    OptionValues values;
    for (const DriverRow& row : rows) {
        if (row.isEverywhere || ppd_lookup::listedChoice(model.file(), row.option, row.choice))
            values.append({row.option, row.choice});
    }
    return values;
}

void ColourManagement::setQueue(const QString& queue)
{
    queue_ = queue;
    profileOfService_.clear();
    isAsking_ = true;
    QPointer<ColourManagement> self(this);
    WorkQueue().async([self, queue] {
        const QString path = askService(queue);
        mainQueue().async([self, queue, path] {
            if (self)
                self->takeProfile(queue, path);
        });
    });
}

void ColourManagement::takeProfile(const QString& queue, const QString& path)
{
    if (queue != queue_)
        return;
    isAsking_ = false;
    profileOfService_ = path;
    Q_EMIT changed();
}

QString ColourManagement::ownProfile(const PpdModel& model) const
{
    const QString named = profileOfPpd(model);
    return named.isEmpty() ? profileOfService_ : named;
}

PrinterProfile ColourManagement::profileFor(const ColourSettings& settings, const PpdModel* model) const
{
    if (!settings.isByDialog)
        return {};
    const QString path = settings.profile.isEmpty() && model ? ownProfile(*model) : settings.profile;
    if (path.isEmpty())
        return failed({}, Words::tr("No colour profile of this printer is known. Choose one, or let the "
                                    "printer manage colours."));
    // A file that could not be read may be there by now.
    if (!read_.contains(path) || !read_.value(path).problem.isEmpty())
        read_.insert(path, readPrinterProfile(path));
    return read_.value(path);
}

ColourPlan ColourManagement::planFor(const ColourSettings& settings, const PpdModel* model) const
{
    if (!settings.isByDialog)
        return {};
    return {profileFor(settings, model).bytes, settings.intent, settings.compensatesBlack};
}

QString ColourManagement::shortly(const ColourSettings& settings, const PpdModel* model) const
{
    return Words::tr("colours for \"%1\"").arg(isolated(profileFor(settings, model).name, kLongestShort));
}

QString ColourManagement::inWords(const ColourSettings& settings, const PpdModel* model) const
{
    if (!settings.isByDialog)
        return Words::tr("The printer converts the colours: each photo goes to it in sRGB.");
    const PrinterProfile profile = profileFor(settings, model);
    if (!profile.problem.isEmpty())
        return profile.problem;
    QString sentence = Words::tr("This program converts the colours, from each photo's own to \"%1\".")
                           .arg(isolated(profile.name, kLongestName));
    OptionValues off = model ? withoutDriverColours(*model) : OptionValues();
    off.removeIf([&](const OptionValue& value) {
        return !ppd_lookup::listedChoice(model->file(), value.key, value.value);
    });
    const QStringList texts = [&] {
        QStringList list;
        for (const OptionValue& value : off)
            list.append(Words::tr("%1: %2").arg(model->optionText(value.key),
                                                model->choiceText(value.key, value.value)));
        return list;
    }();
    sentence += QLatin1Char(' ') + (texts.isEmpty()
                                        ? Words::tr("See that the printer's own colour correction is off.")
                                        : Words::tr("The printer is told not to convert them again (%1).")
                                              .arg(texts.join(QStringLiteral(", "))));
    return sentence;
}

QString intentWord(ColourIntent intent)
{
    for (const IntentRow& row : kIntents) {
        if (row.intent == intent)
            return QString::fromLatin1(row.word);
    }
    return {};
}

bool readIntent(const QString& word, ColourIntent& intent)
{
    for (const IntentRow& row : kIntents) {
        if (word == QLatin1StringView(row.word)) {
            intent = row.intent;
            return true;
        }
    }
    return false;
}

QString intentName(ColourIntent intent)
{
    for (const IntentRow& row : kIntents) {
        if (row.intent == intent)
            return Words::tr(row.name);
    }
    return {};
}

} // namespace halvern
