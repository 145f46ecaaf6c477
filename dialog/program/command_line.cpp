// SPDX-License-Identifier: MIT
#include "dialog/program/command_line.h"

#include "dialog/options/back_lines.h"
#include "dialog/options/preset.h"
#include "dialog/page/photo_problem.h"
#include "dialog/photo/decoder_process.h"
#include "dialog/program/given_files.h"
#include "dialog/program/photo_switches.h"
#include "dialog/program/sheet_switches.h"
#include "dialog/session/colour_management.h"
#include "platform/foundation/display_text.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QFileInfo>
#include <QRegularExpression>

#include <algorithm>

namespace halvern {

namespace {

constexpr int kLongestWait = 86400; // seconds

struct Switches {
    Q_DECLARE_TR_FUNCTIONS(CommandLine)

public:
    QCommandLineOption printer{{QStringLiteral("d"), QStringLiteral("printer")},
                               tr("Print on this queue."),
                               QStringLiteral("QUEUE")};
    QCommandLineOption server{
        QStringLiteral("server"),
        tr("Use this print server; without it, CUPS_SERVER, client.conf or this computer's."),
        QStringLiteral("HOST[:PORT]")};
    QCommandLineOption option{{QStringLiteral("o"), QStringLiteral("option")},
                              tr("Set a printer option. Can be given several times."),
                              QStringLiteral("KEY=VALUE")};
    QCommandLineOption copies{{QStringLiteral("n"), QStringLiteral("copies")},
                              tr("Print this many copies, 1 to %1.").arg(kMostCopies),
                              QStringLiteral("N")};
    QCommandLineOption pages{QStringLiteral("pages"), tr("Print these pages only, for example 1-3,7,12-."),
                             QStringLiteral("RANGES")};
    QCommandLineOption reverse{QStringLiteral("reverse-order"), tr("Print the last page first.")};
    QCommandLineOption orientation{QStringLiteral("orientation"),
                                   tr("Turn the page: portrait or landscape; without it, as the photo."),
                                   QStringLiteral("WORD")};
    PhotoSwitches photos;
    SheetSwitches sheets;
    QCommandLineOption title{{QStringLiteral("t"), QStringLiteral("job-title")},
                             tr("Call the job this; without it, it is called like the first file."),
                             QStringLiteral("TEXT")};
    QCommandLineOption backprint{
        QStringLiteral("backprint"),
        tr("Print this text on the back of each picture. Can be given twice, for a first and a second "
           "line. A line holds 120 characters and placeholders such as [YYYY], which the printer "
           "replaces."),
        QStringLiteral("TEXT")};
    QCommandLineOption printDamaged{QStringLiteral("print-damaged"),
                                    tr("Print photos of which a part is missing, too, without asking.")};
    QCommandLineOption colourBy{
        QStringList{QStringLiteral("color-by"), QStringLiteral("colour-by")},
        tr("Who converts the photos' colors: printer, which is given sRGB, or dialog, for a color profile "
           "of the printer."),
        QStringLiteral("WORD")};
    QCommandLineOption profile{QStringLiteral("profile"),
                               tr("Convert the colors for this ICC profile of the printer; without it, for "
                                  "the one that the printer "
                                  "comes with."),
                               QStringLiteral("FILE")};
    QCommandLineOption intent{
        QStringLiteral("intent"),
        tr("What becomes of colors that the printer cannot show: perceptual, relative, saturation or "
           "absolute; without it, perceptual."),
        QStringLiteral("WORD")};
    QCommandLineOption noBlackPoint{QStringLiteral("no-black-point"),
                                    tr("Convert the colors without black point compensation.")};
    QCommandLineOption photosPerJob{
        QStringLiteral("photos-per-job"),
        tr("Send several jobs in order, with at most this many photos each; without it, one job."),
        QStringLiteral("N")};
    QCommandLineOption skipBroken{
        QStringLiteral("skip-broken"),
        tr("With --no-dialog: leave out files that cannot be read, or of which a part is missing, say which, "
           "and print the others.")};
    QCommandLineOption noDialog{QStringLiteral("no-dialog"),
                                tr("Print at once, and wait until the job has ended.")};
    QCommandLineOption wait{
        QStringLiteral("wait"),
        tr("With --no-dialog: give a print server that goes silent after the job was sent this long; "
           "60 seconds without it."),
        QStringLiteral("SECONDS")};
    QCommandLineOption dryRun{
        QStringLiteral("dry-run"),
        tr("Write the options that would be sent, one KEY=VALUE a line, and send nothing.")};

