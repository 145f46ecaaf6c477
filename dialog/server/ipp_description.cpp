// SPDX-License-Identifier: MIT
#include "dialog/server/ipp_description.h"

#include "dialog/options/ipp_twins.h"
#include "dialog/server/ipp_papers.h"
#include "dialog/server/ipp_words.h"
#include "platform/foundation/units.h"
#include "platform/printing/cups_ppd.h"

#include <QCryptographicHash>
#include <QList>
#include <QRegularExpression>

#include <algorithm>
#include <functional>

namespace halvern {

namespace {

constexpr qsizetype kMostChoices = 200;
constexpr int kMostConstraints = 500;
constexpr qsizetype kLongestKeyword = 40;
constexpr qsizetype kLongestPpdText = 78; // bytes, as libcups cuts it
constexpr qsizetype kLongestValue = 120;

struct Choice {
    QString keyword; ///< in the PPD
    QString text;
    QString value = {}; ///< in a job
};

struct Option {
    QString keyword;
    QString text;
    QString attribute; ///< in a job
    QList<Choice> choices;
    QString byDefault; ///< the value that the printer takes by itself; empty: not told
};

/// An option of the printer's and the attributes that it is made of: NAME-supported and NAME-default.
struct Source {
    const char* keyword;
    const char* attribute; ///< in a job
    const char* name;
};

constexpr Source kSources[] = {
    {"InputSlot", "media-col/media-source", "media-source"},
    {"MediaType", "media-col/media-type", "media-type"},
    {"Duplex", "sides", "sides"},
    {"ColorModel", "print-color-mode", "print-color-mode"},
    {"cupsPrintQuality", "print-quality", "print-quality"},
    {"Resolution", "printer-resolution", "printer-resolution"},
    {"OutputBin", "output-bin", "output-bin"},
    {"PrintContent", "print-content-optimize", "print-content-optimize"},
    {"PrintIntent", "print-rendering-intent", "print-rendering-intent"},
};

bool isKeyword(const QString& text)
{
    static const QRegularExpression kKeyword(QStringLiteral("^[A-Za-z0-9][A-Za-z0-9._+-]*$"));
    return text.size() <= kLongestKeyword && kKeyword.match(text).hasMatch();
}

// What can stand in a line of a PPD; a collection's text counts braces, and knows no others.
bool isSendable(const QString& value)
{
    const auto isPossible = [](QChar character) {
        return character.isPrint() && character != QLatin1Char('{') && character != QLatin1Char('}');
    };
    return !value.isEmpty() && asTwin(value).size() <= kLongestValue &&
           std::ranges::all_of(value, isPossible);
}

// What ends a text of a PPD, or a line, or is no character to be seen, is none of its characters.
QByteArray cleaned(const QString& text)
{
    QString plain;
    for (const QChar character : text) {
        const bool isOfThePpd = QStringLiteral("\"/:<>*").contains(character);
        plain += character.isPrint() && !isOfThePpd ? character : QLatin1Char(' ');
    }
    plain = plain.simplified();
    while (plain.toUtf8().size() > kLongestPpdText)
        plain.chop(plain.back().isLowSurrogate() ? 2 : 1);
    return plain.toUtf8();
}

// The PPD's words for what the dialog looks at by name; others keep their own. A name that somebody gave, "My
// canvas, 340 g", gets one of ours, which presets find again whatever else the printer lists.
QString ppdKeyword(const char* option, const QString& value)
{
    static const struct {
        const char* option;
        const char* value;
        const char* keyword;
    } rows[] = {
        {"Duplex", "one-sided", "None"},
        {"Duplex", "two-sided-long-edge", "DuplexNoTumble"},
        {"Duplex", "two-sided-short-edge", "DuplexTumble"},
        {"ColorModel", "color", "RGB"},
        {"ColorModel", "monochrome", "Gray"},
        {"cupsPrintQuality", "3", "Draft"},
        {"cupsPrintQuality", "4", "Normal"},
        {"cupsPrintQuality", "5", "High"},
    };

    for (const auto& row : rows) {
        if (qstrcmp(row.option, option) == 0 && value == QLatin1StringView(row.value))
            return QLatin1StringView(row.keyword);
    }
    if (isKeyword(value))
        return value;
    const QByteArray hash = QCryptographicHash::hash(value.toUtf8(), QCryptographicHash::Sha1);
    return QLatin1StringView(kOwnName) + QString::fromLatin1(hash.left(4).toHex());
}

QString valueAt(ipp_attribute_t* attribute, int place)
{
    switch (ippGetValueTag(attribute)) {
    case IPP_TAG_KEYWORD:
    case IPP_TAG_NAME:
    case IPP_TAG_NAMELANG:
        return QString::fromUtf8(ippGetString(attribute, place, nullptr));
    case IPP_TAG_ENUM:
        return QString::number(ippGetInteger(attribute, place));
    case IPP_TAG_RESOLUTION: {
        int down = 0;
        ipp_res_t unit = IPP_RES_PER_INCH;
        const int across = ippGetResolution(attribute, place, &down, &unit);
        const auto isPossible = [](int dots) { return dots >= 1 && dots <= kMostResolution; };
        if (unit != IPP_RES_PER_INCH || !isPossible(across) || !isPossible(down))
            return {};
        return across == down ? QStringLiteral("%1dpi").arg(across)
                              : QStringLiteral("%1x%2dpi").arg(across).arg(down);
    }
    default:
        return {};
    }
}

Option readOption(ipp_t* attributes, const Source& source)
{
    Option option{QLatin1StringView(source.keyword), {}, QLatin1StringView(source.attribute), {}, {}};
    const QByteArray name(source.name);
    ipp_attribute_t* supported =
        ippFindAttribute(attributes, (name + "-supported").constData(), IPP_TAG_ZERO);
    ipp_attribute_t* byDefault = ippFindAttribute(attributes, (name + "-default").constData(), IPP_TAG_ZERO);
    for (int i = 0; i < ippGetCount(supported) && option.choices.size() < kMostChoices; ++i) {
        const QString value = valueAt(supported, i);
        const QString keyword = ppdKeyword(source.keyword, value);
        const bool isThere = std::ranges::any_of(option.choices, [&](const Choice& choice) {
            return choice.keyword.compare(keyword, Qt::CaseInsensitive) == 0;
        });
        if (isSendable(value) && !isThere)
            option.choices.append({keyword, ippWords(QLatin1StringView(source.name), value), value});
    }
    option.text = ippOptionWords(QLatin1StringView(source.name));
    option.byDefault = byDefault ? valueAt(byDefault, 0) : QString();
    return option;
}

const Choice* choiceOf(const Option& option, const QString& value)
{
    const auto found = std::ranges::find(option.choices, value, &Choice::value);
    return found == option.choices.end() ? nullptr : &*found;
}

// The members of media-col have no default of their own; without one of "sides" the dialog's jobs say this.
void takeOtherDefaults(ipp_t* attributes, QList<Option>& options)
{
    ipp_attribute_t* found = ippFindAttribute(attributes, "media-col-default", IPP_TAG_BEGIN_COLLECTION);
    ipp_t* media = found ? ippGetCollection(found, 0) : nullptr;
    for (Option& option : options) {
        const QString member = option.attribute.section(QLatin1Char('/'), 1);
        ipp_attribute_t* value = media && !member.isEmpty()
                                     ? ippFindAttribute(media, member.toUtf8().constData(), IPP_TAG_ZERO)
                                     : nullptr;
        if (value)
            option.byDefault = valueAt(value, 0);
        if (option.attribute == QLatin1StringView("sides") && !choiceOf(option, option.byDefault))
            option.byDefault = QStringLiteral("one-sided");
    }
}

class PpdText {
public:
    void line(const QByteArray& text) { text_ += text + '\n'; }

