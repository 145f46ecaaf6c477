// SPDX-License-Identifier: MIT
// What is saved stays old or new and whole, and what is read is whole or a reason, whichever call of the
// system fails or is the process's last: halvern-saves-and-readers FOLDER [SAMPLES SEED] FOLDER holds kept
// archives, *.plist. Each call is tried, or so many of each kind. A line for each kind of trial; status 1 if
// a trial failed.
#include "dialog/options/ppd_model.h"
#include "dialog/options/preset_file.h"
#include "dialog/page/layout_library.h"
#include "dialog/server/saved_options.h"
#include "platform/foundation/archive/keyed_unarchiver.h"
#include "platform/foundation/threads/work_queue.h"
#include "platform/foundation/user_defaults.h"
#include "portal/document_spool.h"
#include "portal/front_end.h"
#include "tests/faults/failing_system.h"

#include <QCoreApplication>
#include <QDataStream>
#include <QDir>
#include <QEventLoop>
#include <QTemporaryDir>

#include <algorithm>
#include <cstdio>
#include <random>

#include <fcntl.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

using namespace halvern;
using namespace halvern::failing;

using Over = std::function<void()>;

/// `run` calls its argument when what is tried is over. It answers a save's problem, or what a reader has
/// read, with "!" and the reason if that is nothing. `look`: what a save's folder holds now.
struct Task {
    const char* name;
    std::function<void()> prepare;
    std::function<QByteArray(const Over&)> run;
    std::function<QByteArray()> look = {};
};

bool wasTold = false; // a problem, in the log

QByteArray fileText(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("none");
}

void put(const QString& path, const QByteArray& text)
{
    QDir().mkpath(QFileInfo(path).path());
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(text) != text.size())
        qFatal("%s", qPrintable(path));
}

/// A folder of this program's own, made anew for each trial: never that of whoever runs it. In memory where
/// there is such a folder: each save is brought to the disk, which takes as long as the disk does.
QString home()
{
    static const QTemporaryDir folder([] {
        const QString memory = QStringLiteral("/dev/shm");
        return (QFileInfo(memory).isWritable() ? memory : QDir::tempPath()) +
               QStringLiteral("/halvern-faults-XXXXXX");
    }());
    if (!folder.isValid())
        qFatal("no folder can be made: %s", qPrintable(folder.errorString()));
    return folder.path() + QStringLiteral("/home");
}

void settleIn()
{
    const auto set = [](const char* variable, const char* name) {
        qputenv(variable, (home() + QLatin1StringView(name)).toLocal8Bit());
    };
    set("HOME", "");
    set("XDG_CONFIG_HOME", "/config");
    set("XDG_DATA_HOME", "/data");
    set("XDG_STATE_HOME", "/state");
    set("XDG_CACHE_HOME", "/cache");
    set("XDG_RUNTIME_DIR", "/run");
}

QByteArray shown(const Preset& preset)
{
    return presetText(toJson(preset));
}

QByteArray shown(const KeptPresets& kept)
{
    QByteArray text = kept.problem.isEmpty() ? QByteArray() : '!' + kept.problem.toUtf8();
    for (const Preset& preset : kept.presets)
        text += shown(preset);
    return text + (kept.lastUsed ? "last " + shown(*kept.lastUsed) : QByteArray());
}

Preset preset(const QString& name, const QString& size)
{
    Preset made;
    made.name = name;
    made.options = {{QStringLiteral("PageSize"), size}};
    return made;
}

Task presetTask(const char* name, const std::function<QString(const PresetFile&)>& change)
{
    const auto file = [] { return PresetFile(QStringLiteral("Photo")); };
    return {name,
            [file] {
                file().save(preset(QStringLiteral("Matte"), QStringLiteral("A4")));
                file().remember(preset({}, QStringLiteral("A5")));
            },
            [file, change](const Over& over) {
                const PresetFile own = file();
                const QString problem = change(own);
                over();
                return problem.toUtf8();
            },
            [file] { return shown(file().read()); }};
}

Task settingsTask()
{
    const auto set = [](const char* key, const char* value) {
        UserDefaults::standardUserDefaults().changeGlobal([&](QVariantMap& values) {
            values.insert(QString::fromLatin1(key), QString::fromLatin1(value));
        });
    };
    return {"the settings",
            [set] {
                set("Recent", "Photo");
                set("Paper", "A4");
            },
            [set](const Over& over) {
                wasTold = false;
                set("Paper", "A5");
                over();
                return QByteArray(wasTold ? "told" : "");
            },
            [] {
                QByteArray text;
                QDataStream stream(&text, QIODevice::WriteOnly);
                stream << UserDefaults::standardUserDefaults().persistentDomain(UserDefaults::globalDomain());
                return text.toHex();
            }};
}

