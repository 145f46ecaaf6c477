// SPDX-License-Identifier: MIT
#include "portal/application_settings.h"

#include "platform/foundation/units.h"

#include <array>

namespace halvern {

namespace {

constexpr qsizetype kMostTexts = 20000;
constexpr qsizetype kLongestSetting = 16384;
constexpr qsizetype kLongestRanges = 2000;
constexpr qsizetype kLongestWord = 255;
constexpr double kLeastPaper = 10.0; // millimetres
constexpr double kMostPaper = 20000.0;
const QString kOptionPrefix = QStringLiteral("cups-");

bool isOneOf(const QString& text, std::initializer_list<const char*> words)
{
    return std::any_of(words.begin(), words.end(),
                       [&](const char* word) { return text == QLatin1StringView(word); });
}

bool isTruth(const QString& text)
{
    return isOneOf(text, {"true", "false"});
}

// The front end's papers say "reverse_portrait", the toolkits also "reverse-portrait".
bool isTurn(const QString& text)
{
    return isOneOf(text, {"portrait", "landscape", "reverse_portrait", "reverse-portrait",
                          "reverse_landscape", "reverse-landscape"});
}

bool isLandscape(const QString& turn)
{
    return turn.endsWith(QLatin1StringView("landscape"));
}

bool isWithin(const QString& text, double least, double most)
{
    bool isNumber = false;
    const double number = text.toDouble(&isNumber);
    return isNumber && number >= least && number <= most;
}

// "0-2,4" counts from 0; people count from 1.
std::optional<QString> peoplesRanges(const QString& text)
{
    QStringList ranges;
    if (text.size() > kLongestRanges)
        return std::nullopt;
    for (const QString& part : text.split(QLatin1Char(','), Qt::SkipEmptyParts)) {
        bool hasFirst = false;
        bool hasLast = false;
        const int first = part.section(QLatin1Char('-'), 0, 0).toInt(&hasFirst);
        const int last =
            part.contains(QLatin1Char('-')) ? part.section(QLatin1Char('-'), 1).toInt(&hasLast) : first;
        if (!hasFirst || (part.contains(QLatin1Char('-')) && !hasLast) || first < 0 || last < first ||
            last >= std::numeric_limits<int>::max())
            return std::nullopt;
        ranges.append(first == last ? QString::number(first + 1)
                                    : QStringLiteral("%1-%2").arg(first + 1).arg(last + 1));
    }
    return ranges.join(QStringLiteral(", "));
}

QString applicationsRanges(const QString& ranges)
{
    // Where nobody knows the last page, an application takes as many as it has.
    constexpr int kEndless = 100000;
    QStringList texts;
    for (const PageRange& range : rangesIn(ranges))
        texts.append(QStringLiteral("%1-%2").arg(range.first - 1).arg(range.last.value_or(kEndless) - 1));
    return texts.join(QLatin1Char(','));
}

struct ParityWord {
    PageParity parity;
    const char* printPages;
    const char* pageSet;
};

constexpr std::array kParities{
    ParityWord{PageParity::all, "all", "all"}, ParityWord{PageParity::odd, "all", "odd"},
    ParityWord{PageParity::even, "all", "even"}, ParityWord{PageParity::current, "current", "all"},
    ParityWord{PageParity::selection, "selection", "all"}};

// The toolkits' words beside those of IPP's that mean the same.
struct TwinWord {
    const char* key;
    const char* toolkits;
    const char* attribute;
    const char* word;
};

// Of several for the same the first goes back.
constexpr std::array kTwins{
    TwinWord{"use-color", "true", "print-color-mode", "color"},
    TwinWord{"use-color", "false", "print-color-mode", "monochrome"},
    TwinWord{"quality", "draft", "print-quality", "draft"},
    TwinWord{"quality", "low", "print-quality", "draft"},
    TwinWord{"quality", "normal", "print-quality", "normal"},
    TwinWord{"quality", "high", "print-quality", "high"},
    TwinWord{"default-source", "default", "media-source", "auto"},
};

struct DuplexWord {
    const char* duplex;
    const char* sides;
};

constexpr std::array kDuplex{DuplexWord{"simplex", "one-sided"},
                             DuplexWord{"horizontal", "two-sided-long-edge"},
                             DuplexWord{"vertical", "two-sided-short-edge"}};

// In the word that came in, as long as it still says the same.
QString turnWord(const QString& before, bool isTurned)
{
    if (!before.isEmpty() && isLandscape(before) == isTurned)
        return before;
    return isTurned ? QStringLiteral("landscape") : QStringLiteral("portrait");
}

// The word that goes back; the one that came in, as long as it still says the same.
QString toolkitsWord(const QString& before, const char* key, const QString& word)
{
    QString first;
    for (const TwinWord& row : kTwins) {
        if (QByteArrayView(row.key) != key || word != QLatin1StringView(row.word))
            continue;
        if (before == QLatin1StringView(row.toolkits))
            return before;
        if (first.isEmpty())
            first = QLatin1StringView(row.toolkits);
    }
    return first.isEmpty() ? word : first;
}

double millimetres(double points)
{
    return points / kPointsPerMillimetre;
}

} // namespace

ApplicationSettings::ApplicationSettings(const QVariantMap& settings, const QVariantMap& pageSetup)
{
    takeTexts(settings);
    checkTexts();
    takePageSetup(pageSetup);
}

void ApplicationSettings::takeTexts(const QVariantMap& settings)
{
    for (auto it = settings.cbegin(); it != settings.cend(); ++it) {
        const bool isText = it.value().typeId() == QMetaType::QString && !it.key().isEmpty() &&
                            it.key().size() <= kLongestSetting &&
                            it.value().toString().size() <= kLongestSetting;
        if (isText && texts_.size() < kMostTexts)
            texts_.insert(it.key(), it.value().toString());
        else
            refused_.append(it.key());
    }
}

void ApplicationSettings::check(const char* key, const std::function<bool(const QString&)>& isRight)
{
    const QString name = QLatin1StringView(key);
    if (!texts_.contains(name) || isRight(texts_.value(name)))
        return;
    texts_.remove(name);
    refused_.append(name);
}

void ApplicationSettings::checkTexts()
{
    for (const char* key : {"collate", "reverse", "use-color"})
        check(key, isTruth);
    for (const char* key : {"paper-width", "paper-height"})
        check(key, [](const QString& text) { return isWithin(text, kLeastPaper, kMostPaper); });
    check("n-copies", [](const QString& text) {
        bool isNumber = false;
        const int copies = text.toInt(&isNumber);
        return isNumber && copies >= 1 && copies <= kMostCopies;
    });
    check("scale", [](const QString& text) { return isWithin(text, 10.0, 1000.0); });
    check("orientation", isTurn);
    check("duplex", [](const QString& text) { return isOneOf(text, {"simplex", "horizontal", "vertical"}); });
    check("quality", [](const QString& text) { return isOneOf(text, {"low", "normal", "high", "draft"}); });
    check("print-pages", [](const QString& text) {
        return isOneOf(text, {"all", "current", "ranges", "selection"});
    });
    check("page-set", [](const QString& text) { return isOneOf(text, {"all", "odd", "even"}); });
    for (const char* key : {"media-type", "default-source"})
        check(key, [](const QString& text) { return text.size() <= kLongestWord; });
    check("page-ranges", [](const QString& text) { return peoplesRanges(text).has_value(); });
}

void ApplicationSettings::takePageSetup(const QVariantMap& pageSetup)
{
    const auto number = [&](const char* key) {
        const QVariant value = pageSetup.value(QLatin1StringView(key));
        const double length = value.typeId() == QMetaType::Double ? value.toDouble() : 0.0;
        const bool isRight = length >= kLeastPaper && length <= kMostPaper;
        if (value.isValid() && !isRight)
            refused_.append(QLatin1StringView(key));
        return isRight ? length : 0.0;
    };
    const auto word = [&](const char* key, const std::function<bool(const QString&)>& isRight) {
        const QVariant value = pageSetup.value(QLatin1StringView(key));
        const bool isText = value.typeId() == QMetaType::QString && isRight(value.toString());
        if (value.isValid() && !isText)
            refused_.append(QLatin1StringView(key));
        return isText ? value.toString() : QString();
    };
    paper_ = {number("Width"), number("Height")};
    const auto isName = [](const QString& text) { return text.size() <= kLongestSetting; };
    const QString ppdName = word("PPDName", isName);
    const QString name = word("Name", isName);
    paperName_ = ppdName.isEmpty() ? name : ppdName;
    pageTurn_ = word("Orientation", isTurn);
    takeMargins(pageSetup);
}

// All four of them, or none: half of a page's margins are nobody's.
void ApplicationSettings::takeMargins(const QVariantMap& pageSetup)
{
    const bool isTurned = isLandscape(pageTurn_);
    const QSizeF page = isTurned ? paper_.transposed() : paper_;
    bool isWhole = !paper_.isEmpty();
    const auto margin = [&](const char* key, double longest) {
        const QVariant value = pageSetup.value(QLatin1StringView(key));
        const double length = value.typeId() == QMetaType::Double ? value.toDouble() : -1.0;
        const bool isRight = length >= 0.0 && length < longest;
        if (value.isValid() && !isRight && !paper_.isEmpty())
            refused_.append(QLatin1StringView(key));
        isWhole = isWhole && isRight;
        return length * kPointsPerMillimetre;
    };
    const QMarginsF margins(
        margin("MarginLeft", page.width() / 2.0), margin("MarginTop", page.height() / 2.0),
        margin("MarginRight", page.width() / 2.0), margin("MarginBottom", page.height() / 2.0));
    if (isWhole)
        margins_ = margins;
}

void ApplicationSettings::applyMargins(BlindDocument& document) const
{
    document.paper = paper();
    document.margins = margins_;
}

// Upright, in points; empty if nobody says.
QSizeF ApplicationSettings::paper() const
{
    if (!paper_.isEmpty())
        return paper_ * kPointsPerMillimetre;
    const QSizeF ofSettings(text("paper-width").toDouble(), text("paper-height").toDouble());
    return ofSettings.isEmpty() ? QSizeF() : ofSettings * kPointsPerMillimetre;
}

void ApplicationSettings::applyTo(SessionRequest& request, const QString& giver) const
{
    request.printer = text("printer");
    request.copies = std::max(text("n-copies").toInt(), 1);
    request.namesCopies = texts_.contains(QStringLiteral("n-copies"));
    request.isCollated = text("collate") != QLatin1StringView("false");
    request.scalePercent = qRound(text("scale").isEmpty() ? 100.0 : text("scale").toDouble());
    request.turn = isLandscape(pageTurn_.isEmpty() ? text("orientation") : pageTurn_) ? PageTurn::landscape
                                                                                      : PageTurn::portrait;
    request.pages.isReversed = text("reverse") == QLatin1StringView("true");
    if (text("print-pages") == QLatin1StringView("ranges"))
        request.pages.ranges = peoplesRanges(text("page-ranges")).value_or(QString());
    for (const ParityWord& row : kParities) {
        const bool isHalf = row.parity == PageParity::odd || row.parity == PageParity::even;
        if (isHalf && text("page-set") == QLatin1StringView(row.pageSet))
            request.pages.parity = row.parity;
        if (text("print-pages") == QLatin1StringView(row.printPages) && row.parity > PageParity::even)
            request.pages.parity = row.parity;
    }
    HandedOptions handed{giver, request.printer, {}, {}, paperName_, paper()};
    for (auto it = texts_.cbegin(); it != texts_.cend(); ++it) {
        if (it.key().startsWith(kOptionPrefix))
            handed.printersOptions.append({it.key().mid(kOptionPrefix.size()), it.value()});
    }
    for (const DuplexWord& row : kDuplex) {
        if (text("duplex") == QLatin1StringView(row.duplex))
            handed.options.append({QStringLiteral("sides"), QLatin1StringView(row.sides)});
    }
    for (const TwinWord& row : kTwins) {
        if (text(row.key) == QLatin1StringView(row.toolkits))
            handed.options.append({QLatin1StringView(row.attribute), QLatin1StringView(row.word)});
    }
    // These are words of IPP's, or the printer's own.
    if (const QString type = text("media-type"); !type.isEmpty())
        handed.options.append({QStringLiteral("media-type"), type});
    if (const QString source = text("default-source");
        !source.isEmpty() && source != QLatin1StringView("default"))
        handed.options.append({QStringLiteral("media-source"), source});
    request.handed = handed;
}

QVariantMap ApplicationSettings::settingsFor(const AcceptedJob& job) const
{
    QVariantMap result;
    for (auto it = texts_.cbegin(); it != texts_.cend(); ++it) {
        if (!it.key().startsWith(kOptionPrefix))
            result.insert(it.key(), it.value());
    }
    const auto set = [&](const char* key, const QString& value) {
        result.insert(QLatin1StringView(key), value);
    };
    for (auto it = job.printersOptions.cbegin(); it != job.printersOptions.cend(); ++it)
        result.insert(kOptionPrefix + it.key(), *it);
    set("printer", job.printer);
    set("n-copies", QStringLiteral("1"));
    set("collate", QStringLiteral("false"));
    set("reverse", QStringLiteral("false"));
    set("number-up", QStringLiteral("1"));
    result.remove(QStringLiteral("number-up-layout"));
    for (const auto& [key, word, otherwise] : {std::tuple{"use-color", job.colourMode, "color"},
                                               {"quality", job.quality, "normal"},
                                               {"media-type", job.mediaType, ""},
                                               {"default-source", job.mediaSource, ""}}) {
        const QString now =
            toolkitsWord(text(key), key, word.isEmpty() ? QString(QLatin1StringView(otherwise)) : word);
        if (now.isEmpty())
            result.remove(QLatin1StringView(key));
        else
            set(key, now);
    }
    set("resolution", QString::number(job.resolution));
    set("scale", QString::number(job.scalePercent));
    set("orientation", turnWord(text("orientation"), job.sheet.turned));
    const QVariantMap page = pageSetupFor(job);
    set("paper-format", page.value(QStringLiteral("Name")).toString());
    set("paper-width", QString::number(page.value(QStringLiteral("Width")).toDouble(), 'f', 2));
    set("paper-height", QString::number(page.value(QStringLiteral("Height")).toDouble(), 'f', 2));
    for (const DuplexWord& row : kDuplex) {
        if (job.sides == QLatin1StringView(row.sides))
            set("duplex", QLatin1StringView(row.duplex));
    }
    for (const ParityWord& row : kParities) {
        if (row.parity != job.pages.parity)
            continue;
        set("print-pages", QLatin1StringView(row.printPages));
        set("page-set", QLatin1StringView(row.pageSet));
    }
    const QString ranges =
        job.pages.parity > PageParity::even ? QString() : applicationsRanges(job.pages.ranges);
    result.remove(QStringLiteral("page-ranges"));
    if (!ranges.isEmpty()) {
        set("print-pages", QStringLiteral("ranges"));
        set("page-ranges", ranges);
    }
    if (!job.fileFormat.isEmpty())
        set("output-file-format", job.fileFormat);
    return result;
}

QVariantMap ApplicationSettings::pageSetupFor(const AcceptedJob& job) const
{
    const PageLayout& sheet = job.sheet;
    const QSizeF upright = sheet.turned ? sheet.page.transposed() : sheet.page;
    const QRectF& printable = sheet.imageable;
    const QMarginsF margins = job.margins.value_or(QMarginsF(printable.left(), printable.top(),
                                                             sheet.page.width() - printable.right(),
                                                             sheet.page.height() - printable.bottom()));
    const SheetName name = sheetName(job.pageSize);
    const QString measures = QStringLiteral("%1x%2mm")
                                 .arg(millimetres(upright.width()), 0, 'f', 0)
                                 .arg(millimetres(upright.height()), 0, 'f', 0);
    QVariantMap page{
        {QStringLiteral("Name"), name.pwg.isEmpty() ? QStringLiteral("custom_") + measures : name.pwg},
        {QStringLiteral("DisplayName"), job.pageText.isEmpty() ? measures : job.pageText},
        {QStringLiteral("Width"), millimetres(upright.width())},
        {QStringLiteral("Height"), millimetres(upright.height())},
        {QStringLiteral("MarginTop"), millimetres(margins.top())},
        {QStringLiteral("MarginLeft"), millimetres(margins.left())},
        {QStringLiteral("MarginRight"), millimetres(margins.right())},
        {QStringLiteral("MarginBottom"), millimetres(margins.bottom())},
        {QStringLiteral("Orientation"), turnWord(pageTurn_, sheet.turned)}};
    if (!name.keyword.isEmpty())
        page.insert(QStringLiteral("PPDName"), name.keyword);
    return page;
}

} // namespace halvern
