// SPDX-License-Identifier: MIT
#include "dialog/program/completion.h"

#include "dialog/job/user_jobs.h"
#include "dialog/options/ppd_model.h"
#include "dialog/page/layout_library.h"
#include "dialog/program/exit_status.h"
#include "dialog/program/queue_state.h"
#include "dialog/program/switches.h"
#include "dialog/server/printer_list.h"
#include "dialog/session/quit_signals.h"
#include "platform/foundation/display_text.h"

#include <QCommandLineParser>

#include <algorithm>
#include <array>

namespace halvern {

namespace {

/// Switches whose values are words of ours.
struct FixedWords {
    const char* name;
    const char* words;
};

constexpr std::array<FixedWords, 4> kFixedWords{{{"orientation", "portrait landscape"},
                                                 {"color-by", "printer dialog"},
                                                 {"intent", "perceptual relative saturation absolute"},
                                                 {"turn", "0 90 180 270"}}};

struct DeedSwitch {
    const char* name;
    JobDeed deed;
};

constexpr std::array<DeedSwitch, 6> kDeeds{{{"cancel", JobDeed::cancel},
                                            {"hold", JobDeed::hold},
                                            {"release", JobDeed::release},
                                            {"again", JobDeed::printAgain},
                                            {"sign-in", JobDeed::signIn},
                                            {"move", JobDeed::move}}};

bool isCalled(const QCommandLineOption& option, const char* name)
{
    return option.names().contains(QLatin1StringView(name));
}

QString dashed(const QString& name)
{
    return (name.size() == 1 ? QStringLiteral("-") : QStringLiteral("--")) + name;
}

class Completer {
public:
    explicit Completer(const QStringList& words) : current_(words.isEmpty() ? QString() : words.back())
    {
        QCommandLineParser parser;
        parser.addOptions(switches_.all());
        const QStringList before = words.first(std::max<qsizetype>(words.size() - 1, 0));
        parser.parse(QStringList{QString()} + before);
        request_.printer = parser.value(switches_.printer);
        // An unfinished command line names a server in two words, of which only one may be there yet.
        if (const QString server = parser.value(switches_.server); !server.isEmpty())
            qputenv("CUPS_SERVER", server.toUtf8());
        readWords(before);
    }

    Completion run() const
    {
        if (onlyFiles_)
            return {{}, true};
        if (pending_)
            return startingWith(current_, valuesOf(*pending_, current_));
        const qsizetype equals = current_.indexOf(QLatin1Char('='));
        if (current_.startsWith(QLatin1StringView("--")) && equals > 0) {
            const QCommandLineOption* option = takesValue(current_.left(equals));
            return option ? ofJoinedValue(*option, current_.left(equals + 1), current_.mid(equals + 1))
                          : Completion();
        }
        if (current_.startsWith(QLatin1Char('-')))
            return startingWith(current_, {names(), false});
        return {{}, true};
    }

private:
    // Which switch waits for its value at the end of these words, and whether switches are over.
    void readWords(const QStringList& before)
    {
        for (const QString& word : before) {
            if (pending_)
                pending_ = nullptr;
            else if (word == QLatin1StringView("--"))
                onlyFiles_ = true;
            else if (!onlyFiles_)
                pending_ = takesValue(word);
        }
    }

    const QCommandLineOption* takesValue(const QString& word) const
    {
        for (const QCommandLineOption& option : all_) {
            const QStringList names = option.names();
            const bool isIt =
                std::ranges::any_of(names, [&](const QString& name) { return dashed(name) == word; });
            if (isIt && !option.valueName().isEmpty())
                return &option;
        }
        return nullptr;
    }

    static Completion startingWith(const QString& beginning, Completion all)
    {
        all.candidates.removeIf(
            [&](const Candidate& candidate) { return !candidate.word.startsWith(beginning); });
        return all;
    }

    Completion ofJoinedValue(const QCommandLineOption& option, const QString& name,
                             const QString& value) const
    {
        Completion all = startingWith(value, valuesOf(option, value));
        for (Candidate& candidate : all.candidates)
            candidate.word.prepend(name);
        return all;
    }

    QList<Candidate> names() const
    {
        QList<Candidate> found{{QStringLiteral("--help")}, {QStringLiteral("--version")}};
        for (const QCommandLineOption& option : all_)
            for (const QString& name : option.names())
                found.append({dashed(name), option.description()});
        return found;
    }

