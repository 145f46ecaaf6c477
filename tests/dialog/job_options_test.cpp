// SPDX-License-Identifier: MIT
#include "dialog/job/ipp_options.h"
#include "dialog/job/job_options.h"
#include "dialog/server/saved_options.h"

#include "dialog/job/job_status.h"
#include "dialog/server/printer_list.h"
#include "platform/printing/cups_connection.h"
#include "platform/printing/cups_ppd.h"
#include "tests/support/test.h"

#include <sys/stat.h>

namespace halvern {
namespace {

std::optional<QString> valueOf(const OptionValues& options, const char* key)
{
    for (const OptionValue& option : options) {
        if (option.key == q(key))
            return option.value;
    }
    return std::nullopt;
}

} // namespace

TEST(JobOptions, EveryChoiceIsThereAndASavedValueWinsOverAMark)
{
    JobInputs inputs;
    inputs.values = {
        {q("PageSize"), q("4x6")}, {q("PaperName"), q("Loaded")}, {q("SharpnessIntensity"), q("1.24")}};
    inputs.settings = {{q("PaperName"), q("Matte A4")}, {q("BindingWidth"), 12.5}, {q("EnableCVP1"), true}};
    inputs.copies = 3;
    inputs.pages = 2;
    const OptionValues merged = mergeJobOptions(inputs);
    EXPECT_EQ(valueOf(merged, "PageSize"), q("4x6")) << "a default too";
    EXPECT_EQ(valueOf(merged, "PaperName"), q("Matte A4"));
    EXPECT_EQ(valueOf(merged, "SharpnessIntensity"), q("1.24"));
    EXPECT_EQ(valueOf(merged, "BindingWidth"), q("12.5"));
    EXPECT_EQ(valueOf(merged, "EnableCVP1"), q("True"));
    EXPECT_EQ(valueOf(merged, "copies"), q("3"));
    EXPECT_EQ(valueOf(merged, "Collate"), q("True"));
    inputs.isCollated = false;
    EXPECT_EQ(valueOf(mergeJobOptions(inputs), "Collate"), q("False"));
}

TEST(JobOptions, WhatWouldContradictThePageIsLeftOut)
{
    JobInputs inputs;
    inputs.values = {{q("PageSize"), q("A4")}, {q("media"), q("Letter")}, {q("fit-to-page"), q("true")},
                     {q("ppi"), q("72")},      {q("number-up"), q("2")},  {q("Duplex"), q("None")}};
    inputs.pages = 4;
    inputs.settings = {{q("sides"), q("two-sided-long-edge")}, {q("job-sheets"), q("None")}, {q("a.b.c"), 1}};
    const OptionValues merged = mergeJobOptions(inputs);
    for (const char* key : {"media", "fit-to-page", "ppi", "sides", "a.b.c"})
        EXPECT_FALSE(valueOf(merged, key)) << key;
    const std::pair<const char*, const char*> neutral[] = {
        {"number-up", "1"},        {"orientation-requested", "3"},
        {"landscape", "false"},    {"mirror", "false"},
        {"page-set", "all"},       {"print-scaling", "none"},
        {"outputorder", "normal"}, {"page-ranges", "1-4"}};
    for (const auto& [key, value] : neutral)
        EXPECT_EQ(valueOf(merged, key), q(value)) << "else the queue's default would turn or scale the page";
    EXPECT_EQ(valueOf(merged, "job-sheets"), q("none")) << "the server refuses every other spelling";
    inputs.values.insert(q("OutputOrder"), q("Reverse"));
    EXPECT_EQ(valueOf(mergeJobOptions(inputs), "OutputOrder"), q("Reverse")) << "the printer's own";
    EXPECT_FALSE(valueOf(mergeJobOptions(inputs), "outputorder")) << "filters take the one for the other";
}

TEST(JobOptions, TextGoesIntoTheRequestByteForByteWhateverItLooksLike)
{
    const QString long121 = QString(121, QChar(0x2264)); // 363 bytes
    for (const QString& text :
         {q("true"), q("{media=1}"), q("a\"b\\c d"), q("no"), q("1,2,3"), q(""), long121}) {
        const cups::Ipp request(ippNewRequest(IPP_OP_CREATE_JOB));
        EXPECT_EQ(addJobOption(request.get(), {q("CVP1"), text}), QString());
        ipp_attribute_t* sent = ippFindAttribute(request.get(), "CVP1", IPP_TAG_ZERO);
        ASSERT_TRUE(sent) << qPrintable(text);
        EXPECT_EQ(QString::fromUtf8(ippGetString(sent, 0, nullptr)), text);
        EXPECT_EQ(ippGetCount(sent), 1);
        EXPECT_EQ(ippValidateAttribute(sent), 1) << qPrintable(text);
    }
    const cups::Ipp request(ippNewRequest(IPP_OP_CREATE_JOB));
    EXPECT_FALSE(addJobOption(request.get(), {q("CVP1"), QString(2000, u'x')}).isEmpty())
        << "nothing is cut off";
    addJobOption(request.get(), {q("copies"), q("3")});
    EXPECT_EQ(ippGetInteger(ippFindAttribute(request.get(), "copies", IPP_TAG_INTEGER), 0), 3);
}

TEST(JobOptions, OptionsOnTheCommandLineNeedAKeyAndAnEqualsSign)
{
    EXPECT_EQ(parseOption(q("CVP1=a=b c")), (OptionValue{q("CVP1"), q("a=b c")}));
    EXPECT_EQ(parseOption(q("CVP1=")), (OptionValue{q("CVP1"), q("")}));
    EXPECT_EQ(parseOption(q("fit-to-page")), (OptionValue{q("fit-to-page"), q("true")}));
    for (const char* bad : {"", "=x", "PageSize", "a b=c"})
        EXPECT_FALSE(parseOption(q(bad))) << bad;
}

TEST(SavedOptions, TheUsersFileWinsOverTheSystems)
{
    const QTemporaryDir folder;
    const QString system =
        writeFile(folder.filePath(q("system")),
                  "Default Office PageSize=A4\nDest Tessarin PaperTone=Soft Resolution=300dpi\n");
    const QString user = writeFile(folder.filePath(q("user")),
                                   "Dest Tessarin PaperTone='Very Warm'\nDefault Tessarin/photo Gloss=1\n"
                                   "nonsense\nDefault a\n");
    const QString pipe = folder.filePath(q("pipe")); // opening it would wait for a writer
    ASSERT_EQ(mkfifo(QFile::encodeName(pipe).constData(), 0600), 0);
    const SavedOptions saved = readSavedOptions({system, user, q("/nowhere/lpoptions"), pipe});
    EXPECT_EQ(saved.defaultPrinter, q("a")) << "not what the word Default holds of it";
    EXPECT_TRUE(saved.optionsOf(q("a")).isEmpty());
    const OptionValues own{{q("PaperTone"), q("Very Warm")}, {q("Resolution"), q("300dpi")}};
    EXPECT_EQ(saved.optionsOf(q("Tessarin")), own);
    EXPECT_EQ(saved.optionsOf(q("Tessarin/photo")), (own + OptionValues{{q("Gloss"), q("1")}}));
}

TEST(SavedOptions, AVariableNamesThePrinterUnlessItSaysLp)
{
    const QTemporaryDir folder;
    writeFile(folder.filePath(q("lpoptions")), "Default Office\n");
    const char* cases[][3] = {
        {"", "", "Office"}, {"lp", "", "Office"}, {"lp", "Lab", "Lab"}, {"Tessarin", "Lab", "Lab"}};
    qputenv("CUPS_SERVERROOT", folder.path().toUtf8());
    qputenv("HOME", folder.path().toUtf8());
    for (const auto& [printer, lpdest, wanted] : cases) {
        qputenv("PRINTER", printer);
        qputenv("LPDEST", lpdest);
        EXPECT_EQ(readSavedOptions().defaultPrinter, q(wanted)) << printer << ' ' << lpdest;
    }
    qunsetenv("PRINTER");
    qunsetenv("LPDEST");
    qunsetenv("CUPS_SERVERROOT");
}

TEST(JobWords, EveryStageHasASentenceAndARestingJobAWayOn)
{
    const struct {
        JobStage stage;
        const char* words;
        Remedy remedy = Remedy::none;
        const char* advice = "";
    } cases[] = {{JobStage::completed, "Printed"},
                 {JobStage::held, "is held", Remedy::releaseJob, "-H resume"},
                 {JobStage::stopped, "(paper jam, Filter failed)", Remedy::resumePrinter, "cupsenable"},
                 {JobStage::blocked, "is paused (paper jam, Filter", Remedy::resumePrinter, "cancel Tess"},
                 {JobStage::cancelled, "was cancelled"},
                 {JobStage::aborted, "error log"},
                 {JobStage::printing, "is printing on \"Tessarin\" (paper jam, paused)."},
                 {JobStage::gone, "has left the queue"},
                 {JobStage::lost, "not on the print server any more"},
                 {JobStage::unknown, "does not answer"}};

    for (const auto& c : cases) {
        JobStatus status;
        status.stage = c.stage;
        status.printerReasons = {q("media-jam-error"), q("paused"), q("cups-waiting-for-job-completed")};
        status.message = q("Filter failed");
        const QString sentence = jobSentence(status, q("Tessarin"), 17);
        EXPECT_TRUE(sentence.contains(q(c.words))) << qPrintable(sentence);
        EXPECT_TRUE(sentence.contains(q("17")) && sentence.contains(q("Tessarin"))) << qPrintable(sentence);
        EXPECT_FALSE(sentence.contains(u"%") || sentence.contains(q("cups-"))) << qPrintable(sentence);
        EXPECT_EQ(remedyFor(status), c.remedy) << c.words;
        const QString advice = jobAdvice(status, q("Tessarin"), 17);
        EXPECT_EQ(advice.isEmpty(), c.remedy == Remedy::none);
        EXPECT_TRUE(advice.contains(q(c.advice))) << qPrintable(advice);
        for (const char* chatter :
             {"Printing page 1, 7%", "Color Manager: no profiles specified in PPD", "Paused"}) {
            status.message = q(chatter);
            EXPECT_FALSE(jobSentence(status, q("Tessarin"), 17).contains(q(chatter))) << chatter;
        }
    }
}

TEST(JobWords, APrintersStateNamesWhatIsWrong)
{
    PrinterInfo printer;
    EXPECT_EQ(stateText(printer), q("Ready"));
    EXPECT_EQ(stateSeverity(printer), Severity::report);
    printer.reasons = {q("toner-low"), q("connecting-to-device")};
    EXPECT_EQ(stateText(printer), q("Ready: toner is low, connecting"));
    EXPECT_EQ(stateSeverity(printer), Severity::warning);
    printer.reasons = {q("marker-supply-empty")};
    EXPECT_EQ(stateText(printer), q("Needs attention: out of ink"));
    printer.state = PrinterState::stopped;
    printer.reasons = {q("paused"), q("media-empty-error"), q("weird-thing-error"), q("harmless-report")};
    EXPECT_EQ(stateText(printer), q("Paused: out of paper, weird thing"));
    printer.message = q("Call <b>Ann</b>.");
    EXPECT_EQ(stateText(printer), q("Paused: out of paper, weird thing, Call <b>Ann</b>"));
    printer.message = q("Rejecting Jobs");
    EXPECT_EQ(stateText(printer), q("Paused: out of paper, weird thing"));
    printer.isAccepting = false;
    EXPECT_TRUE(stateText(printer).startsWith(q("Does not accept jobs")));
}

} // namespace halvern
