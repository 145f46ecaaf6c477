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

namespace halvern {

namespace {

QStringList filesOf(const std::vector<Photo>& photos)
{
    QStringList files;
    int page = 0;
    for (const Photo& photo : photos) {
        // Pages of one file follow one another; a file that was given twice begins again.
        if (files.isEmpty() || files.back() != photo.path || photo.page <= page)
            files.append(photo.path);
        page = photo.page;
    }
    return files;
}

// A photo each, up to the last that is not where the one before it is.
QStringList positionsOf(const std::vector<Photo>& photos)
{
    QStringList positions;
    for (const Photo& photo : photos)
        positions.append(shortestDouble(photo.position.x()) + QLatin1Char(',') +
                         shortestDouble(photo.position.y()));
    while (positions.size() > 1 && positions.back() == positions[positions.size() - 2])
        positions.removeLast();
    const bool isCentred = positions.size() == 1 && photos.front().position == Photo().position;
    return isCentred ? QStringList() : positions;
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
    return words;
}

PdfOutput* DialogSession::makePdf(const QString& path)
{
    return new PdfOutput(path, pagesToPrint(), PdfQuality{resolution()}, this);
}

QString DialogSession::command() const
{
    JobToRepeat job;
    job.printer = printerName();
    job.files = filesOf(photos());
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
    const ChosenPages chosen = chosenPages();
    if (chosen.pages.size() < photos().size())
        job.ranges = rangesOf(chosen.pages);
    job.isReversed = page().pages.isReversed;
    if (page().turn != PageTurn::automatic)
        job.orientation =
            page().turn == PageTurn::portrait ? QStringLiteral("portrait") : QStringLiteral("landscape");
    job.positions = positionsOf(photos());
    job.title = page().title.trimmed();
    job.copies = page().copies;
    job.printsDamaged = std::ranges::any_of(photos(), [](const Photo& photo) { return photo.isDamaged; });
    return commandFor(job);
}

} // namespace halvern