    QCommandLineOption output{
        QStringLiteral("output"),
        tr("Write the pages, as they would be sent, into this PDF file, and send nothing."),
        QStringLiteral("FILE")};
    QCommandLineOption verify{
        QStringLiteral("verify"),
        tr("With --no-dialog: read the job back from the print server, and say what was added or changed.")};

    QCommandLineOption preset{
        QStringLiteral("preset"),
        tr("Start with this preset of the printer's. Without it the dialog starts with what you printed with "
           "last, and --no-dialog with your saved options."),
        QStringLiteral("NAME")};

    QCommandLineOption savePreset{
        QStringLiteral("save-preset"),
        tr("Keep the queue's saved options, --preset and the options given here as a preset, and print "
           "nothing. Copies, pages and the text on the back are in it if they are given."),
        QStringLiteral("NAME")};
    QCommandLineOption listPrinters{QStringLiteral("list-printers"),
                                    tr("Write the print server's queues, a line each.")};
    QCommandLineOption listOptions{
        QStringLiteral("list-options"),
        tr("Write the printer's options with their current and default value and their choices, a line "
           "each.")};
    QCommandLineOption listPresets{QStringLiteral("list-presets"),
                                   tr("Write the names of the printer's presets, a line each.")};
    QCommandLineOption json{
        QStringLiteral("json"),
        tr("With --list-printers, --list-options, --list-presets or --jobs: write JSON, with more details.")};
    QCommandLineOption listPapers{QStringLiteral("list-papers"),
                                  tr("Write what the printer has loaded, and how old that knowledge is.")};
    QCommandLineOption jobs{
        QStringLiteral("jobs"),
        tr("Write your jobs that have not ended, on the queue of --printer or on all, a line each.")};
    QCommandLineOption ended{QStringLiteral("ended"), tr("With --jobs: those that have ended, too.")};
    QCommandLineOption cancelJob{QStringLiteral("cancel"), tr("With --jobs: cancel this job."),
                                 QStringLiteral("N")};
    QCommandLineOption holdJob{QStringLiteral("hold"), tr("With --jobs: hold this job."),
                               QStringLiteral("N")};
    QCommandLineOption releaseJob{QStringLiteral("release"), tr("With --jobs: let this held job go on."),
                                  QStringLiteral("N")};
    QCommandLineOption repeatJob{
        QStringLiteral("again"),
        tr("With --jobs: print this job again, if the print server has kept its pages."),
        QStringLiteral("N")};
    QCommandLineOption signIn{
        QStringLiteral("sign-in"),
        tr("With --jobs: give the printer the name and the password for which it holds this job."),
        QStringLiteral("N")};
    QCommandLineOption moveJob{QStringLiteral("move"),
                               tr("With --jobs: move this job to another queue; --to says which."),
                               QStringLiteral("N")};
    QCommandLineOption moveTo{QStringLiteral("to"), tr("With --jobs --move: the queue to move the job to."),
                              QStringLiteral("QUEUE")};
    QCommandLineOption parent{QStringLiteral("parent"),
                              tr("Show the dialog above another program's window: x11: and the window's "
                                 "number in hexadecimal digits."),
                              QStringLiteral("WINDOW")};
    QCommandLineOption resultJson{QStringLiteral("result-json"),
                                  tr("When the dialog has closed, write what was chosen and what became of "
                                     "it to standard output, as JSON.")};
    QCommandLineOption refresh{QStringLiteral("refresh"), tr("With --list-papers: ask the printer first.")};

    static QString seeHelp() { return tr("See \"halvern-print --help\"."); }

    static QString badServer(const QString& text)
    {
        return tr("\"%1\" is no print server: write its name or address, and a port where it is not 631, for "
                  "example print.example.org:8631.")
            .arg(displayText(text, 80));
    }

    static QString badOption(const QString& text)
    {
        return tr("\"%1\" is no option: write KEY=VALUE, for example PageSize=A4.").arg(text);
    }

    static QString badCopies(const QString& text)
    {
        return tr("\"%1\" is no number of copies: write a number from 1 to %2.")
            .arg(text, QString::number(kMostCopies));
    }

