// SPDX-License-Identifier: MIT
#include "dialog/options/given_options.h"

#include "dialog/options/custom_paper.h"
#include "dialog/options/ipp_twins.h"
#include "dialog/options/ppd_lookup.h"
#include "platform/foundation/list_text.h"
#include "platform/foundation/near_names.h"
#include "platform/foundation/units.h"
#include "platform/printing/cups_ppd.h"

#include <QCoreApplication>
#include <QStringList>

#include <algorithm>
#include <array>
#include <cmath>

namespace halvern {

namespace {

struct GivenOptionsWords {
    Q_DECLARE_TR_FUNCTIONS(GivenOptions)
};

constexpr qsizetype kMostListed = 20;
constexpr double kPointsPerPwgUnit = kPointsPerMillimetre / 100.0;
constexpr double kGivenTolerance = 1.5;

struct LayoutOption {
    const char* name;
    const char* harmless; ///< the value that changes nothing
};

// The page is laid out here, a photo on each: a server that does it again spoils it.
constexpr std::array kLayoutOptions{
    LayoutOption{"number-up", "1"},
    LayoutOption{"number-up-layout", "lrtb"},
    LayoutOption{"landscape", "false"},
    LayoutOption{"orientation-requested", "3"},
    LayoutOption{"scaling", "100"},
    LayoutOption{"natural-scaling", "100"},
    LayoutOption{"ppi", ""},
    LayoutOption{"position", "center"},
    LayoutOption{"mirror", "false"},
    LayoutOption{"booklet", "off"},
    LayoutOption{"page-border", "none"},
    LayoutOption{"page-label", ""},
    LayoutOption{"page-delivery", "same-order-face-down"},
};

// Twins of the printer's own options, which say it more exactly.
constexpr std::array kTwins{"print-quality", "printer-resolution", "print-color-mode", "media-col"};

constexpr std::array kJobAttributes{
    "job-priority",           "job-hold-until",         "job-sheets",       "job-billing",
    "job-account-id",         "job-accounting-user-id", "job-cancel-after", "job-message-to-operator",
    "job-recipient-name",     "job-retain-until",       "finishings",       "output-bin",
    "print-content-optimize", "print-rendering-intent",
};

struct Sides {
    const char* sides;
    std::array<const char*, 3> choices; ///< what PPDs call it
};

constexpr std::array kSides{
    Sides{"one-sided", {"None", "Simplex", "False"}},
    Sides{"two-sided-long-edge", {"DuplexNoTumble", "LongEdge", "Top"}},
    Sides{"two-sided-short-edge", {"DuplexTumble", "ShortEdge", "Bottom"}},
};

template <size_t N> bool contains(const std::array<const char*, N>& names, const QString& name)
{
    return std::ranges::any_of(names, [&](const char* known) { return name == QLatin1StringView(known); });
}

bool isNamed(const QString& key, const char* name)
{
    return key.compare(QLatin1StringView(name), Qt::CaseInsensitive) == 0;
}

bool meansYes(const QString& value)
{
    static const QStringList words{QStringLiteral("true"), QStringLiteral("yes"), QStringLiteral("on"),
                                   QStringLiteral("1")};
    return words.contains(value, Qt::CaseInsensitive);
}

QStringList sizeNames(ppd_file_t* file)
{
    QStringList names;
    for (int i = 0; i < file->num_sizes; ++i)
        names.append(QString::fromUtf8(file->sizes[i].name));
    return names;
}

bool hasMargins(const ppd_size_t& size)
{
    return size.left > 0.0F || size.bottom > 0.0F;
}

// Of several sizes with the same measures the one that is called so, else the one with margins.
QString sizeWithMeasures(ppd_file_t* file, const pwg_media_t& media)
{
    const ppd_size_t* best = nullptr;
    for (int i = 0; i < file->num_sizes; ++i) {
        const ppd_size_t& size = file->sizes[i];
        if (std::abs(double(size.width) - media.width * kPointsPerPwgUnit) > kGivenTolerance ||
            std::abs(double(size.length) - media.length * kPointsPerPwgUnit) > kGivenTolerance)
            continue;
        if (media.ppd && qstricmp(size.name, media.ppd) == 0)
            return QString::fromUtf8(size.name);
        if (!best || (!hasMargins(*best) && hasMargins(size)))
            best = &size;
    }
    if (best)
        return QString::fromUtf8(best->name);
    return file->variable_sizes ? customKeyword(QSizeF(media.width, media.length) * kPointsPerPwgUnit)
                                : QString();
}

QString pageSizeFor(ppd_file_t* file, const QString& name)
{
    if (const ppd_choice_t* listed = ppd_lookup::listedChoice(file, QStringLiteral("PageSize"), name))
        return QString::fromUtf8(listed->choice);
    if (name.startsWith(QLatin1StringView("Custom.")))
        return name;
    const pwg_media_t* media = pwgMediaForPWG(name.toUtf8().constData());
    return media ? sizeWithMeasures(file, *media) : QString();
}

class Understanding {
public:
    Understanding(ppd_file_t* file, const GivenOptions& given) : file_(file), given_(given) {}

