// SPDX-License-Identifier: MIT
#include "dialog/program/queue_state.h"

#include "dialog/server/local_queue.h"
#include "dialog/server/printer_list.h"
#include "dialog/server/queue_ppd.h"
#include "dialog/session/preset_use.h"
#include "dialog/session/starting_options.h"

#include <QCoreApplication>

#include <algorithm>

namespace halvern {

namespace {

// The sentences of what was asked for and cannot be had.
QStringList refusalsOf(const StartingOptions& start, const QString& preset, QStringList& remarks)
{
    QStringList refusals;
    QList<LeftOut> ofPreset;
    for (const LeftOut& left : start.leftOut) {
        if (left.origin == OptionOrigin::typed)
            refusals.append(left.sentence);
        else if (left.origin == OptionOrigin::remembered)
            ofPreset.append(left);
        else
            remarks.append(left.sentence);
    }
    if (!ofPreset.isEmpty())
        refusals.append(leftOutSentence(preset, ofPreset));
    return refusals;
}

// Its URI; empty if there is none of that name.
QString findOnTheNetwork(const QString& name, const cups::CancelFlag& cancelled)
{
    const std::vector<PrinterInfo> all = discoverPrinters(kDiscoveryMilliseconds, cancelled);
    const auto printer = std::ranges::find(all, name, &PrinterInfo::name);
    return printer == all.end() ? QString() : printer->deviceUri;
}

PageSettings pageOf(const SessionRequest& request, const PageWishes& wishes, const PresetEntry* preset)
{
    PageSetup page(request);
    if (preset)
        page.set(startingPage(page.settings(), preset->preset, request, wishes));
    page.takeWishes(wishes);
    return page.settings();
}

} // namespace

FoundQueue findQueue(const QString& wanted, const cups::CancelFlag& cancelled)
{
    const PrinterAnswer answer = askPrinters(cancelled);
    if (!answer.problem.isEmpty())
        return {{}, {}, false, answer.problem};
    const QString named = startingPrinter(wanted, readSavedOptions());
    FoundQueue found{queueOf(named), named == queueOf(named) ? QString() : named, true, {}};
    if (found.name.isEmpty())
        found.name = usualPrinter(answer.defaultName, answer.printers);
    for (const PrinterInfo& printer : answer.printers) {
        if (printer.name == found.name) {
            found.isAccepting = printer.isAccepting;
            return found;
        }
    }
    if (!found.name.isEmpty())
        found.madeFrom = findOnTheNetwork(found.name, cancelled);
    if (found.madeFrom.isEmpty())
        found.problem = unknownPrinterText(found.name, answer.printers);
    return found;
}

QueueState readQueueState(const SessionRequest& request, Presets& presets, const cups::CancelFlag& cancelled)
{
    QueueState state;
    const FoundQueue found = findQueue(request.printer, cancelled);
    state.queue = found.name;
    state.problem = found.problem;
    if (!found.madeFrom.isEmpty())
        state.problem = createLocalQueue(found.name, found.madeFrom, cancelled);
    if (!state.problem.isEmpty())
        return state;
    QueuePpd ppd = fetchQueuePpd(found.name, cancelled);
    state.problem = ppd.problem;
    if (!ppd.file)
        return state;
    auto model = std::make_unique<PpdModel>(std::move(*ppd.file));
    const SavedOptions saved = readSavedOptions();
    const KeptPresets kept = PresetFile(found.name).read();
    if (!kept.problem.isEmpty())
        state.remarks.append(kept.problem);
    presets.take(found.name, model->file(), kept, saved);
    presets.readOthers();
    state.printerDefaults = printerDefaults(*model, ppd.defaults);
    presets.setPrinterDefaults(state.printerDefaults);
    const PresetEntry* preset = request.preset.isEmpty() ? nullptr : presets.find(request.preset);
    if (!request.preset.isEmpty() && !preset) {
        state.problem = presets.unknownText(request.preset);
        return state;
    }
    const QString instance = found.instance.isEmpty() ? found.name : found.instance;
    const StartingOptions start = applyGiven(
        *model,
        givenBy(OptionOrigin::queue, ppd.defaults) + givenBy(OptionOrigin::saved, saved.optionsOf(instance)),
        preset ? &preset->preset : nullptr, givenBy(OptionOrigin::typed, request.options));
    QStringList problems = refusalsOf(start, preset ? preset->title() : QString(), state.remarks);
    problems += applyBackLines(*model, request.backLines, found.name).refusals;
    state.page = pageOf(request, start.page, preset);
    state.problem = problems.join(QLatin1Char('\n'));
    if (problems.isEmpty())
        state.model = std::move(model);
    return state;
}

} // namespace halvern
