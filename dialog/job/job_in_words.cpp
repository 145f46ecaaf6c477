// SPDX-License-Identifier: MIT
#include "dialog/job/job_in_words.h"

#include "dialog/job/job_options.h"
#include "dialog/options/ppd_keywords.h"
#include "dialog/options/ppd_model.h"
#include "dialog/page/page_choice.h"
#include "platform/foundation/numbers.h"
#include "platform/foundation/units.h"
#include "platform/maker/summary_rules.h"
#include "platform/printing/cups_ppd.h"

#include <QCoreApplication>
#include <QLocale>
#include <QRegularExpression>
#include <QSet>

#include <algorithm>
#include <array>
#include <cmath>
#include <utility>

namespace halvern {

namespace {

constexpr double kSamePoints = 1.5;
// PPDs count in whole points.
constexpr double kSameMillimetres = 0.2;
constexpr qsizetype kMostNamed = 2;

struct JobInWordsWords {
    Q_DECLARE_TR_FUNCTIONS(JobInWords)
};

bool isMetric()
{
    return QLocale().measurementSystem() == QLocale::MetricSystem;
}

// With the fewest decimals that still tell it.
QString number(double value, int most)
{
    const double scale = std::pow(10.0, most);
    QLocale locale;
    locale.setNumberOptions(QLocale::OmitGroupSeparator);
    return locale.toString(std::round(value * scale) / scale, 'g', QLocale::FloatingPointShortest);
}

QString millimetresText(double millimetres)
{
    const bool isWhole = std::abs(millimetres - std::round(millimetres)) < kSameMillimetres;
    return number(millimetres, isWhole ? 0 : 1);
}

// Photo sizes are half inches, and are called by the centimetres next to them.
bool isSoldInCentimetres(double points)
{
    const double halves = points / kPointsPerInch * 2.0;
    const double centimetres = points / kPointsPerMillimetre / 10.0;
    const double beside = std::abs(std::round(centimetres) - centimetres);
    const double off = beside / centimetres;
    return beside * 10.0 < kSameMillimetres ||
           (std::abs(std::round(halves) - halves) * kPointsPerInch / 2.0 < kSamePoints && off < 0.03);
}

bool isOneSided(const QString& choice)
{
    return isOffChoice(choice) || choice.compare(QLatin1StringView("simplex"), Qt::CaseInsensitive) == 0;
}

bool hasTwinWithMargins(const PpdModel& model, const ppd_size_t& size)
{
    const ppd_file_t& file = *model.file();
    return std::any_of(file.sizes, file.sizes + file.num_sizes, [&](const ppd_size_t& other) {
        return std::abs(other.width - size.width) < kSamePoints &&
               std::abs(other.length - size.length) < kSamePoints && other.left > 0.0F;
    });
}

/// Collects the parts of one job, and the keys that they have told.
class Telling {
public:
    explicit Telling(const JobToTell& job)
        : job_(job), values_([&job](const QString& key) { return job.options.value(key); })
    {
    }

    JobInWords words;

    void tell()
    {
        tellPaper();
        tellQuality();
        tellPages();
        tellExtras();
        tellOthers();
        if (!job_.isOnPaper)
            words.problem =
                JobInWordsWords::tr("not enough paper for %1").arg(pageInWords(job_.model, value(kPageSize)));
    }

private:
    QString value(const QString& key) const { return job_.options.value(key); }

    QString take(const char* name)
    {
        const QString key = QLatin1StringView(name);
        told_.insert(key);
        return value(key);
    }

    QString takeText(const char* name)
    {
        take(name);
        return text(QLatin1StringView(name));
    }

    QString text(const QString& key) const
    {
        return inUsersNumbers(job_.model.choiceText(key, valueInModel(job_.model, key, value(key))));
    }

    bool isDefault(const char* name) const
    {
        const QString key = QLatin1StringView(name);
        return value(key) == job_.byDefault.value(key);
    }

    void add(const QString& part)
    {
        if (!part.isEmpty())
            words.parts.append(part);
    }

    void tellPaper()
    {
        add(pageInWords(job_.model, take("PageSize")));
        const maker::Feed feed = maker::feedOf(values_);
        take("PaperFeed");
        const QString sheet = takeText("PaperName");
        const QString width = rollWidth();
        const QString surface = maker::surfaceWords(takeText("PaperSurface"));
        if (feed == maker::Feed::roll)
            add(surface.isEmpty() ? JobInWordsWords::tr("roll %1").arg(width)
                                  : JobInWordsWords::tr("%1 roll %2").arg(surface, width));
        else if (feed == maker::Feed::sheet && !sheet.isEmpty())
            add(JobInWordsWords::tr("sheet: %1").arg(sheet));
        add(takeText("MediaType"));
        if (!isDefault("InputSlot"))
            add(takeText("InputSlot"));
    }

    QString rollWidth()
    {
        const double millimetres = leadingInteger(take("PaperWidth")) / 10.0;
        return isMetric() ? JobInWordsWords::tr("%1 mm").arg(number(millimetres, 0))
                          : JobInWordsWords::tr("%1 in").arg(number(millimetres / kMillimetresPerInch, 1));
    }

