// SPDX-License-Identifier: MIT
#pragma once

#include "dialog/options/back_lines.h"
#include "dialog/options/preset.h"
#include "dialog/program/photo_switches.h"
#include "dialog/program/sheet_switches.h"
#include "platform/foundation/display_text.h"

#include <QCommandLineOption>
#include <QCoreApplication>

namespace halvern {

inline constexpr int kLongestWait = 86400; // seconds

/// What the command line takes, and the sentences about what it does not. Any thread.
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
    QCommandLineOption choose{QStringLiteral("choose"),
                              tr("Where no file is named, ask for photos in a window first.")};
    QCommandLineOption parent{QStringLiteral("parent"),
                              tr("Show the dialog above another program's window: x11: and the window's "
                                 "number in hexadecimal digits."),
                              QStringLiteral("WINDOW")};
    QCommandLineOption resultJson{QStringLiteral("result-json"),
                                  tr("When the dialog has closed, write what was chosen and what became of "
                                     "it to standard output, as JSON.")};
    QCommandLineOption refresh{QStringLiteral("refresh"), tr("With --list-papers: ask the printer first.")};

    /// What the program takes, but for --help and --version.
    QList<QCommandLineOption> all() const
    {
        return QList<QCommandLineOption>{
                   server,      printer,    option,    copies,       pages,      orientation, reverse,
                   title,       backprint,  preset,    printDamaged, skipBroken, noDialog,    wait,
                   dryRun,      output,     verify,    listPrinters, listPapers, refresh,     listOptions,
                   listPresets, savePreset, json,      photosPerJob, choose,     parent,      resultJson,
                   colourBy,    profile,    intent,    noBlackPoint, jobs,       ended,       cancelJob,
                   holdJob,     releaseJob, repeatJob, signIn,       moveJob,    moveTo} +
               photos.all() + sheets.all();
    }

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
                  "  5  The job was sent, but the print server does not tell how it ended.\n"
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

} // namespace halvern