    UnderstoodOptions result;

    void take(const GivenOption& option)
    {
        const QString& key = option.key;
        if (key == QLatin1StringView("media"))
            takeMedia(option);
        else if (isNamed(key, "PageRegion"))
            takeRegion(option);
        else if (key == QLatin1StringView("sides"))
            takeSides(option);
        else if (key == QLatin1StringView("fit-to-page") || key == QLatin1StringView("fitplot"))
            result.page.scaling = meansYes(option.value) ? QStringLiteral("fit") : QStringLiteral("none");
        else if (key == QLatin1StringView("print-scaling"))
            takeScaling(option);
        else if (isNamed(key, "Collate"))
            result.page.isCollated = meansYes(option.value);
        else if (key == QLatin1StringView("multiple-document-handling"))
            result.page.isCollated =
                option.value != QLatin1StringView("separate-documents-uncollated-copies");
        else if (key == QLatin1StringView("page-ranges"))
            result.page.pageRanges = option.value;
        else if (key == QLatin1StringView("page-set"))
            takePageSet(option);
        else if (key == QLatin1StringView("outputorder") || key == QLatin1StringView("output-order"))
            takeOrder(option);
        else if (!takeDecidedHere(option) && !takeOwnName(option))
            result.options.append(option);
    }

private:
    void leaveOut(const GivenOption& option, const QString& sentence)
    {
        result.leftOut.append({option.origin, sentence});
    }

    void takeAs(const GivenOption& option, const QString& key, const QString& value)
    {
        result.options.append({key, value, option.origin});
    }

    void takeMedia(const GivenOption& option)
    {
        for (const QString& name : option.value.split(QLatin1Char(','), Qt::SkipEmptyParts)) {
            const QString size = pageSizeFor(file_, name);
            QString key = QStringLiteral("PageSize");
            for (const char* other : {"InputSlot", "MediaType"}) {
                if (size.isEmpty() && ppd_lookup::listedChoice(file_, QLatin1StringView(other), name))
                    key = QLatin1StringView(other);
            }
            if (!size.isEmpty() || key != QLatin1StringView("PageSize"))
                takeAs(option, key, size.isEmpty() ? name : size);
            else
                leaveOut(option, GivenOptionsWords::tr("The printer has no paper \"%1\".").arg(name) +
                                     listSentence(name, sizeNames(file_)));
        }
    }

    // It is another word for the size, and often saved beside it.
    void takeRegion(const GivenOption& option)
    {
        const bool isSaidBetter = std::ranges::any_of(given_, [&](const GivenOption& other) {
            return other.origin >= option.origin &&
                   (isNamed(other.key, "PageSize") || other.key == QLatin1StringView("media"));
        });
        if (!isSaidBetter)
            takeAs(option, QStringLiteral("PageSize"), option.value);
    }

    void takeSides(const GivenOption& option)
    {
        for (const char* keyword : kDuplexKeywords) {
            for (const Sides& row : kSides) {
                for (const char* choice : row.choices) {
                    const QString key = QLatin1StringView(keyword);
                    if (option.value == QLatin1StringView(row.sides) &&
                        ppd_lookup::listedChoice(file_, key, QLatin1StringView(choice))) {
                        takeAs(option, key, QLatin1StringView(choice));
                        return;
                    }
                }
            }
        }
        if (option.value != QLatin1StringView("one-sided"))
            leaveOut(option, GivenOptionsWords::tr(
                                 "The printer has no \"sides=%1\". Leave it out, or use the printer's "
                                 "own option for two-sided printing.")
                                 .arg(option.value));
    }

