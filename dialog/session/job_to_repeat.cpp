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
#include <optional>
#include <utility>

namespace halvern {

namespace {

/// A page that the command reads; which of the session's photos it is, if it is still there.
struct ReadPage {
    std::optional<size_t> place;
    PhotoPlacement placement = {};
};

/// The command reads whole files: each as often as its photos need it to come in their order.
struct ReadFiles {
    QStringList files;
    std::vector<ReadPage> pages;
};

ReadFiles readingOf(const std::vector<Photo>& photos)
{
    ReadFiles read;
    size_t first = 0; // page of the last file
    int before = 0;
    for (size_t i = 0; i < photos.size(); ++i) {
        const Photo& photo = photos[i];
        const int number = std::max(photo.pageNumber, 1);
        if (read.files.isEmpty() || read.files.back() != photo.path || number <= before) {
            read.files.append(photo.path);
            first = read.pages.size();
            read.pages.resize(first + size_t(std::max(photo.pagesInFile, number)));
        }
        read.pages[first + size_t(number) - 1] = {i, photo.placement};
        before = number;
    }
    return read;
}

// The chosen photos, as places among what the command reads.
QString rangesIn(const std::vector<ReadPage>& pages, const std::vector<size_t>& chosen)
{
    std::vector<size_t> places;
    for (size_t i = 0; i < pages.size(); ++i) {
        if (pages[i].place && std::ranges::find(chosen, *pages[i].place) != chosen.end())
            places.push_back(i);
    }
    return places.size() < pages.size() ? rangesOf(places) : QString();
}

// A value for each photo, up to the last that is not as the one before it; none if all are as nobody said.
QStringList placementWords(const std::vector<ReadPage>& pages, const QString& word,
                           const std::function<QString(const PhotoPlacement&)>& valueOf)
{
    QStringList values;
    for (const ReadPage& page : pages)
        values.append(valueOf(page.placement));
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
    const ReadFiles read = readingOf(session.photos);
    job.files = read.files;
    const UnderstoodOptions saved =
        understand(session.model.file(), givenBy(OptionOrigin::saved, session.saved));
    job.options = optionsToName(session, saved.options);
    if (!page.isCollated || saved.page.isCollated)
        job.page.append(page.isCollated ? QStringLiteral("Collate=True") : QStringLiteral("Collate=False"));
    if (page.scaling != Scaling::fit || !saved.page.scaling.isEmpty() || !page.sheets.layout.isEmpty())
        job.page.append(QStringLiteral("print-scaling=") + scalingWord(page.scaling));
    job.ranges = rangesIn(read.pages, session.chosen);
    job.isReversed = page.pages.isReversed;
    if (page.pages.parity == PageParity::odd || page.pages.parity == PageParity::even)
        job.page.append(page.pages.parity == PageParity::odd ? QStringLiteral("page-set=odd")
                                                             : QStringLiteral("page-set=even"));
    job.photosPerJob = session.photosPerJob;
    if (page.turn != PageTurn::automatic)
        job.orientation =
            page.turn == PageTurn::portrait ? QStringLiteral("portrait") : QStringLiteral("landscape");
    job.photos = placementWords(read.pages);
    job.sheets = sheetWords(page.sheets, page.scaling, session.layouts);
    job.colours = colourWords(page.colours);
    job.title = page.title.trimmed();
    job.copies = page.copies;
    // One that is not among the chosen pages is read all the same.
    job.printsDamaged = std::ranges::any_of(session.photos, &Photo::isFileDamaged);
    return commandFor(job);
}

} // namespace halvern