    void tellQuality()
    {
        const QString resolution = takeText("Resolution");
        const bool hasDots =
            std::any_of(resolution.cbegin(), resolution.cend(), [](QChar c) { return c.isDigit(); });
        if (hasDots)
            add(resolution);
        else if (!isDefault("Resolution"))
            add(JobInWordsWords::tr("%1: %2").arg(job_.model.optionText(QStringLiteral("Resolution")),
                                                  resolution));
        if (!isDefault("ColorModel"))
            add(takeText("ColorModel"));
        tellSides("TwoSided");
        for (const char* key : kDuplexKeywords)
            tellSides(key);
    }

    void tellSides(const char* key)
    {
        if (!isOneSided(take(key)))
            add(JobInWordsWords::tr("two-sided: %1").arg(takeText(key)));
    }

    void tellPages()
    {
        take("page-ranges");
        const int chosen = int(job_.chosen.size());
        if (chosen < job_.pages)
            add(JobInWordsWords::tr("pages %1 of %2").arg(rangesOf(job_.chosen), number(job_.pages, 0)));
        else if (chosen > 1)
            add((job_.layout.isEmpty() ? JobInWordsWords::tr("%1 pages") : JobInWordsWords::tr("%1 photos"))
                    .arg(number(chosen, 0)));
        add(job_.layout);
        if (job_.isReversed && chosen > 1)
            add(JobInWordsWords::tr("last page first"));
        const int copies = take("copies").toInt();
        add(copies == 1 ? JobInWordsWords::tr("1 copy")
                        : JobInWordsWords::tr("%1 copies").arg(number(copies, 0)));
        if (copies > 1 && chosen > 1 && take("Collate") == QLatin1StringView("False"))
            add(JobInWordsWords::tr("not collated"));
    }

    void tellExtras()
    {
        if (maker::printsOnBack(values_))
            add(JobInWordsWords::tr("text on the back"));
        for (const char* key : {"CVP1", "CVP2", "EnableCVP1", "EnableCVP2"})
            take(key);
        const QString sheets = take("job-sheets");
        if (!sheets.isEmpty() && !sheets.startsWith(QLatin1StringView("none"), Qt::CaseInsensitive))
            add(JobInWordsWords::tr("with a banner page"));
        const QString until = take("job-hold-until");
        if (!until.isEmpty() && until != QLatin1StringView("no-hold"))
            add(JobInWordsWords::tr("held on the queue"));
    }

    // One or two are told by name.
    void tellOthers()
    {
        QStringList others = job_.options.differingFrom(job_.byDefault);
        others.removeIf([this](const QString& key) {
            const bool isKnown = job_.byDefault.contains(key) || job_.model.choiceCount(key) > 0;
            return !isKnown || told_.contains(key) || maker::saysNothing(key, values_) ||
                   valueInModel(job_.model, key, value(key)) == job_.byDefault.value(key);
        });
        if (others.size() > kMostNamed) {
            add(JobInWordsWords::tr("%1 more settings changed").arg(number(double(others.size()), 0)));
            return;
        }
        for (const QString& key : std::as_const(others))
            add(JobInWordsWords::tr("%1: %2").arg(job_.model.optionText(key), text(key)));
    }

    const JobToTell& job_;
    const maker::Values values_;
    QSet<QString> told_;
};

} // namespace

QString valueInModel(const PpdModel& model, const QString& key, const QString& sent)
{
    return sent == model.jobValue(key) ? model.value(key) : sent;
}

QString sizeInWords(const QSizeF& points)
{
    const QString pattern = JobInWordsWords::tr("%1 × %2");
    if (!isMetric())
        return JobInWordsWords::tr("%1 in").arg(pattern.arg(number(points.width() / kPointsPerInch, 2),
                                                            number(points.height() / kPointsPerInch, 2)));
    const QSizeF millimetres = points / kPointsPerMillimetre;
    if (isSoldInCentimetres(points.width()) && isSoldInCentimetres(points.height()))
        return JobInWordsWords::tr("%1 cm").arg(
            pattern.arg(number(millimetres.width() / 10.0, 0), number(millimetres.height() / 10.0, 0)));
    return JobInWordsWords::tr("%1 mm").arg(
        pattern.arg(millimetresText(millimetres.width()), millimetresText(millimetres.height())));
}

QString pageInWords(const PpdModel& model, const QString& choice)
{
    static const QRegularExpression kMeasure(QStringLiteral("\\d\\s*(mm|cm|in|\")?\\s*[x×]\\s*\\d"),
                                             QRegularExpression::CaseInsensitiveOption);
    const bool isCustom = choice.startsWith(QLatin1StringView("Custom."));
    const QString name = model.choiceText(kPageSize, choice).section(QLatin1Char('('), 0, 0).trimmed();
    if (!isCustom && !name.isEmpty() && !kMeasure.match(name).hasMatch())
        return name;
    const ppd_size_t* size = ppdPageSize(model.file(), choice.toUtf8().constData());
    if (!size || size->width <= 0.0F || size->length <= 0.0F)
        return inUsersNumbers(name.isEmpty() ? choice : name);
    const QString words = sizeInWords(QSizeF(double(size->width), double(size->length)));
    const bool isBorderless = size->left <= 0.0F && size->bottom <= 0.0F && !isCustom;
    return isBorderless && hasTwinWithMargins(model, *size) ? JobInWordsWords::tr("%1 borderless").arg(words)
                                                            : words;
}

JobInWords jobInWords(const JobToTell& job)
{
    Telling telling(job);
    telling.tell();
    return telling.words;
}

} // namespace halvern
