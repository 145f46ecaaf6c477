// SPDX-License-Identifier: MIT
#include "dialog/session/job_to_repeat.h"

#include "dialog/job/job_command.h"
#include "dialog/session/colour_management.h"
#include "dialog/session/sheet_words.h"
#include "dialog/session/starting_options.h"
#include "platform/foundation/numbers.h"

#include <QSet>

#include <algorithm>
#include <functional>
#include <utility>

namespace halvern {

namespace {

struct ReadPage {
    Photo photo;
    bool isLeftOut;
};

// The pages of each file that is still printed: the command reads it whole.
std::vector<ReadPage> pagesOfFiles(const std::vector<Photo>& photos,
                                   const std::vector<PhotoLoader::LeftOutPhoto>& leftOut)
{
    std::vector<ReadPage> pages;
    auto left = leftOut.begin();
    const auto addLeftOut = [&] {
        while (left != leftOut.end() && left->place == pages.size())
            pages.push_back({(left++)->photo, true});
    };
    for (const Photo& photo : photos) {
        addLeftOut();
        pages.push_back({photo, false});
    }
    addLeftOut();
    for (size_t begin = 0; begin < pages.size();) {
        // A file that was given twice begins again.
        size_t end = begin + 1;
        while (end < pages.size() && pages[end].photo.path == pages[begin].photo.path &&
               pages[end].photo.page > pages[end - 1].photo.page)
            ++end;
        const auto first = pages.begin() + std::ptrdiff_t(begin);
        const auto last = pages.begin() + std::ptrdiff_t(end);
        if (std::all_of(first, last, [](const ReadPage& page) { return page.isLeftOut; }))
            pages.erase(first, last);
        else
            begin = end;
    }
    return pages;
}

QStringList filesOf(const std::vector<ReadPage>& pages)
{
    QStringList files;
    int before = 0;
    for (const ReadPage& page : pages) {
        if (files.isEmpty() || files.back() != page.photo.path || page.photo.page <= before)
            files.append(page.photo.path);
        before = page.photo.page;
    }
    return files;
}

// The chosen places among what is still there, as places among what the command reads.
QString rangesIn(const std::vector<ReadPage>& pages, const std::vector<size_t>& chosen)
{
    std::vector<size_t> there;
    for (size_t i = 0; i < pages.size(); ++i) {
        if (!pages[i].isLeftOut)
            there.push_back(i);
    }
    std::vector<size_t> places;
    for (const size_t place : chosen)
        places.push_back(there.at(place));
    return places.size() < pages.size() ? rangesOf(places) : QString();
}

// A value for each photo, up to the last that is not as the one before it; none if all are as nobody said.
QStringList placementWords(const std::vector<ReadPage>& pages, const QString& word,
                           const std::function<QString(const PhotoPlacement&)>& valueOf)
{
    QStringList values;
    for (const ReadPage& page : pages)
        values.append(valueOf(page.photo.placement));
    while (values.size() > 1 && values.back() == values[values.size() - 2])
        values.removeLast();
    if (values.isEmpty() || (values.size() == 1 && values.front() == valueOf({})))
        return {};
    QStringList words;
    for (const QString& value : std::as_const(values))
        words << word << value;
    return words;
}

QStringList placementWords(const std::vector<ReadPage>& pages)
{
    return placementWords(pages, QStringLiteral("--position"),
                          [](const PhotoPlacement& placement) {
                              return shortestDouble(placement.position.x()) + QLatin1Char(',') +
                                     shortestDouble(placement.position.y());
                          }) +
           placementWords(pages, QStringLiteral("--zoom"),
                          [](const PhotoPlacement& placement) { return shortestDouble(placement.zoom); }) +
           placementWords(
               pages, QStringLiteral("--turn"),
               [](const PhotoPlacement& placement) { return QString::number(placement.quarterTurns * 90); }) +
           placementWords(pages, QStringLiteral("--photo-copies"),
                          [](const PhotoPlacement& placement) { return QString::number(placement.copies); });
}

// As the command line has them.
QStringList colourWords(const ColourSettings& colours)
{
    if (!colours.isByDialog)
        return {};
    QStringList words{QStringLiteral("--color-by"), QStringLiteral("dialog")};
    if (!colours.profile.isEmpty())
        words << QStringLiteral("--profile") << colours.profile;
    if (colours.intent != ColourIntent::perceptual)
        words << QStringLiteral("--intent") << intentWord(colours.intent);
    if (!colours.compensatesBlack)
        words << QStringLiteral("--no-black-point");
    return words;
}

// What the user has saved would come back with the command, so that what was set instead is named.
OptionValues optionsToName(const SessionToRepeat& session, const GivenOptions& saved)
{
    QSet<QString> pinned;
    for (const GivenOption& option : saved)
        pinned.insert(option.key);
    JobInputs inputs = session.inputs;
    inputs.values = session.printerDefaults;
    inputs.settings.clear();
    const JobValues unchanged(inputs);
    const JobValues values(session.inputs);
    QStringList keys = values.differingFrom(session.printerDefaults);
    keys.removeIf([&](const QString& key) {
        return pinned.contains(key) || (unchanged.contains(key) && unchanged.value(key) == values.value(key));
    });
    OptionValues named;
    for (const QString& key : keys + pinned.values()) {
        if (values.contains(key) && !session.model.isSecret(key))
            named.append({key, values.value(key)});
    }
    return named;
}

} // namespace

QString commandToRepeat(const SessionToRepeat& session)
{
    JobToRepeat job;
    const PageSettings& page = session.page;
    job.printer = session.printer;
    job.server = session.server;
    const std::vector<ReadPage> pages = pagesOfFiles(session.photos, session.leftOut);
    job.files = filesOf(pages);
    const UnderstoodOptions saved =
        understand(session.model.file(), givenBy(OptionOrigin::saved, session.saved));
    job.options = optionsToName(session, saved.options);
    if (!page.isCollated || saved.page.isCollated)
        job.page.append(page.isCollated ? QStringLiteral("Collate=True") : QStringLiteral("Collate=False"));
    if (page.scaling != Scaling::fit || !saved.page.scaling.isEmpty() || !page.sheets.layout.isEmpty())
        job.page.append(QStringLiteral("print-scaling=") + scalingWord(page.scaling));
    job.ranges = rangesIn(pages, session.chosen);
    job.isReversed = page.pages.isReversed;
    if (page.turn != PageTurn::automatic)
        job.orientation =
            page.turn == PageTurn::portrait ? QStringLiteral("portrait") : QStringLiteral("landscape");
    job.photos = placementWords(pages);
    job.sheets = sheetWords(page.sheets, session.layouts);
    job.colours = colourWords(page.colours);
    job.title = page.title.trimmed();
    job.copies = page.copies;
    // One that is not among the chosen pages is read all the same.
    job.printsDamaged = std::ranges::any_of(pages, [](const ReadPage& read) { return read.photo.isDamaged; });
    return commandFor(job);
}

} // namespace halvern