Task layoutTask()
{
    const auto save = [](int columns) {
        LayoutLibrary library;
        Layout layout = *library.find(QStringLiteral("3x4"));
        layout.columns = columns;
        QString id;
        return library.save(layout, QStringLiteral("Mine"), &id);
    };
    return {"an own layout", [save] { save(2); },
            [save](const Over& over) {
                const QString problem = save(5);
                over();
                return problem.toUtf8();
            },
            [] { return fileText(LayoutLibrary::ownFolder() + QStringLiteral("/mine.json")); }};
}

Task exportTask()
{
    const auto path = [] { return home() + QStringLiteral("/exported.json"); };
    const auto save = [path](const char* size) {
        return exportPresets(path(), {preset(QStringLiteral("Matte"), QString::fromLatin1(size))});
    };
    return {"exported presets", [save] { save("A4"); },
            [save](const Over& over) {
                const QString problem = save("A5");
                over();
                return problem.toUtf8();
            },
            [path] { return fileText(path()); }};
}

Task frontEndTask()
{
    const auto frontEnd = [] {
        FrontEnd made;
        made.version = QVersionNumber(1, 18);
        made.desktops = {QStringLiteral("test")};
        made.portalFolders = {QStringLiteral("/nonexistent")};
        made.configFolders = {home() + QStringLiteral("/.config/xdg-desktop-portal")};
        return made;
    };
    const auto path = [frontEnd] {
        return frontEnd().configFolders.front() + QStringLiteral("/test-portals.conf");
    };
    return {"the portal's choice", [path] { put(path(), "[preferred]\ndefault=gtk\n"); },
            [frontEnd](const Over& over) {
                const FrontEndAnswer answer = enableInFrontEnd(frontEnd());
                over();
                return answer.isYes || fileText(frontEnd().configFolders.front() +
                                                QStringLiteral("/test-portals.conf"))
                                           .contains("tessarin")
                           ? QByteArray()
                           : answer.sentence.toUtf8();
            },
            [path] { return fileText(path()); }};
}

// A document is there while somebody holds it: it is "new" only in the process that spools it.
Task spoolTask()
{
    const auto source = [] { return home() + QStringLiteral("/document"); };
    return {"a spooled document",
            [source] { put(source(), "%PDF-1.4\n" + QByteArray(2'000'000, ' ') + "%%EOF\n"); },
            [source](const Over& over) {
                int count = 0;
                QCoreApplication app(count, nullptr);
                DocumentSpool spool;
                QEventLoop loop;
                QByteArray problem;
                QObject::connect(
                    &spool, &DocumentSpool::finished, &loop, [&](const SpooledDocument& document) {
                        over();
                        problem = document.problem.toUtf8();
                        if (document.path && fileText(*document.path) != fileText(source()))
                            problem.clear(), qFatal("spooled, and not whole");
                        if (document.path &&
                            (QFile::permissions(*document.path) & (QFile::ReadGroup | QFile::ReadOther)))
                            qFatal("readable by others");
                        loop.quit();
                    });
                const int file = open(QFile::encodeName(source()).constData(), O_RDONLY | O_CLOEXEC);
                spool.start(file, QStringLiteral("Title"));
                loop.exec();
                close(file);
                return problem;
            },
            [] {
                removeOldSpools();
                return QDir(qEnvironmentVariable("XDG_RUNTIME_DIR") + QStringLiteral("/halvern-print-portal"))
                    .entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot)
                    .join(QLatin1Char(' '))
                    .toUtf8();
            }};
}

std::vector<Task> saves()
{
    return {
        settingsTask(),
        presetTask("a preset",
                   [](const PresetFile& file) {
                       return file.save(preset(QStringLiteral("Gloss"), QStringLiteral("A3")));
                   }),
        presetTask("what was printed with",
                   [](const PresetFile& file) { return file.remember(preset({}, QStringLiteral("A3"))); }),
        exportTask(),
        layoutTask(),
        frontEndTask(),
        spoolTask()};
}

template <class Read, class Show> Task reader(const char* name, Read read, Show show)
{
    return {name, [] {},
            [read, show](const Over& over) {
                const auto value = read();
                over();
                return show(value);
            }};
}

struct ReadPpd {
    std::shared_ptr<PpdModel> model;
    QString why;
};