    void attribute(const char* keyword, const QString& value)
    {
        line("*" + QByteArray(keyword) + ": \"" + cleaned(value) + "\"");
    }

    void option(const Option& option)
    {
        if (option.choices.size() < 2)
            return;
        const QByteArray keyword = option.keyword.toUtf8();
        open(option);
        // Without one the option stays out of the job, and the printer does as it is set.
        if (const Choice* byDefault = choiceOf(option, option.byDefault))
            line("*Default" + keyword + ": " + byDefault->keyword.toUtf8());
        for (const Choice& choice : option.choices)
            line("*" + keyword + " " + choice.keyword.toUtf8() + "/" + cleaned(choice.text) + ": \"\"");
        line("*CloseUI: *" + keyword);
        twins(option);
    }

    void open(const Option& option)
    {
        line("*OpenUI *" + option.keyword.toUtf8() + "/" + cleaned(option.text) + ": PickOne");
        line("*OrderDependency: 10 AnySetup *" + option.keyword.toUtf8());
    }

    void twins(const Option& option)
    {
        const QByteArray keyword = option.keyword.toUtf8();
        line("*" + QByteArray(kIppAttribute) + " " + keyword + ": \"" + option.attribute.toUtf8() + "\"");
        for (const Choice& choice : option.choices) {
            const QString name = option.keyword + QLatin1Char('.') + choice.keyword;
            if (choice.value == choice.keyword || name.size() > kLongestKeyword)
                continue;
            line("*" + QByteArray(kIppValue) + " " + keyword + "." + choice.keyword.toUtf8() + ": \"" +
                 asTwin(choice.value) + "\"");
        }
    }

