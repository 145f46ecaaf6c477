// SPDX-License-Identifier: MIT
// Reads PPDs as the dialog does, marks each choice of each option once as a user would, and looks that what
// is marked goes together after each step and at the end. Usage: mark-choices PPD... or a list on standard
// input; scripts/check-everything runs it on what Debian's driver packages hold. Exit status 1 if a PPD
// fails.
#include "dialog/options/ppd_model.h"
#include "platform/printing/cups_ppd.h"

#include <QStringList>

#include <algorithm>
#include <cstdio>
#include <ctime>
#include <iostream>
#include <string>

namespace {

using namespace halvern;

struct Totals {
    int files = 0;
    int unreadable = 0;
    int failures = 0;
    qint64 options = 0;
    qint64 choices = 0;
    qint64 refused = 0;
    qint64 helped = 0; // what changed other options too
    double slowestChoice = 0.0;
    double slowestReasons = 0.0;
};

// Of this thread: what else the machine does is no fault of a PPD's.
double milliseconds()
{
    timespec now{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &now);
    return double(now.tv_sec) * 1e3 + double(now.tv_nsec) / 1e6;
}

void fail(Totals& totals, const std::string& path, const QString& what)
{
    ++totals.failures;
    std::printf("%s: %s\n", path.c_str(), qPrintable(what));
}

QStringList clashing(const PpdModel& model)
{
    QStringList keys;
    for (const QString& key : model.keys()) {
        const QString value = model.value(key);
        if (!model.isInstallable(key) && !value.isEmpty() && !model.isKept(key) &&
            !model.goesWithTheRest(key, value))
            keys.append(key);
    }
    return keys;
}

void markEach(PpdModel& model, const QString& key, Totals& totals, const std::string& path)
{
    const bool wasClean = ppdConflicts(model.file()) == 0;
    double started = milliseconds();
    const QHash<QString, QString> clashes = model.clashes(key);
    totals.slowestReasons = std::max(totals.slowestReasons, milliseconds() - started);
    for (const ChoiceItem& choice : model.option(key).choices) {
        const QMap<QString, QString> before = model.values();
        started = milliseconds();
        const ChangeResult result = model.choose(key, choice.keyword, {});
        totals.slowestChoice = std::max(totals.slowestChoice, milliseconds() - started);
        ++totals.choices;
        totals.refused += result.accepted ? 0 : 1;
        totals.helped += result.sideChanges.isEmpty() ? 0 : 1;
        if (!result.accepted && (model.values() != before || result.refusal.isEmpty()))
            fail(totals, path,
                 key + u'=' + choice.keyword + QStringLiteral(": refused, and something changed"));
        else if (result.accepted && before.value(key) != choice.keyword &&
                 !model.goesWithTheRest(key, choice.keyword))
            fail(totals, path, key + u'=' + choice.keyword + QStringLiteral(": accepted, and it clashes"));
        // libcups has an opinion of its own.
        else if (wasClean && result.accepted && ppdConflicts(model.file()) > 0)
            fail(totals, path, key + u'=' + choice.keyword + QStringLiteral(": libcups counts a conflict"));
    }
}

void drive(const std::string& path, Totals& totals)
{
    ppd::File file = ppd::open(QString::fromStdString(path));
    if (!file) {
        ++totals.unreadable;
        return;
    }
    ++totals.files;
    PpdModel model(std::move(file));
    const QStringList atFirst = clashing(model);
    for (const QString& key : model.keys()) {
        if (model.isInstallable(key))
            continue;
        ++totals.options;
        markEach(model, key, totals, path);
    }
    for (const QString& key : clashing(model)) {
        if (!atFirst.contains(key))
            fail(totals, path, key + QStringLiteral(": clashes in the end"));
    }
    model.putBack(model.keys(), {});
}

} // namespace

int main(int argc, char** argv)
{
    Totals totals;
    for (int i = 1; i < argc; ++i)
        drive(argv[i], totals);
    std::string line;
    while (argc == 1 && std::getline(std::cin, line))
        drive(line, totals);
    std::printf("%d PPDs (%d not readable), %lld options, %lld choices marked: %lld with other changes, %lld "
                "refused\nslowest choice %.1f ms, slowest list of reasons %.1f ms; %d failures\n",
                totals.files, totals.unreadable, totals.options, totals.choices, totals.helped,
                totals.refused, totals.slowestChoice, totals.slowestReasons, totals.failures);
    return totals.failures == 0 && totals.files > 0 ? 0 : 1;
}
