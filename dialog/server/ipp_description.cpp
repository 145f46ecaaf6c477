// SPDX-License-Identifier: MIT
#include "dialog/server/ipp_description.h"

#include "dialog/options/ipp_twins.h"
#include "dialog/server/ipp_papers.h"
#include "dialog/server/ipp_words.h"
#include "platform/printing/cups_ppd.h"

#include <QList>
#include <QRegularExpression>

#include <algorithm>

namespace halvern {

namespace {

constexpr qsizetype kMostChoices = 200;
constexpr int kMostConstraints = 500;
constexpr qsizetype kLongestKeyword = 40;
constexpr qsizetype kLongestText = 78; // bytes, as libcups cuts it

struct Choice {
    QString keyword; ///< in the PPD
    QString text;
    QString value = {}; ///< in a job, where it is not the keyword
};

struct Option {
    QString keyword;
    QString text;
    QString attribute; ///< in a job
    QList<Choice> choices;
    QString defaultChoice;
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

// What ends a text of a PPD, or a line, or is no character to be seen, is none of its characters.
QByteArray cleaned(const QString& text)
{
    QString plain;
    for (const QChar character : text) {
        const bool isOfThePpd = QStringLiteral("\"/:<>*").contains(character);
        plain += character.isPrint() && !isOfThePpd ? character : QLatin1Char(' ');
    }
    plain = plain.simplified();
    while (plain.toUtf8().size() > kLongestText)
        plain.chop(plain.back().isLowSurrogate() ? 2 : 1);
    return plain.toUtf8();
}

// The PPD's words for what the dialog looks at by name; others keep their own.
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
    return value;
}

QString valueAt(ipp_attribute_t* attribute, int place)
{
    switch (ippGetValueTag(attribute)) {
    case IPP_TAG_KEYWORD:
    case IPP_TAG_NAME:
        return QString::fromUtf8(ippGetString(attribute, place, nullptr));
    case IPP_TAG_ENUM:
        return QString::number(ippGetInteger(attribute, place));
    case IPP_TAG_RESOLUTION: {
        int down = 0;
        ipp_res_t unit = IPP_RES_PER_INCH;
        const int across = ippGetResolution(attribute, place, &down, &unit);
        if (unit != IPP_RES_PER_INCH || across <= 0 || down <= 0)
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
        if (isKeyword(value) && !isThere)
            option.choices.append({keyword, ippWords(QLatin1StringView(source.name), value), value});
    }
    option.text = ippOptionWords(QLatin1StringView(source.name));
    option.defaultChoice = ppdKeyword(source.keyword, byDefault ? valueAt(byDefault, 0) : QString());
    return option;
}

// The members of media-col have no default of their own.
void takeMediaDefaults(ipp_t* attributes, QList<Option>& options)
{
    ipp_attribute_t* found = ippFindAttribute(attributes, "media-col-default", IPP_TAG_BEGIN_COLLECTION);
    ipp_t* media = found ? ippGetCollection(found, 0) : nullptr;
    for (Option& option : options) {
        const QString member = option.attribute.section(QLatin1Char('/'), 1);
        ipp_attribute_t* value = media && !member.isEmpty()
                                     ? ippFindAttribute(media, member.toUtf8().constData(), IPP_TAG_ZERO)
                                     : nullptr;
        if (value)
            option.defaultChoice = valueAt(value, 0);
    }
}

const Choice* choiceOf(const Option& option, const QString& keyword)
{
    const auto found = std::ranges::find(option.choices, keyword, &Choice::keyword);
    return found == option.choices.end() ? nullptr : &*found;
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
        const QString first =
            choiceOf(option, option.defaultChoice) ? option.defaultChoice : option.choices.front().keyword;
        open(option);
        line("*Default" + keyword + ": " + first.toUtf8());
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
            if (choice.value != choice.keyword && name.size() <= kLongestKeyword)
                line("*" + QByteArray(kIppValue) + " " + keyword + "." + choice.keyword.toUtf8() + ": \"" +
                     choice.value.toUtf8() + "\"");
        }
    }

    const QByteArray& text() const { return text_; }

private:
    QByteArray text_;
};

void writeHead(PpdText& ppd, ipp_t* attributes, bool isColour)
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
    ppd.line(isColour ? "*ColorDevice: True" : "*ColorDevice: False");
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

/// The choices that a member of a constraint names, as "*OPTION CHOICE"; empty if the dialog has no such
/// option.
QList<QByteArray> sidesOf(ipp_attribute_t* member, const QList<Option>& options)
{
    QList<QByteArray> sides;
    const QString name = QString::fromUtf8(ippGetName(member));
    for (const Option& option : options) {
        if (option.attribute.section(QLatin1Char('/'), -1) != name)
            continue;
        for (int i = 0; i < ippGetCount(member); ++i) {
            const QString keyword = ppdKeyword(option.keyword.toUtf8().constData(), valueAt(member, i));
            if (choiceOf(option, keyword))
                sides.append("*" + option.keyword.toUtf8() + " " + keyword.toUtf8());
        }
    }
    return sides;
}

// What does not go together, two by two; combinations of more are left to the printer.
void writeConstraints(PpdText& ppd, ipp_t* attributes, const QList<Option>& options)
{
    ipp_attribute_t* found =
        ippFindAttribute(attributes, "job-constraints-supported", IPP_TAG_BEGIN_COLLECTION);
    int written = 0;
    for (int i = 0; i < ippGetCount(found); ++i) {
        QList<QList<QByteArray>> members;
        ipp_t* constraint = ippGetCollection(found, i);
        bool isKnown = true;
        const auto take = [&](ipp_attribute_t* member) {
            members.append(sidesOf(member, options));
            isKnown = isKnown && !members.back().isEmpty();
        };
        for (ipp_attribute_t* a = ippFirstAttribute(constraint); a; a = ippNextAttribute(constraint)) {
            const QLatin1StringView name(ippGetName(a));
            ipp_t* inner =
                name == QLatin1StringView("media-col") && ippGetValueTag(a) == IPP_TAG_BEGIN_COLLECTION
                    ? ippGetCollection(a, 0)
                    : nullptr;
            for (ipp_attribute_t* b = inner ? ippFirstAttribute(inner) : nullptr; b;
                 b = ippNextAttribute(inner))
                take(b);
            if (!inner && name != QLatin1StringView("resolver-name"))
                take(a);
        }
        if (!isKnown || members.size() != 2)
            continue;
        for (const QByteArray& one : members[0]) {
            for (const QByteArray& other : members[1]) {
                if (++written > kMostConstraints)
                    return;
                ppd.line("*UIConstraints: " + one + " " + other);
                ppd.line("*UIConstraints: " + other + " " + one);
            }
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
    takeMediaDefaults(attributes, options);
    const auto colours = std::ranges::find(options, QStringLiteral("ColorModel"), &Option::keyword);
    PpdText ppd;
    writeHead(ppd, attributes, choiceOf(*colours, QStringLiteral("RGB")) != nullptr);
    if (isHandedOn)
        ppd.line("*" + QByteArray(kIppHandsOn) + ": True");
    writePapers(ppd, papers);
    for (const Option& option : options)
        ppd.option(option);
    writeConstraints(ppd, attributes, options);
    return ppd.text();
}

} // namespace halvern