ReadPpd readPpd(const QByteArray& text)
{
    ReadPpd read;
    if (ppd::File file = ppd::parse(text, &read.why)) {
        read.model = PpdModel::make(std::move(file));
        read.why = QStringLiteral("no memory");
    }
    return read;
}

QByteArray shown(const ReadPpd& read)
{
    if (!read.model)
        return '!' + read.why.toUtf8();
    QByteArray text;
    for (const QString& key : read.model->keys()) {
        text += key.toUtf8() + '=' + read.model->value(key).toUtf8() + '\n';
        for (const ChoiceItem& choice : read.model->option(key).choices)
            text += choice.keyword.toUtf8() + ' ' + choice.text.toUtf8() + '\n';
    }
    return text;
}

constexpr char kPpd[] =
    "*PPD-Adobe: \"4.3\"\n*FormatVersion: \"4.3\"\n*FileVersion: \"1.0\"\n"
    "*LanguageVersion: English\n*LanguageEncoding: ISOLatin1\n*Manufacturer: \"Halvern\"\n"
    "*Product: \"(Test)\"\n*ModelName: \"Test\"\n*ShortNickName: \"Test\"\n"
    "*NickName: \"Test\"\n*PCFileName: \"TEST.PPD\"\n*PSVersion: \"(3010) 0\"\n"
    "*OpenGroup: Main/Main\n*OpenUI *PageSize/Size: PickOne\n*DefaultPageSize: A4\n"
    "*PageSize A4/A4: \"\"\n*PageSize A5/A5: \"\"\n*CloseUI: *PageSize\n"
    "*OpenUI *Tone/Tone: PickOne\n*DefaultTone: Warm\n*Tone Warm/Warm: \"\"\n"
    "*Tone Cold/Cold: \"\"\n*CloseUI: *Tone\n*CloseGroup: Main\n"
    "*UIConstraints: *PageSize A5 *Tone Cold\n*DefaultImageableArea: A4\n"
    "*ImageableArea A4: \"0 0 595 842\"\n*ImageableArea A5: \"0 0 420 595\"\n"
    "*DefaultPaperDimension: A4\n*PaperDimension A4: \"595 842\"\n"
    "*PaperDimension A5: \"420 595\"\n*TSPapers00000: \"YnBsaXN0\"\n";

std::vector<Task> readers(const QString& archives)
{
    std::vector<Task> all;
    const QDir folder(archives);
    for (const QString& name : folder.entryList({QStringLiteral("*.plist")}, QDir::Files, QDir::Name)) {
        const QByteArray archive = fileText(folder.filePath(name));
        all.push_back(reader(
            "an archive", [archive] { return KeyedUnarchiver::unarchiveDictionary(archive); },
            [](const KeyedUnarchiver::Result& result) {
                QByteArray text;
                QDataStream stream(&text, QIODevice::WriteOnly);
                if (result.root)
                    stream << *result.root;
                return result.root ? text : '!' + result.failure.toUtf8();
            }));
    }
    all.push_back(reader(
        "a PPD", [] { return readPpd(kPpd); }, [](const ReadPpd& read) { return shown(read); }));
    Task presets = reader(
        "presets", [file = std::make_shared<PresetFile>(QStringLiteral("Photo"))] { return file->read(); },
        [](const KeptPresets& kept) { return shown(kept); });
    presets.prepare = presetTask("", {}).prepare;
    all.push_back(presets);
    return all;
}

enum Ending { kWhole, kProblem, kNotReached, kPartial, kLeak, kSilent };

/// One trial in a process of its own.
int attempt(const Task& task, const QByteArray& whole, int calls, long at, How how)
{
    const auto run = [&](bool isArmed, long* seen) {
        const long before = halvern_failing_blocks();
        Ending ending = kNotReached;
        {
            if (isArmed)
                halvern_failing_arm(calls, at, how);
            const QByteArray said = task.run([&] { *seen = std::max(*seen, halvern_failing_disarm()); });
            if (task.look && (*seen >= at || how == kCount))
                ending = said.isEmpty() ? kWhole : kProblem;
            else if (*seen >= at)
                ending = said == whole ? kWhole : said.size() > 1 && said[0] == '!' ? kProblem : kPartial;
        }
        const bool leaks = !task.look && halvern_failing_blocks() > before;
        return leaks && ending < kPartial ? kLeak : ending;
    };
    const pid_t child = fork();
    if (child == 0) {
        long seen = 0;
        if (!task.look)
            run(false, &seen);
        seen = 0;
        _exit(run(true, &seen));
    }
    int status = 0;
    waitpid(child, &status, 0);
    return WIFEXITED(status) ? WEXITSTATUS(status) : 100 + WTERMSIG(status);
}

