// SPDX-License-Identifier: MIT
// halvern-papers: packs a printer's papers into the form that the print dialog reads, and shows what is
// packed.

#include "platform/foundation/archive/keyed_unarchiver.h"
#include "platform/foundation/display_text.h"
#include "printer/papers/catalogue_archive.h"
#include "printer/papers/catalogue_json.h"
#include "printer/papers/paper_change.h"
#include "printer/papers/paper_list.h"
#include "printer/papers/ppd_archive.h"
#include "printer/papers/ppd_catalogue.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QFile>
#include <QSaveFile>

#include <cstdio>
#include <sys/stat.h>
#include <unistd.h>

using namespace halvern;

namespace {

constexpr int kFailed = 1;
constexpr int kMisused = 2;

int complain(const QString& text, int status = kFailed)
{
    std::fprintf(stderr, "halvern-papers: %s\n", qUtf8Printable(terminalText(text)));
    return status;
}

std::optional<QByteArray> contentOf(const QString& path)
{
    QFile file(path);
    if (file.open(QIODevice::ReadOnly)) {
        const QByteArray content = file.readAll();
        if (file.error() == QFileDevice::NoError)
            return content;
    }
    complain(QStringLiteral("cannot read %1: %2").arg(path, file.errorString()));
    return std::nullopt;
}

int writeOut(const QByteArray& bytes)
{
    QFile out;
    const bool written =
        out.open(stdout, QIODevice::WriteOnly) && out.write(bytes) == bytes.size() && out.flush();
    return written ? 0 : complain(QStringLiteral("cannot write the output: %1").arg(out.errorString()));
}

/// Replaces the file in one step. Mode and owner stay; whoever may not give files away becomes the owner.
int replaceFile(const QString& path, const QByteArray& content)
{
    struct stat old = {};
    const bool known = ::stat(QFile::encodeName(path).constData(), &old) == 0;
    QSaveFile file(path);
    bool written = file.open(QIODevice::WriteOnly) && file.write(content) == content.size() && file.flush();
    if (written && known && ::fchown(file.handle(), old.st_uid, old.st_gid) == 0)
        written = ::fchmod(file.handle(), old.st_mode & 07777) == 0;
    if (!written || !file.commit())
        return complain(QStringLiteral("cannot write %1: %2").arg(path, file.errorString()));
    return 0;
}

int packIntoPpd(const QString& path, const QList<PpdAttribute>& attributes)
{
    const std::optional<QByteArray> ppd = contentOf(path);
    if (!ppd)
        return kFailed;
    if (!ppd->startsWith("*PPD-Adobe:"))
        return complain(QStringLiteral("%1 is not a PPD file; give --ppd the printer's own").arg(path));
    return replaceFile(path, ppdWithAttributes(*ppd, attributes));
}

int pack(const QString& source, const QCommandLineParser& options)
{
    const std::optional<QByteArray> json = contentOf(source);
    if (!json)
        return kFailed;
    const PaperListResult papers = readPaperList(*json);
    if (!papers.list)
        return complain(QStringLiteral("%1: %2").arg(source, papers.failure));
    const QByteArray archive = archiveOfCatalogue(papers.list->records);
    if (const QString failure = KeyedUnarchiver::unarchiveDictionary(archive).failure; !failure.isEmpty())
        return complain(QStringLiteral("%1: no dialog would read what this packs (%2)").arg(source, failure));
    if (options.isSet(QStringLiteral("archive")))
        return writeOut(archive);
    const QList<PpdAttribute> attributes = attributesOf(*papers.list);
    if (options.isSet(QStringLiteral("filter-lines")))
        return writeOut(filterLines(attributes));
    if (options.isSet(QStringLiteral("ppd")))
        return packIntoPpd(options.value(QStringLiteral("ppd")), attributes);
    return writeOut(ppdLines(attributes));
}

/// The archive in an archive file or a PPD. Complains if there is none.
std::optional<QByteArray> archiveOf(const QString& source)
{
    std::optional<QByteArray> content = contentOf(source);
    if (!content || !content->startsWith("*PPD-Adobe:"))
        return content;
    const PpdArchive archive = archiveInPpd(source);
    if (!archive.unreadable.isEmpty())
        complain(
            QStringLiteral("%1 is not a PPD file that CUPS can read: %2").arg(source, archive.unreadable));
    else if (!archive.present)
        complain(QStringLiteral("%1 holds no papers; halvern-papers pack FILE.json --ppd %1 puts some in")
                     .arg(source));
    else if (!archive.bytes)
        std::fputs("corrupt: what the PPD holds of it is not base64\n", stderr);
    return archive.bytes;
}

int show(const QString& source)
{
    const std::optional<QByteArray> archive = archiveOf(source);
    if (!archive)
        return kFailed;
    const KeyedUnarchiver::Result catalogue = KeyedUnarchiver::unarchiveDictionary(*archive);
    if (!catalogue.root) {
        std::fprintf(stderr, "%s\n", qUtf8Printable(terminalText(catalogue.failure)));
        return kFailed;
    }
    QFile out;
    out.open(stdout, QIODevice::WriteOnly);
    writeCatalogueJson(*catalogue.root, out);
    return out.flush() && out.error() == QFileDevice::NoError
               ? 0
               : complain(QStringLiteral("cannot write the output: %1").arg(out.errorString()));
}

/// take-out and load: changes the list, one paper or group after the other, and writes it if all went well.
int change(const QString& path, const QStringList& which, const QString& stockPath)
{
    std::optional<QByteArray> list = contentOf(path);
    const std::optional<QByteArray> stock =
        stockPath.isEmpty() ? std::optional(QByteArray()) : contentOf(stockPath);
    if (!list || !stock)
        return kFailed;
    for (const QString& paper : which) {
        QString failure;
        list = stockPath.isEmpty() ? papersTakenOut(*list, paper, failure)
                                   : papersLoaded(*list, *stock, paper, failure);
        if (!list)
            return complain(QStringLiteral("%1: %2").arg(path, failure));
    }
    return replaceFile(path, *list);
}

} // namespace

