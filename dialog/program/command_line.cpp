// SPDX-License-Identifier: MIT
#include "dialog/program/command_line.h"

#include "dialog/page/photo_problem.h"
#include "dialog/photo/decoder_process.h"
#include "dialog/program/given_files.h"
#include "dialog/program/photo_switches.h"
#include "dialog/program/sheet_switches.h"
#include "dialog/program/switches.h"
#include "dialog/session/colour_management.h"
#include "platform/foundation/display_text.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QFileInfo>
#include <QRegularExpression>

#include <algorithm>

namespace halvern {

namespace {

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
    line.request.server = parser.value(switches.server);
    if (parser.isSet(switches.server) && !isServerName(line.request.server))
        return Switches::badServer(line.request.server);
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

// Everything that is given. The first sentence about what is wrong; empty if nothing is.
QString readAll(const QCommandLineParser& parser, const Switches& switches, ParsedCommandLine& parsed,
                QStringList& unusable)
{
    CommandLine& line = *parsed.commandLine;
    line.dryRun = parser.isSet(switches.dryRun);
    line.verify = parser.isSet(switches.verify);
    line.output = parser.value(switches.output);
    line.showDialog = !parser.isSet(switches.noDialog) && !line.dryRun && !parser.isSet(switches.output);
    line.request.printDamaged = parser.isSet(switches.printDamaged);
    line.request.skipBroken = parser.isSet(switches.skipBroken);
    line.parent = readWindowName(parser.value(switches.parent));
    line.resultJson = parser.isSet(switches.resultJson);
    line.request.files = givenFiles(parser.positionalArguments(), &unusable);
    QString problem = readValues(parser, switches, line);
    for (const auto read : {readLayout, readColours}) {
        if (problem.isEmpty())
            problem = read(parser, switches, line);
    }
    if (problem.isEmpty())
        problem = readBackLines(parser.values(switches.backprint), line, parsed.remarks);
    if (problem.isEmpty())
        problem = readListing(parser, switches, line);
    return problem.isEmpty() ? contradiction(parser, switches, line) : problem;
}

} // namespace

ParsedCommandLine parseCommandLine(const QStringList& arguments)
{
    const Switches switches;
    QCommandLineParser parser;
    parser.setApplicationDescription(Switches::about());
    parser.addOptions(switches.all());
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
    ParsedCommandLine parsed{CommandLine(), {}, kExitPrinted};
    CommandLine& line = *parsed.commandLine;
    QStringList unusable;
    const QString problem = readAll(parser, switches, parsed, unusable);
    if (!problem.isEmpty())
        return wrong(problem + QLatin1Char(' ') + Switches::seeHelp());
    if (line.listing.what != Listing::none)
        return parsed;
    const bool canAsk = parser.isSet(switches.choose) && line.showDialog;
    if (line.request.files.isEmpty() && unusable.isEmpty() && !canAsk)
        return wrong(Switches::noFile() + QLatin1Char(' ') + Switches::seeHelp());
    QStringList missing;
    for (const QString& path : line.request.files) {
        if (const QString sentence = fileProblem(path); !sentence.isEmpty())
            missing.append(sentence);
    }
    const QStringList problems = unusable + missing;
    if (!problems.isEmpty() && (missing.size() == line.request.files.size() || !line.request.skipBroken))
        return wrong(problems.join(QLatin1Char('\n')), kExitFailed);
    // Those that are missing keep their places among the others, and are told when they are read.
    parsed.remarks.append(unusable);
    return parsed;
}

bool asksForWindow(const QStringList& arguments)
{
    const Switches switches;
    QCommandLineParser parser;
    parser.addOptions(switches.all());
    QList<QCommandLineOption> windowless{parser.addHelpOption(), parser.addVersionOption(), switches.noDialog,
                                         switches.dryRun, switches.output};
    for (const ListingSwitch& listing : listingSwitches(switches))
        windowless.append(listing.option);
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
