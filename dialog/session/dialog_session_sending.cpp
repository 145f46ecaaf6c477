// SPDX-License-Identifier: MIT
// What the session would send, put to other uses than a job.
#include "dialog/session/dialog_session.h"

#include "dialog/job/job_in_words.h"
#include "dialog/job/pdf_output.h"
#include "dialog/options/ipp_twins.h"
#include "dialog/session/driver_colours.h"
#include "dialog/session/job_to_repeat.h"
#include "dialog/session/sheet_words.h"
#include "platform/foundation/display_text.h"
#include "platform/printing/print_settings.h"

#include <QFileInfo>

#include <cmath>
#include <limits>

namespace halvern {

namespace {

QString asServerWrites(const std::vector<PageRange>& ranges)
{
    QStringList texts;
    for (const PageRange& range : ranges)
        texts.append(QStringLiteral("%1-%2")
                         .arg(range.first)
                         .arg(range.last.value_or(std::numeric_limits<int>::max())));
    return texts.join(QLatin1Char(','));
}

} // namespace

QString DialogSession::whyNotPrintable() const
{
    if (printerName().isEmpty())
        return tr("No printer is chosen. Choose one from the list.");
    if (!model())
        return tr("Nothing is known of the printer \"%1\" yet. Wait for it, or choose another one.")
            .arg(displayText(printerName()));
    if (!document() && !photos_.isDone())
        return tr("The photos are still being read. Wait a moment.");
    if (!document() && photos().empty())
        return tr("There is no photo to print. Open the dialog with one.");
    if (const QString problem = chosenPages().problem; !problem.isEmpty() || document())
        return problem;
    const QString problem = sheetPlan()->problem;
    return problem.isEmpty() ? colourProblem() : problem;
}

QString DialogSession::colourProblem() const
{
    // Another program's document has its colours already.
    return document() ? QString() : colours_.profileFor(page().colours, model()).problem;
}

PdfQuality DialogSession::quality() const
{
    return {resolution(), colours_.planFor(page().colours, model())};
}

JobInputs DialogSession::jobInputs() const
{
    JobInputs inputs{
        {}, options_.settings()->values(), page().copies, int(sheetPlan()->sheets.size()), page().isCollated};
    if (!model())
        return inputs;
    inputs.values = model()->values();
    const QMap<QString, QString>& kept = model()->kept();
    for (auto it = kept.cbegin(); it != kept.cend(); ++it) {
        // What a panel has saved instead is spelled by the panel.
        if (valueText(inputs.settings.value(it.key(), *it)) == *it)
            inputs.settings.insert(it.key(), model()->jobValue(it.key()));
    }
    if (page().colours.isByDialog && !document()) {
        for (const OptionValue& off : withoutDriverColours(*model()))
            inputs.settings.insert(off.key, off.value);
    }
    return inputs;
}

OptionValues DialogSession::collectOptions()
{
    panels_.save();
    if (options_.keeper())
        options_.keeper()->settleSaved();
    return asIppOptions(model() ? model()->file() : nullptr, mergeJobOptions(jobInputs()));
}

JobValues DialogSession::valuesToSend() const
{
    return JobValues(jobInputs());
}

bool DialogSession::isPageOnPaper() const
{
    return !model() || !options_.keeper() || halvern::isPageOnPaper(*model(), options_.keeper()->offer());
}

JobInWords DialogSession::jobInWords() const
{
    if (!model())
        return {};
    const JobValues values = valuesToSend();
    const auto plan = document() ? std::make_shared<const SheetPlan>() : sheetPlan();
    const QString layout = document() ? QString() : layoutInWords(page().sheets, page_.layouts(), *plan);
    JobInWords words =
        halvern::jobInWords({*model(), values, printerDefaults(), int(photos().size()), printedPhotos(),
                             page().pages.isReversed, isPageOnPaper(), layout});
    if (words.problem.isEmpty() && hasPhotos()) {
        const QString choice = chosenPages().problem;
        words.problem = choice.isEmpty() ? plan->problem : choice;
    }
    if (words.problem.isEmpty())
        words.problem = colourProblem();
    if (const std::optional<NotLoaded> missing = notLoaded(); words.problem.isEmpty() && missing)
        words.problem = missing->shortly;
    words.warning = lowSupplies();
    if (words.problem.isEmpty() && page().colours.isByDialog && !document())
        words.parts.append(colours_.shortly(page().colours, model()));
    return words;
}

bool DialogSession::isTwoSided() const
{
    const QString key = model() ? duplexOption(model()->file()) : QString();
    return !key.isEmpty() && sidesWord(model()->value(key)) != QLatin1StringView("one-sided");
}

QString DialogSession::jobTitle() const
{
    const std::vector<size_t> printed = printedPhotos();
    if (const QString title = page().title.trimmed(); !title.isEmpty() || printed.empty())
        return title;
    return QFileInfo(photos()[printed.front()].path).fileName();
}

PrintRun* DialogSession::makeRun()
{
    std::vector<SheetToPrint> sheets = sheetsToPrint();
    JobRequest job{printerName(), jobTitle(), collectOptions(), model()->secrets()};
    job.asked = jobOffer().asked;
    job.madeFrom = printer_.madeFrom();
    job.hasTextCollections = takesCollectionsAsText(model()->file());
    auto* run = new PrintRun(std::move(job), std::move(sheets), quality(), this);
    run->setPhotosPerJob(request_.photosPerJob);
    if (request_.remembers)
        connect(run, &PrintRun::submitted, this, [this, queue = printerName(), last = presets_.usedNow()] {
            presets_.offered().remember(queue, last);
        });
    return run;
}

std::optional<QMarginsF> DialogSession::documentMargins() const
{
    constexpr double kSamePoints = 1.5;
    if (!document() || !document()->margins)
        return std::nullopt;
    const PageLayout now = sheet();
    const QSizeF difference = (now.turned ? now.page.transposed() : now.page) - document()->paper;
    const bool isSame =
        std::abs(difference.width()) < kSamePoints && std::abs(difference.height()) < kSamePoints;
    return isSame ? document()->margins : std::nullopt;
}

JobRequest DialogSession::makeOrder()
{
    JobRequest job{printerName(), jobTitle(), collectOptions(), model()->secrets()};
    job.asked = jobOffer().asked;
    job.madeFrom = printer_.madeFrom();
    job.hasTextCollections = takesCollectionsAsText(model()->file());
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
        presets_.offered().remember(job.queue, presets_.usedNow());
    return job;
}

PdfOutput* DialogSession::makePdf(const QString& path)
{
    return new PdfOutput(path, sheetsToPrint(), quality(), this);
}

QString DialogSession::command() const
{
    const std::vector<size_t> chosen = chosenPages().pages;
    return commandToRepeat({printerName(), photos(), chosen, *model(), printerDefaults(),
                            printer_.savedOptions(), jobInputs(), page(), page_.layouts(), request_.server,
                            request_.photosPerJob});
}

} // namespace halvern