int main(int argc, char** argv)
{
    QCoreApplication app(argc, argv);
    QCommandLineParser parser;
    parser.setApplicationDescription(QStringLiteral(
        "Packs a printer's papers into the catalogue that the print dialog reads, and shows catalogues.\n\n"
        "  halvern-papers pack FILE.json                 print the catalogue as PPD attributes\n"
        "  halvern-papers pack FILE.json --ppd PPD       put it into the PPD file, in place of the one "
        "there\n"
        "  halvern-papers show FILE                      print the catalogue in an archive or a PPD as "
        "JSON\n"
        "  halvern-papers load FILE.json PAPER... --stock LIST.json\n"
        "                                                add papers to a list, as another list has them\n"
        "  halvern-papers take-out FILE.json PAPER...    remove papers from a list\n\n"
        "PAPER is a sheet's name, a roll's width in millimetres, or sheets, rolls or all."));
    parser.addPositionalArgument(QStringLiteral("command"), QStringLiteral("pack, show, load or take-out"));
    parser.addPositionalArgument(QStringLiteral("file"),
                                 QStringLiteral("a paper list, or an archive or PPD"));
    parser.addPositionalArgument(QStringLiteral("papers"), QStringLiteral("load, take-out: which"),
                                 QStringLiteral("[paper...]"));
    const QCommandLineOption help(QStringList{QStringLiteral("h"), QStringLiteral("help")},
                                  QStringLiteral("Show this help."));
    parser.addOptions(
        {help,
         {QStringLiteral("ppd"), QStringLiteral("pack: the PPD file to change."), QStringLiteral("PPD")},
         {QStringLiteral("stock"), QStringLiteral("load: the list that has the papers."),
          QStringLiteral("LIST.json")},
         {QStringLiteral("archive"), QStringLiteral("pack: print the bare archive (binary).")},
         {QStringLiteral("filter-lines"),
          QStringLiteral("pack: print the lines with which a CUPS filter reports the attributes.")}});
    const bool understood = parser.parse(QCoreApplication::arguments());
    if (parser.isSet(help))
        return writeOut(parser.helpText().toUtf8());
    if (!understood)
        return complain(parser.errorText() + QStringLiteral(" See halvern-papers --help."), kMisused);
    const QStringList arguments = parser.positionalArguments();
    const QString command = arguments.value(0);
    const qsizetype outputs = parser.optionNames().size();
    const QString stock = parser.value(QStringLiteral("stock"));
    if (command == QStringLiteral("load")
            ? outputs != 1 || stock.isEmpty()
            : outputs > (command == QStringLiteral("pack") ? 1 : 0) || !stock.isEmpty())
        return complain(QStringLiteral("pack takes one of --ppd, --archive and --filter-lines; load takes "
                                       "--stock; the others take none."),
                        kMisused);
    if (arguments.size() > 2 && (command == QStringLiteral("load") || command == QStringLiteral("take-out")))
        return change(arguments.at(1), arguments.mid(2), stock);
    if (arguments.size() == 2 && command == QStringLiteral("pack"))
        return pack(arguments.at(1), parser);
    if (arguments.size() == 2 && command == QStringLiteral("show"))
        return show(arguments.at(1));
    return complain(
        QStringLiteral("say \"pack FILE.json\" or \"show FILE\", for example; see halvern-papers --help."),
        kMisused);
}
