// SPDX-License-Identifier: MIT
#include "dialog/server/ipp_papers.h"

#include "platform/printing/cups_ppd.h"

#include <QRegularExpression>

#include <algorithm>
#include <optional>
#include <utility>

namespace halvern {

namespace {

constexpr qsizetype kMostPapers = 300;
constexpr int kMostRead = 5000;
constexpr int kLeastSide = 1000;            // 10 mm
constexpr int kMostSide = 10'000'000;       // a roll of 100 m
constexpr qsizetype kLongestPaperName = 28; // with "PageSize." before it, a name in a PPD

int integerIn(ipp_t* collection, const char* name)
{
    ipp_attribute_t* found = ippFindAttribute(collection, name, IPP_TAG_INTEGER);
    return found ? ippGetInteger(found, 0) : 0;
}

bool isSize(const IppPaper& paper)
{
    const auto fits = [](int side) { return side >= kLeastSide && side <= kMostSide; };
    return fits(paper.width) && fits(paper.length) && paper.left >= 0 && paper.right >= 0 && paper.top >= 0 &&
           paper.bottom >= 0 && paper.left + paper.right < paper.width &&
           paper.top + paper.bottom < paper.length;
}

void name(IppPaper& paper)
{
    static const QRegularExpression kKeyword(QStringLiteral("^[A-Za-z0-9][A-Za-z0-9._+-]*$"));
    const pwg_media_t* known = pwgMediaForSize(paper.width, paper.length);
    paper.keyword = known && known->ppd ? QString::fromUtf8(known->ppd) : QString();
    if (paper.keyword.size() > kLongestPaperName - 11 || !kKeyword.match(paper.keyword).hasMatch())
        paper.keyword = QStringLiteral("w%1h%2").arg(paper.width).arg(paper.length);
    paper.text = paper.keyword;
    if (paper.isBorderless())
        paper.keyword += QStringLiteral(".Borderless");
}

// Of several margins for a size, those that are usual: a printer may list narrower ones for one kind of
// paper.
void add(IppPapers& papers, IppPaper paper)
{
    if (!isSize(paper) || papers.papers.size() >= kMostPapers)
        return;
    name(paper);
    const auto found = std::ranges::find(papers.papers, paper.keyword, &IppPaper::keyword);
    if (found == papers.papers.end()) {
        papers.papers.append(paper);
        return;
    }
    found->left = std::max(found->left, paper.left);
    found->right = std::max(found->right, paper.right);
    found->top = std::max(found->top, paper.top);
    found->bottom = std::max(found->bottom, paper.bottom);
}

IppPaper readPaper(ipp_t* media)
{
    IppPaper paper;
    ipp_attribute_t* size = ippFindAttribute(media, "media-size", IPP_TAG_BEGIN_COLLECTION);
    if (!size)
        return paper;
    paper.width = integerIn(ippGetCollection(size, 0), "x-dimension");
    paper.length = integerIn(ippGetCollection(size, 0), "y-dimension");
    paper.left = integerIn(media, "media-left-margin");
    paper.right = integerIn(media, "media-right-margin");
    paper.top = integerIn(media, "media-top-margin");
    paper.bottom = integerIn(media, "media-bottom-margin");
    return paper;
}

int widestMargin(ipp_t* attributes, const char* name)
{
    ipp_attribute_t* found = ippFindAttribute(attributes, name, IPP_TAG_INTEGER);
    int widest = 0;
    for (int i = 0; i < std::min(ippGetCount(found), 100); ++i)
        widest = std::max(widest, ippGetInteger(found, i));
    return std::clamp(widest, 0, kLeastSide * 5);
}

struct Limits {
    int least = 0;
    int most = 0;
};

// A side that cannot be chosen, as the width of a roll, is a range of one length.
std::optional<Limits> limitsOf(ipp_t* size, const char* side)
{
    ipp_attribute_t* found = ippFindAttribute(size, side, IPP_TAG_ZERO);
    Limits limits;
    if (found && ippGetValueTag(found) == IPP_TAG_RANGE)
        limits.least = ippGetRange(found, 0, &limits.most);
    else if (found && ippGetValueTag(found) == IPP_TAG_INTEGER)
        limits.least = limits.most = ippGetInteger(found, 0);
    limits.least = std::max(limits.least, kLeastSide);
    limits.most = std::min(limits.most, kMostSide);
    return limits.least <= limits.most ? std::optional(limits) : std::nullopt;
}

// Of several rolls and feeds a page may be as small and as large as any of them allows.
void readLimits(ipp_t* size, IppPapers& papers)
{
    const std::optional<Limits> across = limitsOf(size, "x-dimension");
    const std::optional<Limits> along = limitsOf(size, "y-dimension");
    if (!across || !along || (across->least == across->most && along->least == along->most))
        return;
    const bool isFirst = !std::exchange(papers.hasCustom, true);
    papers.leastWidth = isFirst ? across->least : std::min(papers.leastWidth, across->least);
    papers.mostWidth = std::max(papers.mostWidth, across->most);
    papers.leastLength = isFirst ? along->least : std::min(papers.leastLength, along->least);
    papers.mostLength = std::max(papers.mostLength, along->most);
}

bool isBorderlessEverywhere(ipp_t* attributes)
{
    const auto hasNone = [attributes](const char* name) {
        ipp_attribute_t* found = ippFindAttribute(attributes, name, IPP_TAG_INTEGER);
        return found && ippContainsInteger(found, 0);
    };
    return hasNone("media-left-margin-supported") && hasNone("media-right-margin-supported") &&
           hasNone("media-top-margin-supported") && hasNone("media-bottom-margin-supported");
}

// Where a printer lists no combinations: its sizes, with the widest of its margins, and without any.
void readSizes(ipp_t* attributes, IppPapers& papers)
{
    ipp_attribute_t* sizes = ippFindAttribute(attributes, "media-size-supported", IPP_TAG_BEGIN_COLLECTION);
    const bool isListed = !papers.papers.isEmpty();
    const bool isEverywhere = isBorderlessEverywhere(attributes);
    for (int i = 0; i < std::min(ippGetCount(sizes), kMostRead); ++i) {
        ipp_t* size = ippGetCollection(sizes, i);
        readLimits(size, papers);
        if (isListed)
            continue;
        IppPaper paper;
        paper.width = integerIn(size, "x-dimension");
        paper.length = integerIn(size, "y-dimension");
        if (isEverywhere && papers.left + papers.right + papers.top + papers.bottom > 0)
            add(papers, paper);
        paper.left = papers.left;
        paper.right = papers.right;
        paper.top = papers.top;
        paper.bottom = papers.bottom;
        add(papers, paper);
    }
}

// The one that the printer takes by itself, or the first; with margins where there is a choice.
QString defaultOf(ipp_t* attributes, const IppPapers& papers)
{
    ipp_attribute_t* found = ippFindAttribute(attributes, "media-col-default", IPP_TAG_BEGIN_COLLECTION);
    const IppPaper wanted = found ? readPaper(ippGetCollection(found, 0)) : IppPaper();
    const IppPaper* best = papers.papers.isEmpty() ? nullptr : &papers.papers.front();
    bool isFound = false;
    for (const IppPaper& paper : papers.papers) {
        if (paper.width != wanted.width || paper.length != wanted.length)
            continue;
        if (!isFound || !paper.isBorderless())
            best = &paper;
        isFound = true;
    }
    return best ? best->keyword : QString();
}

} // namespace

IppPapers readIppPapers(_ipp_s* attributes)
{
    IppPapers papers;
    papers.left = widestMargin(attributes, "media-left-margin-supported");
    papers.right = widestMargin(attributes, "media-right-margin-supported");
    papers.top = widestMargin(attributes, "media-top-margin-supported");
    papers.bottom = widestMargin(attributes, "media-bottom-margin-supported");
    ipp_attribute_t* all = ippFindAttribute(attributes, "media-col-database", IPP_TAG_BEGIN_COLLECTION);
    for (int i = 0; i < std::min(ippGetCount(all), kMostRead); ++i) {
        ipp_t* media = ippGetCollection(all, i);
        add(papers, readPaper(media));
        if (ipp_attribute_t* size = ippFindAttribute(media, "media-size", IPP_TAG_BEGIN_COLLECTION))
            readLimits(ippGetCollection(size, 0), papers);
    }
    readSizes(attributes, papers);
    papers.defaultKeyword = defaultOf(attributes, papers);
    return papers;
}

bool isOfSize(const IppPaper& paper, _ipp_s* size)
{
    return integerIn(size, "x-dimension") == paper.width && integerIn(size, "y-dimension") == paper.length;
}

QByteArray mediaSizeValue(const IppPaper& paper)
{
    const auto text = [](int number) { return QByteArray::number(number); };
    return "{x-dimension=" + text(paper.width) + " y-dimension=" + text(paper.length) +
           "} media-left-margin=" + text(paper.left) + " media-right-margin=" + text(paper.right) +
           " media-top-margin=" + text(paper.top) + " media-bottom-margin=" + text(paper.bottom);
}

} // namespace halvern