    const QByteArray& text() const { return text_; }

private:
    QByteArray text_;
};

// Nothing where the printer does not say it.
std::optional<bool> printsColours(ipp_t* attributes, const Option& modes)
{
    const auto isGray = [](const Choice& mode) {
        return mode.value.contains(QLatin1StringView("monochrome")) ||
               mode.value.contains(QLatin1StringView("bi-level"));
    };
    ipp_attribute_t* told = ippFindAttribute(attributes, "color-supported", IPP_TAG_BOOLEAN);
    if (told)
        return ippGetBoolean(told, 0) != 0;
    if (choiceOf(modes, QStringLiteral("color")))
        return true;
    if (!modes.choices.isEmpty() && std::ranges::all_of(modes.choices, isGray))
        return false;
    return std::nullopt;
}

void writeHead(PpdText& ppd, ipp_t* attributes, std::optional<bool> isColour)
{
    ipp_attribute_t* found = ippFindAttribute(attributes, "printer-make-and-model", IPP_TAG_TEXT);
    const QString model = found ? QString::fromUtf8(ippGetString(found, 0, nullptr)) : QString();
    const QString name = cleaned(model).isEmpty() ? QStringLiteral("Printer") : model;
    ppd.line("*PPD-Adobe: \"4.3\"");
    ppd.line("*FormatVersion: \"4.3\"");
    ppd.line("*FileVersion: \"1.0\"");
    ppd.line("*LanguageVersion: English");
    ppd.line("*LanguageEncoding: UTF-8");
    ppd.line("*PCFileName: \"IPP.PPD\"");
    ppd.attribute("Manufacturer", name.section(QLatin1Char(' '), 0, 0));
    ppd.attribute("ModelName", name);
    ppd.attribute("ShortNickName", name.left(31));
    ppd.attribute("NickName", name);
    ppd.line("*Product: \"(" + cleaned(name).replace('(', ' ').replace(')', ' ') + ")\"");
    ppd.line("*PSVersion: \"(3010.000) 0\"");
    ppd.line("*LanguageLevel: \"3\"");
    if (isColour)
        ppd.line(*isColour ? "*ColorDevice: True" : "*ColorDevice: False");
    ppd.line("*DefaultColorSpace: RGB");
    ppd.line("*FileSystem: False");
}

void writePapers(PpdText& ppd, const IppPapers& papers)
{
    const auto points = [](int hundredths) { return QByteArray::number(hundredths * 72.0 / 2540.0, 'f', 2); };
    Option size{QStringLiteral("PageSize"),
                ippOptionWords(QStringLiteral("media")),
                QStringLiteral("media-col/media-size"),
                {},
                {}};
    for (const IppPaper& paper : papers.papers)
        size.choices.append({paper.keyword, paper.text, {}});
    for (const char* keyword : {"PageSize", "PageRegion"}) {
        size.keyword = QLatin1StringView(keyword);
        ppd.open(size);
        ppd.line("*Default" + QByteArray(keyword) + ": " + papers.defaultKeyword.toUtf8());
        for (const IppPaper& paper : papers.papers)
            ppd.line("*" + QByteArray(keyword) + " " + paper.keyword.toUtf8() + "/" + cleaned(paper.text) +
                     ": \"<</PageSize[" + points(paper.width) + " " + points(paper.length) +
                     "]>>setpagedevice\"");
        ppd.line("*CloseUI: *" + QByteArray(keyword));
    }
    ppd.line("*DefaultImageableArea: " + papers.defaultKeyword.toUtf8());
    ppd.line("*DefaultPaperDimension: " + papers.defaultKeyword.toUtf8());
    for (const IppPaper& paper : papers.papers) {
        const QByteArray name = paper.keyword.toUtf8() + "/" + cleaned(paper.text);
        ppd.line("*ImageableArea " + name + ": \"" + points(paper.left) + " " + points(paper.bottom) + " " +
                 points(paper.width - paper.right) + " " + points(paper.length - paper.top) + "\"");
        ppd.line("*PaperDimension " + name + ": \"" + points(paper.width) + " " + points(paper.length) +
                 "\"");
    }
    ppd.line("*" + QByteArray(kIppAttribute) + " PageSize: \"media-col/media-size\"");
    for (const IppPaper& paper : papers.papers)
        ppd.line("*" + QByteArray(kIppValue) + " PageSize." + paper.keyword.toUtf8() + ": \"" +
                 mediaSizeValue(paper) + "\"");
    if (!papers.hasCustom)
        return;
    ppd.line("*HWMargins: " + points(papers.left) + " " + points(papers.bottom) + " " + points(papers.right) +
             " " + points(papers.top));
    ppd.line("*ParamCustomPageSize Width: 1 points " + points(papers.leastWidth) + " " +
             points(papers.mostWidth));
    ppd.line("*ParamCustomPageSize Height: 2 points " + points(papers.leastLength) + " " +
             points(papers.mostLength));
    for (const char* other :
         {"WidthOffset: 3 points 0 0", "HeightOffset: 4 points 0 0", "Orientation: 5 int 0 3"})
        ppd.line("*ParamCustomPageSize " + QByteArray(other));
    ppd.line("*MaxMediaWidth: \"" + points(papers.mostWidth) + "\"");
    ppd.line("*MaxMediaHeight: \"" + points(papers.mostLength) + "\"");
    ppd.line("*CustomPageSize True: \"pop pop pop <</PageSize[5 -2 roll]/ImagingBBox null>>setpagedevice\"");
}

/// What a member of a constraint names, as "*OPTION CHOICE", each for itself; empty if the dialog has no such
/// option.
using Sides = QList<QByteArray>;

Sides sidesOf(ipp_attribute_t* member, const QList<Option>& options)
{
    Sides sides;
    const QString name = QString::fromUtf8(ippGetName(member));
    for (const Option& option : options) {
        if (option.attribute.section(QLatin1Char('/'), -1) != name)
            continue;
        for (int i = 0; i < ippGetCount(member); ++i) {
            if (const Choice* choice = choiceOf(option, valueAt(member, i)))
                sides.append("*" + option.keyword.toUtf8() + " " + choice->keyword.toUtf8());
        }
    }
    return sides;
}

bool isAboutPaper(const QByteArray& member)
{
    return member == "media-size" || (member.startsWith("media-") && member.endsWith("-margin"));
}

bool isMeant(const IppPaper& paper, ipp_t* media)
{
    const struct {
        const char* name;
        int margin;
    } margins[] = {{"media-left-margin", paper.left},
                   {"media-right-margin", paper.right},
                   {"media-top-margin", paper.top},
                   {"media-bottom-margin", paper.bottom}};

    for (const auto& [name, margin] : margins) {
        ipp_attribute_t* wanted = ippFindAttribute(media, name, IPP_TAG_INTEGER);
        if (wanted && !ippContainsInteger(wanted, margin))
            return false;
    }
    ipp_attribute_t* sizes = ippFindAttribute(media, "media-size", IPP_TAG_BEGIN_COLLECTION);
    bool isAnySize = !sizes;
    for (int i = 0; i < ippGetCount(sizes) && !isAnySize; ++i)
        isAnySize = isOfSize(paper, ippGetCollection(sizes, i));
    return isAnySize;
}

Sides sidesOfPapers(const IppPapers& papers, const std::function<bool(const IppPaper&)>& isWanted)
{
    Sides sides;
    for (const IppPaper& paper : papers.papers) {
        if (isWanted(paper))
            sides.append("*PageSize " + paper.keyword.toUtf8());
    }
    return sides;
}

// One of the values of media-col: its size and its margins together are a paper.
QList<Sides> sidesOfMedia(ipp_t* media, const QList<Option>& options, const IppPapers& papers)
{
    QList<Sides> all;
    bool isPaper = false;
    for (ipp_attribute_t* a = ippFirstAttribute(media); a; a = ippNextAttribute(media)) {
        if (isAboutPaper(ippGetName(a)))
            isPaper = true;
        else
            all.append(sidesOf(a, options));
    }
    if (isPaper)
        all.append(sidesOfPapers(papers, [media](const IppPaper& paper) { return isMeant(paper, media); }));
    return all;
}

Sides sidesOfMediaNames(ipp_attribute_t* names, const IppPapers& papers)
{
    Sides sides;
    for (int i = 0; i < ippGetCount(names); ++i) {
        const char* name = ippGetString(names, i, nullptr);
        if (const pwg_media_t* size = name ? pwgMediaForPWG(name) : nullptr)
            sides += sidesOfPapers(papers, [size](const IppPaper& paper) {
                return paper.width == size->width && paper.length == size->length;
            });
    }
    return sides;
}

// What goes together with nothing of the other: combinations of more than two are left to the printer.
bool writeClash(PpdText& ppd, const QList<Sides>& members, int& written)
{
    if (members.size() != 2)
        return true;
    for (const QByteArray& one : members[0]) {
        for (const QByteArray& other : members[1]) {
            if (++written > kMostConstraints)
                return false;
            ppd.line("*UIConstraints: " + one + " " + other);
            ppd.line("*UIConstraints: " + other + " " + one);
        }
    }
    return true;
}

void writeConstraints(PpdText& ppd, ipp_t* attributes, const QList<Option>& options, const IppPapers& papers)
{
    ipp_attribute_t* found =
        ippFindAttribute(attributes, "job-constraints-supported", IPP_TAG_BEGIN_COLLECTION);
    int written = 0;
    for (int i = 0; i < ippGetCount(found); ++i) {
        QList<Sides> members;
        ipp_attribute_t* media = nullptr;
        ipp_t* constraint = ippGetCollection(found, i);
        for (ipp_attribute_t* a = ippFirstAttribute(constraint); a; a = ippNextAttribute(constraint)) {
            const QByteArray name(ippGetName(a));
            if (name == "media-col" && ippGetValueTag(a) == IPP_TAG_BEGIN_COLLECTION)
                media = a;
            else if (name == "media")
                members.append(sidesOfMediaNames(a, papers));
            else if (name != "resolver-name")
                members.append(sidesOf(a, options));
        }
        // Each of its values is meant.
        for (int m = 0; m < std::max(ippGetCount(media), 1); ++m) {
            const QList<Sides> ofMedia =
                media ? sidesOfMedia(ippGetCollection(media, m), options, papers) : QList<Sides>();
            if (!writeClash(ppd, members + ofMedia, written))
                return;
        }
    }
}

} // namespace

bool isDescribed(_ipp_s* attributes)
{
    ipp_attribute_t* formats = ippFindAttribute(attributes, "document-format-supported", IPP_TAG_MIMETYPE);
    const bool readsPdf = formats && ippContainsString(formats, "application/pdf");
    return readsPdf && (ippFindAttribute(attributes, "media-col-database", IPP_TAG_BEGIN_COLLECTION) ||
                        ippFindAttribute(attributes, "media-size-supported", IPP_TAG_BEGIN_COLLECTION));
}

std::optional<QByteArray> describedAsPpd(_ipp_s* attributes, bool isHandedOn)
{
    const IppPapers papers = readIppPapers(attributes);
    if (papers.papers.isEmpty())
        return std::nullopt;
    QList<Option> options;
    for (const Source& source : kSources)
        options.append(readOption(attributes, source));
    takeOtherDefaults(attributes, options);
    const auto colours = std::ranges::find(options, QStringLiteral("ColorModel"), &Option::keyword);
    PpdText ppd;
    writeHead(ppd, attributes, printsColours(attributes, *colours));
    if (isHandedOn)
        ppd.line("*" + QByteArray(kIppHandsOn) + ": True");
    writePapers(ppd, papers);
    for (const Option& option : options)
        ppd.option(option);
    writeConstraints(ppd, attributes, options, papers);
    return ppd.text();
}

} // namespace halvern