    static QString badColourBy(const QString& text)
    {
        return tr("\"%1\" converts no colors: write printer or dialog.").arg(text);
    }

    static QString badIntent(const QString& text)
    {
        return tr("\"%1\" is no rendering intent: write perceptual, relative, saturation or absolute.")
            .arg(text);
    }

    static QString forDialogOnly()
    {
        return tr("--profile, --intent and --no-black-point go with --color-by dialog.");
    }

    static QString badPhotosPerJob(const QString& text)
    {
        return tr("\"%1\" is no number of photos: write 1 or more.").arg(text);
    }

    static QString badWait(const QString& text)
    {
        return tr("\"%1\" is no time to wait: write a number of seconds from 1 to %2.")
            .arg(text)
            .arg(kLongestWait);
    }

    static QString tooManyBackLines()
    {
        return tr("The back of a picture takes %1 lines: give --backprint once or twice.").arg(kBackLines);
    }

    static QString badOrientation(const QString& text)
    {
        return tr("\"%1\" is no orientation: write portrait or landscape.").arg(text);
    }

    static QString badParent(const QString& text)
    {
        return tr("\"%1\" names no window: write x11: and its number, for example x11:3c00007.").arg(text);
    }

    static QString dialogOnly() { return tr("--parent and --result-json go with the dialog."); }

    static QString emptyOutput() { return tr("The name of the file to write is empty."); }

    static QString outputIsInput(const QString& path)
    {
        return tr("%1 is one of the files to print. Write to another file with --output.")
            .arg(displayText(path));
    }

    static QString outputAlone() { return tr("--output writes a file, and does not go with --dry-run."); }

    static QString verifyAlone()
    {
        return tr("--verify goes with --no-dialog, and with nothing that sends no job.");
    }

    static QString refreshAlone() { return tr("--refresh goes with --list-papers."); }

    static QString jobsAlone()
    {
        return tr(
            "--ended, --cancel, --hold, --release, --again, --sign-in, --move and --to go with --jobs.");
    }

    static QString oneDeed()
    {
        return tr("Do one thing at a time: give one of --cancel, --hold, --release, --again and --sign-in, "
                  "or --move and "
                  "--to together.");
    }

    static QString badJob(const QString& text)
    {
        return tr("\"%1\" is no job: write its number, as --jobs lists it.").arg(displayText(text, 40));
    }

    static QString jsonAlone()
    {
        return tr("--json goes with --list-printers, --list-options, --list-presets or --jobs.");
    }

    static QString listAndPrint(const QString& option)
    {
        return tr("--%1 prints no files: leave out the files and the options for printing.").arg(option);
    }

    static QString reservedName(const QString& name)
    {
        return tr("\"%1\" is a preset that is always there. Choose another name.").arg(name);
    }

    static QString noFile()
    {
        return tr("Name at least one photo to print (JPEG, PNG, TIFF, WebP, HEIF, AVIF or PDF), or a folder "
                  "of them.");
    }

    static QString badPresetName(const QString& text)
    {
        return tr("\"%1\" is no name of a preset: write 1 to %2 characters.")
            .arg(displayText(text, 40))
            .arg(kLongestPresetName);
    }

    static QString emptyPrinter() { return tr("The queue's name is empty. \"lpstat -e\" lists the queues."); }

    static QString about()
    {
        return tr("Prints photos, with a preview and the printer's own pages of options.");
    }

    static QString exitStatuses()
    {
        return tr("Exit status:\n"
                  "  0  Printed, or written what was asked for.\n"
                  "  1  Failed; standard error says why.\n"
                  "  2  Wrong usage.\n"
                  "  3  The job is on the queue, and had not ended yet.\n"
                  "  4  Cancelled: nothing was printed.\n"
                  "  5  The job was sent, but the print server does not answer: the outcome is not known.\n"
                  "  6  With --verify: printed, but not held by the print server as it was sent.\n"
                  "  7  A print server or a printer wants a name and a password, and was not given the right "
                  "ones.");
    }