    void takeScaling(const GivenOption& option)
    {
        if (option.value == QLatin1StringView("none") || option.value == QLatin1StringView("fill"))
            result.page.scaling = option.value;
        else if (option.value.contains(QLatin1StringView("fit")) || option.value == QLatin1StringView("auto"))
            result.page.scaling = QStringLiteral("fit");
        else
            leaveOut(option, GivenOptionsWords::tr(
                                 "\"%1\" is no way to scale. Write print-scaling=fit, fill or none.")
                                 .arg(option.value));
    }

    void takePageSet(const GivenOption& option)
    {
        static const QStringList kWords{QStringLiteral("all"), QStringLiteral("odd"), QStringLiteral("even")};
        if (kWords.contains(option.value))
            result.page.pageSet = option.value;
        else
            leaveOut(option,
                     GivenOptionsWords::tr("\"%1\" is no set of pages. Write page-set=all, odd or even.")
                         .arg(option.value));
    }

    void takeOrder(const GivenOption& option)
    {
        if (option.value == QLatin1StringView("normal") || option.value == QLatin1StringView("reverse"))
            result.page.isReversed = option.value == QLatin1StringView("reverse");
        else
            leaveOut(option, GivenOptionsWords::tr(
                                 "\"%1\" is no order of pages. Write outputorder=normal or reverse.")
                                 .arg(option.value));
    }

    bool takeDecidedHere(const GivenOption& option)
    {
        const auto layout = std::ranges::find_if(kLayoutOptions, [&](const LayoutOption& row) {
            return option.key == QLatin1StringView(row.name);
        });
        if (layout != kLayoutOptions.end()) {
            if (option.value.compare(QLatin1StringView(layout->harmless), Qt::CaseInsensitive) != 0)
                leaveOut(option,
                         GivenOptionsWords::tr("\"%1=%2\" is not possible: the page is laid out before it is "
                                               "sent, one photo on each. Leave it out.")
                             .arg(option.key, option.value));
            return true;
        }
        if (option.key == QLatin1StringView("copies")) {
            leaveOut(option,
                     GivenOptionsWords::tr("The number of copies is no option of the printer. Give it with "
                                           "--copies."));
            return true;
        }
        if (!contains(kTwins, option.key) || ppd_lookup::option(file_, option.key))
            return false;
        leaveOut(option, GivenOptionsWords::tr(
                             "\"%1\" is set by the printer's own options here. \"lpoptions -p QUEUE "
                             "-l\" lists them.")
                             .arg(option.key));
        return true;
    }

    // "MediaType=My canvas, 340 g"
    bool takeOwnName(const GivenOption& option)
    {
        const QString choice = ppd_lookup::listedChoice(file_, option.key, option.value)
                                   ? QString()
                                   : choiceOfIppValue(file_, option.key, option.value);
        if (!choice.isEmpty())
            takeAs(option, option.key, choice);
        return !choice.isEmpty();
    }

    ppd_file_t* file_;
    const GivenOptions& given_;
};

} // namespace

GivenOptions givenBy(OptionOrigin origin, const OptionValues& options)
{
    GivenOptions given;
    for (const OptionValue& option : options)
        given.append({option.key, option.value, origin});
    return given;
}

UnderstoodOptions understand(ppd_file_t* file, const GivenOptions& given)
{
    Understanding understanding(file, given);
    for (const GivenOption& option : given)
        understanding.take(option);
    return understanding.result;
}

QString duplexOption(ppd_file_t* file)
{
    for (const char* keyword : kDuplexKeywords) {
        const QString key = QLatin1StringView(keyword);
        if (const ppd_option_t* option = ppd_lookup::option(file, key); option && option->num_choices > 1)
            return key;
    }
    return {};
}

bool isJobAttribute(const QString& key)
{
    return contains(kJobAttributes, key);
}

QString meantSentence(const QString& wanted, const QStringList& names)
{
    const QStringList near = nearNames(wanted, names);
    return near.isEmpty() ? QString()
                          : QLatin1Char(' ') + GivenOptionsWords::tr("Did you mean %1?").arg(listText(near));
}

QString listSentence(const QString& wanted, const QStringList& names)
{
    const QString list = listText(names.mid(0, kMostListed));
    const qsizetype more = names.size() - kMostListed;
    return meantSentence(wanted, names) + QLatin1Char(' ') +
           (more > 0 ? GivenOptionsWords::tr("It has: %1 and %2 more.").arg(list, QString::number(more))
                     : GivenOptionsWords::tr("It has: %1.").arg(list));
}

} // namespace halvern
