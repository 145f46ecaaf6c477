// SPDX-License-Identifier: MIT
#include "dialog/program/listings.h"

#include "dialog/program/exit_status.h"
#include "dialog/program/option_listing.h"
#include "dialog/program/queue_state.h"
#include "dialog/server/printer_list.h"
#include "dialog/session/preset_use.h"
#include "dialog/session/quit_signals.h"
#include "platform/foundation/display_text.h"

#include <QCoreApplication>
#include <QJsonArray>
#include <QJsonDocument>

namespace halvern {

namespace {

struct ListingsWords {
    Q_DECLARE_TR_FUNCTIONS(Listings)
};

const char* wordOf(PrinterState state)
{
    switch (state) {
    case PrinterState::idle:
        return "idle";
    case PrinterState::processing:
        return "processing";
    case PrinterState::stopped:
        break;
    }
    return "stopped";
}

const char* wordOf(PresetKind kind)
{
    switch (kind) {
    case PresetKind::printerDefaults:
        return "printer-defaults";
    case PresetKind::lastUsed:
        return "last-used";
    case PresetKind::savedOptions:
        return "saved-options";
    case PresetKind::otherQueue:
        return "other-queue";
    case PresetKind::named:
        break;
    }
    return "named";
}

class ListingWriter {
public:
    ListingWriter(const ListingRequest& listing, const SessionRequest& request, QTextStream& out,
                  QTextStream& err)
        : listing_(listing), request_(request), out_(out), err_(err)
    {
    }

    int run()
    {
        if (listing_.what == Listing::printers)
            return writePrinters();
        Presets presets;
        const QueueState state = readQueueState(request_, presets, quitFlag());
        for (const QString& remark : state.remarks)
            writeLine(err_, remark);
        if (!state.model)
            return fail(state.problem);
        if (listing_.what == Listing::savePreset)
            return savePreset(state);
        if (listing_.what == Listing::options)
            writeOptions(state);
        else
            writePresets(presets);
        return kExitPrinted;
    }

private:
    int fail(const QString& sentence)
    {
        // Who has ended the program needs no sentences about conversations that this ended.
        if (!quitWasSignalled())
            writeLines(err_, sentence);
        return kExitFailed;
    }

    int writePrinters()
    {
        const PrinterAnswer answer = askPrinters(quitFlag());
        if (!answer.problem.isEmpty())
            return fail(answer.problem);
        QJsonArray entries;
        for (const PrinterInfo& printer : answer.printers) {
            const bool isDefault = printer.name == answer.defaultName;
            if (listing_.asJson)
                entries.append(
                    QJsonObject{{QStringLiteral("name"), printer.name},
                                {QStringLiteral("description"), printer.info},
                                {QStringLiteral("default"), isDefault},
                                {QStringLiteral("state"), QLatin1StringView(wordOf(printer.state))},
                                {QStringLiteral("reasons"), QJsonArray::fromStringList(printer.reasons)},
                                {QStringLiteral("accepting"), printer.isAccepting}});
            else
                writeLine(out_, isDefault
                                    ? ListingsWords::tr("%1 (default): %2 %3")
                                          .arg(printer.name, stateText(printer), descriptionOf(printer))
                                    : ListingsWords::tr("%1: %2 %3")
                                          .arg(printer.name, stateText(printer), descriptionOf(printer)));
        }
        if (listing_.asJson)
            writeJson(out_, QJsonDocument(entries));
        else if (answer.printers.empty())
            writeLine(err_, ListingsWords::tr("The print server has no printers."));
        return kExitPrinted;
    }

    static QString descriptionOf(const PrinterInfo& printer)
    {
        return printer.info == printer.name ? QString() : QStringLiteral("- ") + printer.info;
    }

    void writeOptions(const QueueState& state)
    {
        if (listing_.asJson)
            writeJson(out_,
                      QJsonDocument(QJsonObject{
                          {QStringLiteral("queue"), state.queue},
                          {QStringLiteral("makeAndModel"), makeAndModelOf(state.model->file())},
                          {QStringLiteral("options"), optionsAsJson(*state.model, state.printerDefaults)}}));
        else
            for (const QString& line : optionLines(*state.model, state.printerDefaults))
                writeLine(out_, line);
    }

    void writePresets(const Presets& presets)
    {
        QJsonArray entries;
        for (const PresetEntry& entry : presets.entries()) {
            if (!entry.isThere)
                continue;
            if (!listing_.asJson) {
                writeLine(out_, entry.kind == PresetKind::savedOptions
                                    ? ListingsWords::tr("%1 (from your saved options)").arg(entry.title())
                                    : entry.title());
                continue;
            }
            QJsonObject object = toJson(entry.preset);
            object.insert(QStringLiteral("name"), entry.title());
            object.insert(QStringLiteral("kind"), QLatin1StringView(wordOf(entry.kind)));
            entries.append(object);
        }
        if (listing_.asJson)
            writeJson(out_, QJsonDocument(entries));
    }

    int savePreset(const QueueState& state)
    {
        const PageChoice& pages = state.page.pages;
        if (const QString problem = choosePages(pages, 0).problem; !problem.isEmpty())
            return fail(problem);
        const bool choosesPages = !pages.ranges.isEmpty() || pages.parity != PageParity::all;
        Preset preset = capturePreset(*state.model, {}, state.page, state.printerDefaults,
                                      {request_.namesCopies, choosesPages, !request_.backLines.isEmpty()});
        preset.name = presetName(listing_.name);
        if (const QString problem = PresetFile(state.queue).save(preset); !problem.isEmpty())
            return fail(problem);
        writeLine(out_,
                  ListingsWords::tr("Saved the preset \"%1\" of \"%2\".").arg(preset.name, state.queue));
        return kExitPrinted;
    }

    const ListingRequest& listing_;
    const SessionRequest& request_;
    QTextStream& out_;
    QTextStream& err_;
};

} // namespace

void writeJson(QTextStream& out, const QJsonDocument& document)
{
    QString text;
    for (const QChar character : QString::fromUtf8(document.toJson(QJsonDocument::Indented)).trimmed()) {
        if (character.unicode() < 0x7f)
            text += character;
        else
            text += QStringLiteral("\\u%1").arg(uint(character.unicode()), 4, 16, QLatin1Char('0'));
    }
    writeLines(out, text);
}

int writeListing(const ListingRequest& listing, const SessionRequest& request, QTextStream& out,
                 QTextStream& err)
{
    return ListingWriter(listing, request, out, err).run();
}

} // namespace halvern