    static QString fileHelp()
    {
        return tr("JPEG, PNG, TIFF, WebP, HEIF, AVIF or PDF files, or folders of them; each photo becomes a "
                  "page. \"-\" is standard input, \"@NAME\" a text file with a file's name on each line.");
    }
};

// The application object takes these out of the arguments; so does whoever looks at them before it.
QStringList withoutToolkitsOwn(const QStringList& arguments)
{
    static const QStringList kAlone{QStringLiteral("reverse"), QStringLiteral("nograb"),
                                    QStringLiteral("dograb"), QStringLiteral("widgetcount"),
                                    QStringLiteral("sync")};
    static const QStringList kWithValue{
        QStringLiteral("platform"), QStringLiteral("platformpluginpath"), QStringLiteral("platformtheme"),
        QStringLiteral("plugin"),   QStringLiteral("qwindowgeometry"),    QStringLiteral("geometry"),
        QStringLiteral("session"),  QStringLiteral("qwindowicon"),        QStringLiteral("icon"),
        QStringLiteral("display"),  QStringLiteral("qwindowtitle"),       QStringLiteral("title"),
        QStringLiteral("style"),    QStringLiteral("stylesheet"),         QStringLiteral("fontengine")};
    QStringList rest;
    for (qsizetype i = 0; i < arguments.size(); ++i) {
        const QString& argument = arguments[i];
        const qsizetype dashes = argument.startsWith(QLatin1StringView("--")) ? 2 : 1;
        const QString name = argument.startsWith(QLatin1Char('-')) ? argument.mid(dashes) : QString();
        const QString before = name.section(QLatin1Char('='), 0, 0);
        if (kWithValue.contains(name))
            ++i;
        else if (!kAlone.contains(name) && !(name.contains(QLatin1Char('=')) && kWithValue.contains(before)))
            rest.append(argument);
    }
    return rest;
}

ParsedCommandLine wrong(const QString& sentence, int status = kExitUsage)
{
    return {std::nullopt, sentence, status};
}

QString readBackLines(const QStringList& texts, CommandLine& line, QStringList& remarks)
{
    if (texts.size() > kBackLines)
        return Switches::tooManyBackLines();
    for (const QString& text : texts) {
        const BackLine read = readBackLine(int(line.request.backLines.size()) + 1, text);
        line.request.backLines.append(read.stored);
        remarks.append(read.remarks);
    }
    return {};
}

/// Something to write instead of printing, and what else may be said with it.
struct ListingSwitch {
    const QCommandLineOption& option;
    Listing what;
    QList<QCommandLineOption> goesWith;
};

QList<ListingSwitch> listingSwitches(const Switches& switches)
{
    return {{switches.listPapers, Listing::papers, {switches.printer, switches.refresh, switches.wait}},
            {switches.listPrinters, Listing::printers, {switches.json}},
            {switches.jobs,
             Listing::jobs,
             {switches.printer, switches.json, switches.ended, switches.cancelJob, switches.holdJob,
              switches.releaseJob, switches.repeatJob, switches.signIn, switches.moveJob, switches.moveTo}},
            {switches.listOptions,
             Listing::options,
             {switches.printer, switches.option, switches.preset, switches.json}},
            {switches.listPresets, Listing::presets, {switches.printer, switches.json}},
            {switches.savePreset,
             Listing::savePreset,
             {switches.printer, switches.option, switches.preset, switches.copies, switches.pages,
              switches.reverse, switches.orientation, switches.backprint}}};
}

// What to do about the user's jobs. The sentence about what is wrong; empty if all is right.
QString readJobs(const QCommandLineParser& parser, const Switches& switches, CommandLine& line)
{
    const struct {
        const QCommandLineOption& option;
        JobDeed deed;
    } deeds[] = {{switches.cancelJob, JobDeed::cancel},   {switches.holdJob, JobDeed::hold},
                 {switches.releaseJob, JobDeed::release}, {switches.repeatJob, JobDeed::printAgain},
                 {switches.signIn, JobDeed::signIn},      {switches.moveJob, JobDeed::move}};

    ListJobsRequest request{line.request.printer, parser.isSet(switches.json), parser.isSet(switches.ended)};
    request.target = parser.value(switches.moveTo);
    for (const auto& row : deeds) {
        if (!parser.isSet(row.option))
            continue;
        if (request.deed)
            return Switches::oneDeed();
        request.deed = row.deed;
        request.jobId = parser.value(row.option).toInt();
        if (request.jobId <= 0)
            return Switches::badJob(parser.value(row.option));
    }
    if ((request.deed == JobDeed::move) == request.target.isEmpty())
        return Switches::oneDeed();
    line.listJobs = request;
    return {};
}

bool belongsToJobs(const QCommandLineParser& parser, const Switches& switches)
{
    const auto all = {&switches.ended,     &switches.cancelJob, &switches.holdJob, &switches.releaseJob,
                      &switches.repeatJob, &switches.signIn,    &switches.moveJob, &switches.moveTo};
    return std::ranges::any_of(all, [&](const QCommandLineOption* option) { return parser.isSet(*option); });
}

// What to write instead of printing, if anything. The sentence about what does not go with it; empty if all
// does.
QString readListing(const QCommandLineParser& parser, const Switches& switches, CommandLine& line)
{
    for (const ListingSwitch& listing : listingSwitches(switches)) {
        if (!parser.isSet(listing.option))
            continue;
        QStringList known = listing.option.names() + switches.server.names();
        for (const QCommandLineOption& other : listing.goesWith)
            known += other.names();
        const QStringList given = parser.optionNames();
        const bool isAlone = std::all_of(given.begin(), given.end(),
                                         [&](const QString& name) { return known.contains(name); });
        if (!isAlone || !line.request.files.isEmpty())
            return Switches::listAndPrint(listing.option.names().front());
        line.listing = {listing.what, parser.isSet(switches.json), parser.value(switches.savePreset)};
        if (listing.what == Listing::papers)
            line.listPapers = ListPapersRequest{line.request.printer, parser.isSet(switches.refresh)};
        if (listing.what == Listing::jobs)
            return readJobs(parser, switches, line);
        const QString& name = line.listing.name;
        if (listing.what == Listing::savePreset && presetName(name).isEmpty())
            return Switches::badPresetName(name);
        if (isPrinterDefaultsName(name) || isLastUsedName(name))
            return Switches::reservedName(name);
        return {};
    }
    if (parser.isSet(switches.refresh))
        return Switches::refreshAlone();
    if (belongsToJobs(parser, switches))
        return Switches::jobsAlone();
    return parser.isSet(switches.json) ? Switches::jsonAlone() : QString();
}

QString readLayout(const QCommandLineParser& parser, const Switches& switches, CommandLine& line)
{
    if (const QString word = parser.value(switches.orientation); word == QLatin1StringView("portrait"))
        line.request.turn = PageTurn::portrait;
    else if (word == QLatin1StringView("landscape"))
        line.request.turn = PageTurn::landscape;
    else if (parser.isSet(switches.orientation))
        return Switches::badOrientation(word);
    const QString problem = switches.photos.read(parser, line.request);
    return problem.isEmpty() ? switches.sheets.read(parser, line.request) : problem;
}

QString readColours(const QCommandLineParser& parser, const Switches& switches, CommandLine& line)
{
    ColourSettings& colours = line.request.colours;
    const QString by = parser.value(switches.colourBy);
    line.request.namesColours = parser.isSet(switches.colourBy) || parser.isSet(switches.profile);
    colours.isByDialog = by.isEmpty() ? parser.isSet(switches.profile) : by == QLatin1StringView("dialog");
    const bool hasDetails = parser.isSet(switches.profile) || parser.isSet(switches.intent) ||
                            parser.isSet(switches.noBlackPoint);
    if (parser.isSet(switches.colourBy) && !colours.isByDialog && by != QLatin1StringView("printer"))
        return Switches::badColourBy(by);
    if (hasDetails && !colours.isByDialog)
        return Switches::forDialogOnly();
    if (parser.isSet(switches.intent) && !readIntent(parser.value(switches.intent), colours.intent))
        return Switches::badIntent(parser.value(switches.intent));
    colours.compensatesBlack = !parser.isSet(switches.noBlackPoint);
    if (!parser.isSet(switches.profile))
        return {};
    colours.profile = QFileInfo(parser.value(switches.profile)).absoluteFilePath();
    return readPrinterProfile(colours.profile).problem;
}

// A host, with a port or without; or a UNIX socket's path.
bool isServerName(const QString& text)
{
    static const QRegularExpression kName(
        QStringLiteral("^(/[^\\s]+|([A-Za-z0-9._-]+|\\[[0-9A-Fa-f:.]+\\])(:[0-9]{1,5})?)$"));
    return kName.match(text).hasMatch() && text.section(QLatin1Char(':'), -1).toInt() <= 65535;
}

QString readValues(const QCommandLineParser& parser, const Switches& switches, CommandLine& line)
{
    for (const QString& text : parser.values(switches.option)) {
        const std::optional<OptionValue> option = parseOption(text);
        if (!option)
            return Switches::badOption(text);
        line.request.options.append(*option);
    }
    if (parser.isSet(switches.copies)) {
        bool isNumber = false;
        line.request.copies = parser.value(switches.copies).toInt(&isNumber);
        if (!isNumber || line.request.copies < 1 || line.request.copies > kMostCopies)
            return Switches::badCopies(parser.value(switches.copies));
    }
    if (parser.isSet(switches.photosPerJob)) {
        line.request.photosPerJob = parser.value(switches.photosPerJob).toInt();
        if (line.request.photosPerJob < 1)
            return Switches::badPhotosPerJob(parser.value(switches.photosPerJob));
    }
    if (parser.isSet(switches.wait)) {
        bool isNumber = false;
        const int seconds = parser.value(switches.wait).toInt(&isNumber);
        if (!isNumber || seconds < 1 || seconds > kLongestWait)
            return Switches::badWait(parser.value(switches.wait));
        line.wait = std::chrono::seconds(seconds);
    }
    line.request.namesCopies = parser.isSet(switches.copies);
    line.request.preset = parser.value(switches.preset);
    if (parser.isSet(switches.preset) && presetName(line.request.preset).isEmpty())
        return Switches::badPresetName(line.request.preset);
    line.request.pages = {parser.value(switches.pages), PageParity::all, parser.isSet(switches.reverse)};
    line.request.title = parser.value(switches.title);
    if (const QString problem = choosePages(line.request.pages, 0).problem; !problem.isEmpty())
        return problem;
    line.request.printer = parser.value(switches.printer);
    line.server = parser.value(switches.server);
    if (parser.isSet(switches.server) && !isServerName(line.server))
        return Switches::badServer(line.server);
    if (parser.isSet(switches.printer) && line.request.printer.isEmpty())
        return Switches::emptyPrinter();
    return {};
}

// What does not go together among the ways to print.
QString contradiction(const QCommandLineParser& parser, const Switches& switches, const CommandLine& line)
{
    const bool writes = parser.isSet(switches.output);
    if (parser.isSet(switches.parent) && !line.parent)
        return Switches::badParent(parser.value(switches.parent));
    if (!line.showDialog && (line.parent || line.resultJson))
        return Switches::dialogOnly();
    if (line.verify && (line.showDialog || line.dryRun || writes))
        return Switches::verifyAlone();
    if (writes && line.output.isEmpty())
        return Switches::emptyOutput();
    const QString output = QFileInfo(line.output).canonicalFilePath();
    const bool isInput =
        writes && !output.isEmpty() && std::ranges::any_of(line.request.files, [&](const QString& file) {
            return QFileInfo(file).canonicalFilePath() == output;
        });
    if (isInput)
        return Switches::outputIsInput(line.output);
    return writes && line.dryRun ? Switches::outputAlone() : QString();
}

} // namespace

ParsedCommandLine parseCommandLine(const QStringList& arguments)
{
    const Switches switches;
    QCommandLineParser parser;
    parser.setApplicationDescription(Switches::about());
    parser.addOptions(
        {switches.server,       switches.printer,      switches.option,       switches.copies,
         switches.pages,        switches.orientation,  switches.reverse,      switches.title,
         switches.backprint,    switches.preset,       switches.printDamaged, switches.skipBroken,
         switches.noDialog,     switches.wait,         switches.dryRun,       switches.output,
         switches.verify,       switches.listPrinters, switches.listPapers,   switches.refresh,
         switches.listOptions,  switches.listPresets,  switches.savePreset,   switches.json,
         switches.photosPerJob, switches.parent,       switches.resultJson,   switches.colourBy,
         switches.profile,      switches.intent,       switches.noBlackPoint, switches.jobs,
         switches.ended,        switches.cancelJob,    switches.holdJob,      switches.releaseJob,
         switches.repeatJob,    switches.signIn,       switches.moveJob,      switches.moveTo});
    parser.addOptions(switches.photos.all() + switches.sheets.all());
    const QCommandLineOption help = parser.addHelpOption();
    const QCommandLineOption version = parser.addVersionOption();
    parser.addPositionalArgument(QStringLiteral("FILE"), Switches::fileHelp(), QStringLiteral("FILE..."));
    if (!parser.parse(arguments))
        return wrong(parser.errorText() + QLatin1Char(' ') + Switches::seeHelp());
    if (parser.isSet(help) || parser.isSet(QStringLiteral("help-all")))
        return {std::nullopt, parser.helpText() + QLatin1Char('\n') + Switches::exitStatuses(), kExitPrinted};
    if (parser.isSet(version))
        return {std::nullopt,
                QCoreApplication::applicationName() + QLatin1Char(' ') +
                    QCoreApplication::applicationVersion() + QLatin1Char('\n') + readableFormats(),
                kExitPrinted};
    CommandLine line;
    line.showDialog = !parser.isSet(switches.noDialog) && !parser.isSet(switches.dryRun);
    line.request.printDamaged = parser.isSet(switches.printDamaged);
    line.request.skipBroken = parser.isSet(switches.skipBroken);
    line.dryRun = parser.isSet(switches.dryRun);
    line.verify = parser.isSet(switches.verify);
    line.output = parser.value(switches.output);
    line.parent = readWindowName(parser.value(switches.parent));
    line.resultJson = parser.isSet(switches.resultJson);
    line.showDialog = line.showDialog && !parser.isSet(switches.output);
    QStringList remarks;
    QStringList unusable;
    line.request.files = givenFiles(parser.positionalArguments(), &unusable);
    QString problem = readValues(parser, switches, line);
    if (problem.isEmpty())
        problem = readLayout(parser, switches, line);
    if (problem.isEmpty())
        problem = readColours(parser, switches, line);
    if (problem.isEmpty())
        problem = readBackLines(parser.values(switches.backprint), line, remarks);
    if (problem.isEmpty())
        problem = readListing(parser, switches, line);
    if (problem.isEmpty())
        problem = contradiction(parser, switches, line);
    if (!problem.isEmpty())
        return wrong(problem + QLatin1Char(' ') + Switches::seeHelp());
    if (line.listing.what != Listing::none)
        return {line, {}, kExitPrinted, remarks};
    if (line.request.files.isEmpty() && unusable.isEmpty())
        return wrong(Switches::noFile() + QLatin1Char(' ') + Switches::seeHelp());
    QStringList usable;
    for (const QString& path : line.request.files) {
        if (const QString sentence = fileProblem(path); !sentence.isEmpty())
            unusable.append(sentence);
        else
            usable.append(path);
    }
    if (!unusable.isEmpty() && (usable.isEmpty() || !line.request.skipBroken))
        return wrong(unusable.join(QLatin1Char('\n')), kExitFailed);
    line.request.files = usable;
    remarks.append(unusable);
    return {line, {}, kExitPrinted, remarks};
}

bool asksForWindow(const QStringList& arguments)
{
    const Switches switches;
    QCommandLineParser parser;
    parser.addOptions({switches.server,   switches.printer,      switches.option, switches.copies,
                       switches.pages,    switches.orientation,  switches.title,  switches.backprint,
                       switches.wait,     switches.noDialog,     switches.dryRun, switches.output,
                       switches.preset,   switches.photosPerJob, switches.parent, switches.resultJson,
                       switches.colourBy, switches.profile,      switches.intent, switches.noBlackPoint});
    parser.addOptions(switches.photos.all() + switches.sheets.all());
    QList<QCommandLineOption> windowless{parser.addHelpOption(), parser.addVersionOption(), switches.noDialog,
                                         switches.dryRun, switches.output};
    for (const ListingSwitch& listing : listingSwitches(switches)) {
        parser.addOption(listing.option);
        windowless.append(listing.option);
    }
    const QStringList ours = withoutToolkitsOwn(arguments);
    parser.parse(ours);
    const bool isWindowless =
        parser.isSet(QStringLiteral("help-all")) ||
        std::any_of(windowless.begin(), windowless.end(),
                    [&](const QCommandLineOption& option) { return parser.isSet(option); });
    // A wrong command line is told in words, wherever there is no display.
    return !isWindowless && parseCommandLine(ours).commandLine;
}

} // namespace halvern