    Completion valuesOf(const QCommandLineOption& option, const QString& begun) const
    {
        if (isCalled(option, "printer") || isCalled(option, "to"))
            return {queues()};
        if (isCalled(option, "option"))
            return {begun.contains(QLatin1Char('=')) ? choices(begun.section(QLatin1Char('='), 0, 0))
                                                     : keys()};
        if (isCalled(option, "preset") || isCalled(option, "save-preset"))
            return {presets(isCalled(option, "preset"))};
        if (isCalled(option, "layout"))
            return {layouts()};
        for (const DeedSwitch& row : kDeeds)
            if (isCalled(option, row.name))
                return {jobs(row.deed)};
        for (const FixedWords& row : kFixedWords)
            if (isCalled(option, row.name))
                return {plain(QString::fromLatin1(row.words).split(QLatin1Char(' ')))};
        return {{}, isCalled(option, "output") || isCalled(option, "profile")};
    }

    static QList<Candidate> plain(const QStringList& words)
    {
        QList<Candidate> found;
        for (const QString& word : words)
            found.append({word});
        return found;
    }

    static QList<Candidate> queues()
    {
        QList<Candidate> found;
        for (const PrinterInfo& printer : askPrinters(quitFlag()).printers)
            found.append({printer.name, printer.info});
        return found;
    }

    QList<Candidate> keys() const
    {
        Presets presets;
        const QueueState state = readQueueState(request_, presets, quitFlag());
        QList<Candidate> found;
        for (const QString& key : state.model ? state.model->keys() : QStringList())
            found.append({key + QLatin1Char('='), state.model->option(key).text});
        return found;
    }

    QList<Candidate> choices(const QString& key) const
    {
        Presets presets;
        const QueueState state = readQueueState(request_, presets, quitFlag());
        QList<Candidate> found;
        if (state.model && state.model->keys().contains(key))
            for (const ChoiceItem& choice : state.model->option(key).choices)
                found.append({key + QLatin1Char('=') + choice.keyword, choice.text});
        return found;
    }

    QList<Candidate> presets(bool withOthers) const
    {
        Presets presets;
        readQueueState(request_, presets, quitFlag());
        QList<Candidate> found;
        for (const PresetEntry& entry : presets.entries())
            if (entry.isThere && (withOthers || entry.kind == PresetKind::named))
                found.append({entry.kind == PresetKind::printerDefaults || entry.kind == PresetKind::lastUsed
                                  ? entry.title()
                                  : entry.preset.name});
        return found;
    }

    static QList<Candidate> layouts()
    {
        const LayoutLibrary library;
        QList<Candidate> found;
        for (const Layout& layout : library.layouts())
            found.append({layout.id, layout.name});
        return found;
    }

    QList<Candidate> jobs(JobDeed deed) const
    {
        cups::Connection server(quitFlag());
        QList<Candidate> found;
        for (const UserJob& job : askUserJobs(server, request_.printer, true).jobs)
            if (isPossible(deed, job))
                found.append({QString::number(job.id), job.queue + QStringLiteral(": ") + job.title});
        return found;
    }

    Switches switches_;
    QList<QCommandLineOption> all_ = switches_.all();
    QString current_;
    SessionRequest request_;
    const QCommandLineOption* pending_ = nullptr; ///< in all_
    bool onlyFiles_ = false;
};

// What would end the line, or the word before its description.
bool canBeWritten(const QString& word)
{
    return std::ranges::all_of(word, [](QChar character) { return character.isPrint(); });
}

} // namespace

Completion complete(const QStringList& words)
{
    return Completer(words).run();
}

int writeCompletion(const QStringList& words, QTextStream& out)
{
    const Completion completion = complete(words);
    for (const Candidate& candidate : completion.candidates) {
        if (!canBeWritten(candidate.word))
            continue;
        const QString description = displayText(candidate.description).simplified();
        out << candidate.word;
        if (!description.isEmpty())
            out << QLatin1Char('\t') << description;
        out << QLatin1Char('\n');
    }
    if (completion.takesFiles)
        out << QStringLiteral("/\n");
    out.flush();
    return kExitPrinted;
}

} // namespace halvern