void prepare(const Task& task)
{
    QDir(home()).removeRecursively();
    QDir().mkpath(home() + QStringLiteral("/run"));
    QFile::setPermissions(home() + QStringLiteral("/run"),
                          QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    task.prepare();
}

long countCalls(const Task& task, int calls)
{
    int ends[2];
    if (pipe(ends) != 0)
        qFatal("no pipe");
    const pid_t child = fork();
    long seen = 0;
    if (child == 0) {
        if (!task.look)
            task.run([] {});
        halvern_failing_arm(calls, 0, kCount);
        task.run([&] { seen = std::max(seen, halvern_failing_disarm()); });
        (void)!write(ends[1], &seen, sizeof seen);
        _exit(0);
    }
    (void)!read(ends[0], &seen, sizeof seen);
    waitpid(child, nullptr, 0);
    close(ends[0]);
    close(ends[1]);
    return seen;
}

/// What is wrong with a trial's end; null if nothing.
const char* fault(const Task& task, int ending, const QByteArray& old, const QByteArray& whole, bool isKilled)
{
    if (ending == kPartial)
        return "neither whole nor a reason";
    if (ending == kLeak)
        return "memory left behind";
    if (ending >= 100 && !(isKilled && ending == 100 + SIGKILL))
        return "crashed";
    if (!task.look)
        return nullptr;
    const QByteArray now = task.look();
    if (now != old && now != whole)
        return "neither old nor new";
    if (ending == kWhole && now != whole)
        return "said to be saved, and it is not";
    return nullptr;
}

struct Tally {
    long trials = 0;
    long failed = 0;
};

Tally tryAll(const Task& task, int calls, How how, long samples, std::mt19937& random)
{
    prepare(task);
    const QByteArray old = task.look ? task.look() : QByteArray();
    const long count = countCalls(task, calls);
    const QByteArray whole = task.look ? task.look() : task.run([] {});
    Tally tally;
    const long trials = samples > 0 ? std::min(samples, count) : count;
    for (long i = 1; i <= trials; ++i) {
        const long at = samples > 0 && samples < count ? 1 + long(random() % size_t(count)) : i;
        if (task.look)
            prepare(task);
        const int ending = attempt(task, whole, calls, at, how);
        const char* wrong = fault(task, ending, old, whole, how == kKill || how == kTorn);
        // What a trial left behind must not be in the next one's way.
        if (!wrong && task.look && attempt(task, whole, kFileCalls, 1, kCount) != kWhole)
            wrong = "cannot be saved afterwards";
        ++tally.trials;
        tally.failed += wrong ? 1 : 0;
        if (wrong)
            std::printf("  %s, call %ld of %ld: %s (%d)\n", task.name, at, count, wrong, ending);
    }
    return tally;
}

} // namespace

int main(int argc, char** argv)
{
    if (argc != 2 && argc != 4) {
        std::fputs("usage: halvern-saves-and-readers ARCHIVES [SAMPLES SEED]\n", stderr);
        return 2;
    }
    qInstallMessageHandler([](QtMsgType type, const QMessageLogContext&, const QString& text) {
        wasTold = true;
        if (type == QtFatalMsg)
            std::fprintf(stderr, "%s\n", text.toUtf8().constData());
    });
    settleIn();
    const long samples = argc == 4 ? atol(argv[2]) : 0;
    std::mt19937 random(argc == 4 ? unsigned(atol(argv[3])) : 1U);

    const struct {
        const char* title;
        std::vector<Task> tasks;
        int calls;
        How how;
    } kinds[] = {
        {"saves, a call fails", saves(), kFileCalls, kOnce},
        {"saves, the disk is full from a write on", saves(), kWrites, kFull},
        {"saves, killed at a call", saves(), kFileCalls, kKill},
        {"saves, killed in a write", saves(), kWrites, kTorn},
        {"readers, a file call fails", readers(QString::fromLocal8Bit(argv[1])), kFileCalls, kOnce},
        {"readers, an allocation fails", readers(QString::fromLocal8Bit(argv[1])), kAllocations, kOnce},
    };

    long failed = 0;
    for (const auto& kind : kinds) {
        Tally whole;
        for (const Task& task : kind.tasks) {
            const Tally tally = tryAll(task, kind.calls, kind.how, samples, random);
            whole.trials += tally.trials;
            whole.failed += tally.failed;
        }
        std::printf("%s: %ld of %ld\n", kind.title, whole.trials - whole.failed, whole.trials);
        std::fflush(stdout);
        failed += whole.failed;
    }
    return failed > 0 ? 1 : 0;
}
