// SPDX-License-Identifier: MIT
// What the session would send, put to other uses than a job.
#include "dialog/session/dialog_session.h"

#include "dialog/job/job_command.h"
#include "dialog/job/job_in_words.h"
#include "dialog/job/pdf_output.h"
#include "dialog/session/starting_options.h"
#include "platform/foundation/numbers.h"

#include <QSet>

#include <algorithm>
#include <limits>

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

// A photo each, up to the last that is not where the one before it is.
QStringList positionsOf(const std::vector<ReadPage>& pages)
{
    QStringList positions;
    for (const ReadPage& page : pages)
        positions.append(shortestDouble(page.photo.position.x()) + QLatin1Char(',') +
                         shortestDouble(page.photo.position.y()));
    while (positions.size() > 1 && positions.back() == positions[positions.size() - 2])
        positions.removeLast();
    const bool isCentred = positions.size() == 1 && pages.front().photo.position == Photo().position;
    return isCentred ? QStringList() : positions;
}

QString asServerWrites(const std::vector<PageRange>& ranges)
{
    QStringList texts;
    for (const PageRange& range : ranges)
        texts.append(QStringLiteral("%1-%2")
                         .arg(range.first)
                         .arg(range.last.value_or(std::numeric_limits<int>::max())));
    return texts.join(QLatin1Char(','));
}

// As the command line has them.
QStringList colourWords(const ColourSettings& colours)
{
    if (!colours.isByDialog)
        return {};
    QStringList words{QStringLiteral("--colour-by"), QStringLiteral("dialog")};
    if (!colours.profile.isEmpty())
        words << QStringLiteral("--profile") << colours.profile;
    if (colours.intent != ColourIntent::perceptual)
        words << QStringLiteral("--intent") << intentWord(colours.intent);
    if (!colours.compensatesBlack)
        words << QStringLiteral("--no-black-point");
    return words;
}

} // namespace

JobValues DialogSession::valuesToSend() const
{
    return JobValues(jobInputs());
}

bool DialogSession::isPageOnPaper() const
{
    return !model_ || !keeper_ || halvern::isPageOnPaper(*model_, keeper_->offer());
}

JobInWords DialogSession::jobInWords() const
{
    if (!model_)
        return {};
    const ChosenPages chosen = chosenPages();
    const JobValues values = valuesToSend();
    JobInWords words = halvern::jobInWords({*model_, values, printerDefaults_, int(photos().size()),
                                            chosen.pages, page().pages.isReversed, isPageOnPaper()});
    if (words.problem.isEmpty() && hasPhotos())
        words.problem = chosen.problem;
    if (words.problem.isEmpty())
        words.problem = colourProblem();
    if (words.problem.isEmpty() && page().colours.isByDialog && !document())
        words.parts.append(colours_.shortly(page().colours, model_.get()));
    return words;
}

bool DialogSession::isTwoSided() const
{
    const QString key = model_ ? duplexOption(model_->file()) : QString();
    return !key.isEmpty() && sidesWord(model_->value(key)) != QLatin1StringView("one-sided");
}

JobRequest DialogSession::makeOrder()
{
    JobRequest job{printerName(), jobTitle(), collectOptions(), model_->secrets()};
    const PageChoice& pages = page().pages;
    const auto set = [&job](const char* name, const QString& value) {
        const QString key = QLatin1StringView(name);
        job.options.removeIf([&](const OptionValue& option) { return option.key == key; });
        job.options.append({key, value});
    };
    // Nobody has put the pages in their order. Which of them are printed is settled by whoever makes the
    // document, but nobody makes one that is here.
    if (pages.isReversed)
        set("outputorder", QStringLiteral("reverse"));
    if (document()->isHere && !pages.ranges.isEmpty())
        set("page-ranges", asServerWrites(rangesIn(pages.ranges)));
    if (document()->isHere && pages.parity != PageParity::all)
        set("page-set", pages.parity == PageParity::odd ? QStringLiteral("odd") : QStringLiteral("even"));
    if (request_.remembers)
        presets_.remember(job.queue, usedNow());
    return job;
}

PdfOutput* DialogSession::makePdf(const QString& path)
{
    return new PdfOutput(path, pagesToPrint(), quality(), this);
}

QString DialogSession::command() const
{
    JobToRepeat job;
    job.printer = printerName();
    const std::vector<ReadPage> pages = pagesOfFiles(photos(), photos_.leftOut());
    job.files = filesOf(pages);
    const UnderstoodOptions saved =
        understand(model_->file(), givenBy(OptionOrigin::saved, printer_.savedOptions()));
    // What the user has saved would come back with the command, so that what was set instead is named.
    QSet<QString> pinned;
    for (const GivenOption& option : saved.options)
        pinned.insert(option.key);
    JobInputs inputs = jobInputs();
    inputs.values = printerDefaults_;
    inputs.settings.clear();
    const JobValues unchanged(inputs);
    const JobValues values = valuesToSend();
    QStringList keys = values.differingFrom(printerDefaults_);
    keys.removeIf([&](const QString& key) {
        return pinned.contains(key) || (unchanged.contains(key) && unchanged.value(key) == values.value(key));
    });
    for (const QString& key : keys + pinned.values()) {
        if (values.contains(key) && !model_->isSecret(key))
            job.options.append({key, values.value(key)});
    }
    if (!page().isCollated || saved.page.isCollated)
        job.page.append(page().isCollated ? QStringLiteral("Collate=True") : QStringLiteral("Collate=False"));
    if (page().scaling != Scaling::fit || !saved.page.scaling.isEmpty())
        job.page.append(QStringLiteral("print-scaling=") + scalingWord(page().scaling));
    job.ranges = rangesIn(pages, chosenPages().pages);
    job.isReversed = page().pages.isReversed;
    if (page().turn != PageTurn::automatic)
        job.orientation =
            page().turn == PageTurn::portrait ? QStringLiteral("portrait") : QStringLiteral("landscape");
    job.positions = positionsOf(pages);
    job.colours = colourWords(page().colours);
    job.title = page().title.trimmed();
    job.copies = page().copies;
    // One that is not among the chosen pages is read all the same.
    job.printsDamaged = std::ranges::any_of(pages, [](const ReadPage& page) { return page.photo.isDamaged; });
    return commandFor(job);
}

} // namespace halvern
