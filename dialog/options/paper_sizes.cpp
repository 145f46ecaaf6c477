// SPDX-License-Identifier: MIT
#include "dialog/options/paper_sizes.h"

#include "dialog/options/custom_paper.h"
#include "dialog/options/paper_shape.h"
#include "dialog/options/ppd_keywords.h"
#include "dialog/options/ppd_model.h"
#include "platform/foundation/list_text.h"
#include "platform/foundation/units.h"
#include "platform/printing/cups_ppd.h"

#include <QLocale>

#include <algorithm>
#include <array>
#include <cmath>

namespace halvern {

namespace {

constexpr double kListedTolerance = 1.2;
constexpr double kSameMillimetres = 1.0;

struct PaperSizesWords {
    Q_DECLARE_TR_FUNCTIONS(PaperSizes)
};

struct Measures {
    double width;
    double height;
};

// In inches.
constexpr std::array kPhotoInches{
    Measures{2, 6},   Measures{3.5, 5},  Measures{4, 4},   Measures{4, 5.33}, Measures{4, 6},
    Measures{4, 7},   Measures{4, 7.11}, Measures{4, 8},   Measures{5, 5},    Measures{5, 7},
    Measures{5, 8},   Measures{6, 6},    Measures{6, 8},   Measures{6, 9},    Measures{8, 8},
    Measures{8, 10},  Measures{8, 12},   Measures{10, 10}, Measures{10, 12},  Measures{10, 15},
    Measures{11, 14}, Measures{12, 12},  Measures{12, 15}, Measures{12, 18},  Measures{13, 19},
    Measures{16, 20}, Measures{20, 24},  Measures{24, 36},
};

// In millimetres.
constexpr std::array kPhotoMillimetres{Measures{89, 127},  Measures{90, 130},  Measures{100, 147},
                                       Measures{100, 148}, Measures{100, 150}, Measures{130, 180},
                                       Measures{200, 300}, Measures{254, 305}, Measures{329, 483}};

// In inches.
constexpr std::array kUsInches{
    Measures{5.5, 8.5}, Measures{7.25, 10.5}, Measures{8, 10.5}, Measures{8.5, 11}, Measures{8.5, 13},
    Measures{8.5, 14},  Measures{9, 12},      Measures{11, 15},  Measures{11, 17},  Measures{17, 22},
    Measures{18, 24},   Measures{22, 34},     Measures{30, 42},  Measures{34, 44},  Measures{36, 48},
};

bool isSame(const QSizeF& a, const QSizeF& b)
{
    const QSizeF difference = upright(a) - upright(b);
    return std::abs(difference.width()) <= kListedTolerance &&
           std::abs(difference.height()) <= kListedTolerance;
}

template <size_t N> bool isAmong(const std::array<Measures, N>& all, const QSizeF& points, double unit)
{
    return std::ranges::any_of(all, [&](const Measures& measures) {
        return isSame(points, QSizeF(measures.width, measures.height) * unit);
    });
}

// A0 to A10 and B0 to B10: each has half the area of the one before it, in whole millimetres.
bool isIso(const QSizeF& points)
{
    for (Measures sheet :
         {Measures{841, 1189}, Measures{1000, 1414}, Measures{860, 1220}, Measures{900, 1280}}) {
        for (int i = 0; i <= 10; ++i) {
            if (isSame(points, QSizeF(sheet.width, sheet.height) * kPointsPerMillimetre))
                return true;
            sheet = {std::floor(sheet.height / 2.0), sheet.width};
        }
    }
    return false;
}

PaperGroup groupOf(const PaperSize& size)
{
    if (size.keyword.startsWith(QLatin1StringView("Roll"), Qt::CaseInsensitive))
        return PaperGroup::roll;
    if (isAmong(kPhotoInches, size.points, kPointsPerInch) ||
        isAmong(kPhotoMillimetres, size.points, kPointsPerMillimetre))
        return PaperGroup::photo;
    if (isIso(size.points))
        return PaperGroup::iso;
    return isAmong(kUsInches, size.points, kPointsPerInch) ? PaperGroup::us : PaperGroup::other;
}

// "4x6.Fullbleed" and "TA4" belong to "4x6" and "A4"; so does what has the other's words and some more.
bool belongs(const PaperSize& wide, const PaperSize& plain)
{
    return isSame(wide.points, plain.points) &&
           (wide.keyword.startsWith(plain.keyword + QLatin1Char('.')) ||
            wide.keyword.endsWith(plain.keyword, Qt::CaseInsensitive) ||
            wide.keyword.startsWith(plain.keyword, Qt::CaseInsensitive) ||
            wide.text.startsWith(plain.text, Qt::CaseInsensitive));
}

// Takes the sizes without margins out of the list, as far as they belong to another one.
void joinTwins(std::vector<PaperSize>& sizes, const std::vector<bool>& isWide)
{
    std::vector<PaperSize> plain;
    std::vector<PaperSize> alone;
    for (size_t i = 0; i < sizes.size(); ++i) {
        if (!isWide[i])
            plain.push_back(sizes[i]);
    }
    for (size_t i = 0; i < sizes.size(); ++i) {
        const auto one = std::ranges::find_if(plain, [&](const PaperSize& size) {
            return isWide[i] && size.borderless.isEmpty() && belongs(sizes[i], size);
        });
        if (one != plain.end())
            one->borderless = sizes[i].keyword;
        else if (isWide[i])
            alone.push_back(sizes[i]);
    }
    plain.insert(plain.end(), alone.begin(), alone.end());
    sizes = std::move(plain);
}

double area(const PaperSize& size)
{
    return size.points.width() * size.points.height();
}

QString compact(double value)
{
    return QString::number(std::round(value * 10.0) / 10.0);
}

qsizetype placeIn(const QStringList& recent, const PaperSize& size)
{
    const qsizetype place = recent.indexOf(size.keyword);
    return place >= 0 || size.borderless.isEmpty() ? place : recent.indexOf(size.borderless);
}

struct OwnSwitch {
    const char* key;
    const char* on;
    const char* off;
};

constexpr std::array kOwnSwitches{
    OwnSwitch{"StpFullBleed", "True", "False"},   OwnSwitch{"Borderless", "True", "False"},
    OwnSwitch{"Borderless", "On", "Off"},         OwnSwitch{"FullBleed", "True", "False"},
    OwnSwitch{"EPBorderless", "On", "Off"},       OwnSwitch{"BorderlessPrint", "True", "False"},
    OwnSwitch{"BorderLessPrinting", "On", "Off"},
};

bool hasChoice(const PpdModel& model, const char* key, const char* choice)
{
    return ppd_lookup::listedChoice(model.file(), QLatin1StringView(key), QLatin1StringView(choice)) !=
           nullptr;
}

} // namespace

QString groupText(PaperGroup group)
{
    switch (group) {
    case PaperGroup::loaded:
        return PaperSizesWords::tr("For the loaded paper");
    case PaperGroup::recent:
        return PaperSizesWords::tr("Used last");
    case PaperGroup::own:
        return PaperSizesWords::tr("Your sizes");
    case PaperGroup::photo:
        return PaperSizesWords::tr("Photo sizes");
    case PaperGroup::roll:
        return PaperSizesWords::tr("Roll");
    case PaperGroup::iso:
        return PaperSizesWords::tr("ISO");
    case PaperGroup::us:
        return PaperSizesWords::tr("US");
    case PaperGroup::other:
        break;
    }
    return PaperSizesWords::tr("Other sizes");
}

QString searchForm(const QString& typed)
{
    QString form = typed.toLower();
    form.replace(QChar(0xd7), QLatin1Char('x')).replace(QLatin1Char(','), QLatin1Char('.'));
    return form.simplified().replace(QStringLiteral(" x "), QStringLiteral("x"));
}

QString searchText(const PaperSize& size)
{
    QString text = size.text + QLatin1Char(' ') + size.keyword;
    for (const double unit : {kPointsPerMillimetre, 10.0 * kPointsPerMillimetre, kPointsPerInch})
        text += QStringLiteral(" %1x%2").arg(compact(size.points.width() / unit),
                                             compact(size.points.height() / unit));
    // Names are round, and what people ask for is: 102 by 152 millimetres is 10 by 15 centimetres.
    text += QStringLiteral(" %1x%2")
                .arg(std::round(size.points.width() / kPointsPerMillimetre))
                .arg(std::round(size.points.height() / kPointsPerMillimetre));
    text += QStringLiteral(" %1x%2cm")
                .arg(std::round(size.points.width() / kPointsPerMillimetre / 10.0))
                .arg(std::round(size.points.height() / kPointsPerMillimetre / 10.0));
    return searchForm(text);
}

std::vector<PaperSize> paperSizes(const PpdModel& model)
{
    std::vector<PaperSize> sizes;
    std::vector<bool> isWide;
    for (const ChoiceItem& choice : model.option(kPageSize).choices) {
        const ppd_size_t* size = ppdPageSize(model.file(), choice.keyword.toUtf8().constData());
        PaperSize paper{choice.keyword, choice.text.trimmed(), {}, PaperGroup::other, {}, choice.obstacle};
        if (size)
            paper.points = QSizeF(double(size->width), double(size->length));
        paper.group = groupOf(paper);
        sizes.push_back(paper);
        isWide.push_back(size && isWithoutMargins(*size));
    }
    joinTwins(sizes, isWide);
    std::ranges::stable_sort(sizes, [](const PaperSize& a, const PaperSize& b) {
        return a.group != b.group ? a.group < b.group : area(a) < area(b);
    });
    return sizes;
}

void lift(std::vector<PaperSize>& sizes, const PaperRoom& room, const QStringList& recent)
{
    for (PaperSize& size : sizes) {
        const QSizeF sheet = upright(QSizeF(room.width.value_or(0.0), room.length.value_or(0.0)));
        const double width = size.points.width() / kPointsPerMillimetre;
        const bool isAsWide = room.width && std::abs(width - *room.width) <= kSameMillimetres;
        const bool isRollSize = size.group == PaperGroup::roll;
        const bool isSheet = room.length && isSame(size.points, sheet * kPointsPerMillimetre);
        const bool isLoaded = isRollSize == room.isRoll && (room.isRoll ? isAsWide : isSheet);
        if (isLoaded)
            size.group = PaperGroup::loaded;
        else if (placeIn(recent, size) >= 0)
            size.group = PaperGroup::recent;
    }
    std::ranges::stable_sort(sizes, [&](const PaperSize& a, const PaperSize& b) {
        if (a.group != b.group || a.group != PaperGroup::recent)
            return a.group < b.group;
        return placeIn(recent, a) < placeIn(recent, b);
    });
}

void liftTrays(std::vector<PaperSize>& sizes, const PpdModel& model, const QList<TrayPaper>& trays)
{
    std::vector<PaperSize> loaded;
    for (int i = 0; i < trays.size(); ++i) {
        const QString page = choiceFor(model, trays[i]).page;
        const auto size = std::ranges::find_if(sizes, [&](const PaperSize& known) {
            return !page.isEmpty() && (known.keyword == page || known.borderless == page);
        });
        if (size == sizes.end())
            continue;
        loaded.push_back(*size);
        loaded.back().group = PaperGroup::loaded;
        loaded.back().tray = i;
        QStringList place{trayText(model, trays[i]), paperTypeText(model, trays[i])};
        place.removeAll(QString());
        loaded.back().place = listText(place);
    }
    std::erase_if(sizes, [&](const PaperSize& known) {
        return std::ranges::find(loaded, known.keyword, &PaperSize::keyword) != loaded.end();
    });
    sizes.insert(sizes.begin(), loaded.begin(), loaded.end());
}

BorderlessSwitch borderlessSwitch(const PpdModel& model, const std::vector<PaperSize>& sizes)
{
    for (const OwnSwitch& own : kOwnSwitches) {
        if (!hasChoice(model, own.key, own.on) || !hasChoice(model, own.key, own.off))
            continue;
        const QString key = QLatin1StringView(own.key);
        const QString on = QLatin1StringView(own.on);
        return {true, true, model.value(key) == on, key, on, QLatin1StringView(own.off)};
    }
    const QString chosen = model.value(kPageSize);
    BorderlessSwitch result;
    result.key = kPageSize;
    for (const PaperSize& size : sizes) {
        result.isKnown = result.isKnown || !size.borderless.isEmpty();
        if (size.borderless.isEmpty() || (size.keyword != chosen && size.borderless != chosen))
            continue;
        result.isPossible = true;
        result.isOn = size.borderless == chosen;
        result.on = size.borderless;
        result.off = size.keyword;
    }
    return result;
}

} // namespace halvern
