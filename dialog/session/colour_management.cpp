// SPDX-License-Identifier: MIT
#include "dialog/session/colour_management.h"

#include "dialog/options/ppd_model.h"
#include "dialog/page/colour_profile.h"
#include "dialog/page/colour_service.h"
#include "dialog/session/driver_colours.h"
#include "platform/foundation/display_text.h"
#include "platform/foundation/list_text.h"
#include "platform/foundation/threads/work_queue.h"
#include "platform/printing/cups_ppd.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QPointer>

#include <array>

namespace halvern {

namespace {

constexpr qsizetype kLongestProfileName = 60;
constexpr qsizetype kLongestShort = 40;

struct ColourManagementWords {
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

// Where the print server's library looks for its data: on another computer's server, nobody here knows it.
QDir profilesFolder()
{
    return qEnvironmentVariable("CUPS_DATADIR", QStringLiteral("/usr/share/cups")) +
           QStringLiteral("/profiles");
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

} // namespace

QString profileOfPpd(const PpdModel& model)
{
    // All of them first: a look-up in between moves the place where the search goes on.
    std::vector<const ppd_attr_t*> rows;
    for (const ppd_attr_t* row = ppdFindAttr(model.file(), "cupsICCProfile", nullptr); row;
         row = ppdFindNextAttr(model.file(), "cupsICCProfile", nullptr))
        rows.push_back(row);
    for (const ppd_attr_t* row : rows) {
        const QString path = profilesFolder().absoluteFilePath(QString::fromUtf8(row->value));
        if (isForChoices(model, QString::fromUtf8(row->spec)) && QFileInfo(path).isFile())
            return path;
    }
    return {};
}

ColourManagement::ColourManagement(QObject* parent)
    : QObject(parent), watch_(new ColourServiceWatch(this)), shelf_(new ProfileShelf(this))
{
    connect(shelf_, &ProfileShelf::changed, this, &ColourManagement::changed);
    connect(watch_, &ColourServiceWatch::changed, this, [this] {
        ofService_.clear();
        ask();
    });
}

bool ColourManagement::isAsking() const
{
    return (!queue_.isEmpty() && !ofService_.contains(queue_)) || shelf_->isReading();
}

void ColourManagement::setQueue(const QString& queue)
{
    queue_ = queue;
    // Nobody would say that what is known is out of date.
    if (!watch_->isOpen())
        ofService_.clear();
    ask();
}

void ColourManagement::ask()
{
    if (queue_.isEmpty() || ofService_.contains(queue_))
        return;
    QPointer<ColourManagement> self(this);
    WorkQueue().async([self, queue = queue_] {
        const QString path = servicesProfileForQueue(queue);
        mainQueue().async([self, queue, path] {
            if (self)
                self->takeProfile(queue, path);
        });
    });
}

void ColourManagement::takeProfile(const QString& queue, const QString& path)
{
    ofService_.insert(queue, path);
    if (queue == queue_)
        Q_EMIT changed();
}

QString ColourManagement::ownProfile(const PpdModel& model) const
{
    const QString named = profileOfPpd(model);
    return named.isEmpty() ? ofService_.value(queue_) : named;
}

PrinterProfile ColourManagement::profileFor(const ColourSettings& settings, const PpdModel* model) const
{
    if (!settings.isByDialog)
        return {};
    const QString path = settings.profile.isEmpty() && model ? ownProfile(*model) : settings.profile;
    if (!path.isEmpty())
        return shelf_->find(path);
    PrinterProfile none;
    none.problem =
        ColourManagementWords::tr("No color profile of this printer is known. Choose one, or let the printer "
                                  "manage colors.");
    return none;
}

ColourPlan ColourManagement::planFor(const ColourSettings& settings, const PpdModel* model) const
{
    if (!settings.isByDialog && model && wantsAdobeRgb(*model))
        return {adobeRgbBytes(), ColourIntent::relative, true};
    if (!settings.isByDialog)
        return {};
    return {profileFor(settings, model).bytes, settings.intent, settings.compensatesBlack};
}

QString ColourManagement::shortly(const ColourSettings& settings, const PpdModel* model) const
{
    return ColourManagementWords::tr("colors for \"%1\"")
        .arg(isolated(profileFor(settings, model).name, kLongestShort));
}

QString ColourManagement::inWords(const ColourSettings& settings, const PpdModel* model) const
{
    if (!settings.isByDialog) {
        const bool isWide = model && wantsAdobeRgb(*model);
        return ColourManagementWords::tr(
                   "The printer converts the colors: each photo goes to it in %1. No soft proof: only "
                   "the printer knows what it makes of them.")
            .arg(isWide ? QStringLiteral("Adobe RGB") : QStringLiteral("sRGB"));
    }
    const PrinterProfile profile = profileFor(settings, model);
    if (!profile.problem.isEmpty())
        return profile.problem;
    QString sentence =
        ColourManagementWords::tr("This program converts the colors, from each photo's own to \"%1\".")
            .arg(isolated(profile.name, kLongestProfileName));
    OptionValues off = model ? withoutDriverColours(*model) : OptionValues();
    off.removeIf([&](const OptionValue& value) {
        return !ppd_lookup::listedChoice(model->file(), value.key, value.value);
    });
    const QStringList texts = [&] {
        QStringList list;
        for (const OptionValue& value : off)
            list.append(ColourManagementWords::tr("%1: %2").arg(model->optionText(value.key),
                                                                model->choiceText(value.key, value.value)));
        return list;
    }();
    sentence +=
        QLatin1Char(' ') +
        (texts.isEmpty() ? ColourManagementWords::tr("See that the printer's own color correction is off.")
                         : ColourManagementWords::tr("The printer is told not to convert them again (%1).")
                               .arg(listText(texts)));
    const QString whyNoProof = this->whyNoProof(settings, model);
    return whyNoProof.isEmpty() ? sentence : sentence + QLatin1Char(' ') + whyNoProof;
}

void ColourManagement::setProof(const ProofSettings& proof)
{
    if (proof == proof_)
        return;
    proof_ = proof;
    Q_EMIT proofChanged();
}

QString ColourManagement::whyNoProof(const ColourSettings& settings, const PpdModel* model) const
{
    if (!settings.isByDialog)
        return ColourManagementWords::tr(
            "Only the printer knows what it makes of the colors. Let this program manage them, "
            "for a profile, to see a soft proof.");
    const PrinterProfile profile = profileFor(settings, model);
    if (!profile.problem.isEmpty())
        return profile.problem;
    return profile.canProof
               ? QString()
               : ColourManagementWords::tr("\"%1\" does not say what its colors look like: with it there is "
                                           "no soft proof.")
                     .arg(isolated(profile.name, kLongestProfileName));
}

ScreenPlan ColourManagement::screenPlan(const ColourSettings& settings, const PpdModel* model) const
{
    ScreenPlan plan;
    if (!proof_.isOn || !whyNoProof(settings, model).isEmpty())
        return plan;
    plan.proof = planFor(settings, model);
    plan.showsPaper = proof_.showsPaper;
    plan.marksGamut = proof_.marksGamut;
    return plan;
}

QString ColourManagement::proofInWords(const ColourSettings& settings, const PpdModel* model) const
{
    const ScreenPlan plan = screenPlan(settings, model);
    if (!plan.proof)
        return {};
    QString words = plan.showsPaper ? ColourManagementWords::tr("Soft proof with paper white")
                                    : ColourManagementWords::tr("Soft proof");
    if (plan.marksGamut)
        words += QStringLiteral("  ·  ") + ColourManagementWords::tr("pink cannot be printed");
    return words;
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
            return ColourManagementWords::tr(row.name);
    }
    return {};
}

} // namespace halvern
