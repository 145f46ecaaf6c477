#include "dialog/job_options.h"

#include "dialog/cups_connection.h"
#include "dialog/job_status.h"
#include "dialog/printer_list.h"
#include "platform/printing/cups_ppd.h"

#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace halvern {

namespace {

QString u(const char* text)
{
    return QString::fromUtf8(text);
}

std::optional<QString> valueOf(const OptionValues& options, const char* key)
{
    for (const OptionValue& option : options) {
        if (option.key == u(key))
            return option.value;
    }
    return std::nullopt;
}

} // namespace

TEST(JobOptions, EveryChoiceIsThereAndASavedValueWinsOverAMark)
{
    JobInputs inputs;
    inputs.values = {
        {u("PageSize"), u("4x6")}, {u("PaperName"), u("Loaded")}, {u("SharpnessIntensity"), u("1.24")}};
    inputs.settings = {{u("PaperName"), u("Matte A4")}, {u("BindingWidth"), 12.5}, {u("EnableCVP1"), true}};
    inputs.copies = 3;
    const OptionValues merged = mergeJobOptions(inputs);
    EXPECT_EQ(valueOf(merged, "PageSize"), u("4x6")) << "a default too";
    EXPECT_EQ(valueOf(merged, "PaperName"), u("Matte A4"));
    EXPECT_EQ(valueOf(merged, "SharpnessIntensity"), u("1.24"));
    EXPECT_EQ(valueOf(merged, "BindingWidth"), u("12.5"));
    EXPECT_EQ(valueOf(merged, "EnableCVP1"), u("True"));
    EXPECT_EQ(valueOf(merged, "copies"), u("3"));
    EXPECT_EQ(valueOf(merged, "print-scaling"), u("none"));
}

TEST(JobOptions, WhatWouldContradictThePageIsLeftOut)
{
    JobInputs inputs;
    inputs.values = {{u("PageSize"), u("A4")}, {u("media"), u("Letter")}, {u("fit-to-page"), u("true")}};
    inputs.settings = {{u("sides"), u("two-sided-long-edge")}, {u("job-sheets"), u("None")}, {u("a.b.c"), 1}};
    const OptionValues merged = mergeJobOptions(inputs);
    for (const char* key : {"media", "fit-to-page", "sides", "a.b.c"})
        EXPECT_FALSE(valueOf(merged, key)) << key;
    EXPECT_EQ(valueOf(merged, "job-sheets"), u("none")) << "the server refuses every other spelling";
}

TEST(JobOptions, SavedIppOptionsAreUnderstoodInThePpdsTerms)
{
    const OptionValues options = inPpdTerms({{u("media"), u("A4,Roll")},
                                             {u("sides"), u("two-sided-short-edge")},
                                             {u("number-up"), u("4")},
                                             {u("PaperTone"), u("Warm")}});
    EXPECT_EQ(options,
              (OptionValues{
                  {u("PageSize"), u("A4")}, {u("Duplex"), u("DuplexTumble")}, {u("PaperTone"), u("Warm")}}));
}

TEST(JobOptions, TextGoesIntoTheRequestByteForByteWhateverItLooksLike)
{
    const QString long121 = QString(121, QChar(0x2264)); // 363 bytes
    for (const QString& text :
         {u("true"), u("{media=1}"), u("a\"b\\c d"), u("no"), u("1,2,3"), u(""), long121}) {
        const cups::Ipp request(ippNewRequest(IPP_OP_CREATE_JOB));
        EXPECT_EQ(addJobOption(request.get(), {u("CVP1"), text}), QString());
        ipp_attribute_t* sent = ippFindAttribute(request.get(), "CVP1", IPP_TAG_ZERO);
        ASSERT_TRUE(sent) << qPrintable(text);
        EXPECT_EQ(QString::fromUtf8(ippGetString(sent, 0, nullptr)), text);
        EXPECT_EQ(ippGetCount(sent), 1);
        EXPECT_EQ(ippValidateAttribute(sent), 1) << qPrintable(text);
    }
    const cups::Ipp request(ippNewRequest(IPP_OP_CREATE_JOB));
    EXPECT_FALSE(addJobOption(request.get(), {u("CVP1"), QString(2000, u'x')}).isEmpty())
        << "nothing is cut off";
    addJobOption(request.get(), {u("copies"), u("3")});
    EXPECT_EQ(ippGetInteger(ippFindAttribute(request.get(), "copies", IPP_TAG_INTEGER), 0), 3);
}

TEST(JobOptions, OptionsOnTheCommandLineNeedAKeyAndAnEqualsSign)
{
    EXPECT_EQ(parseOption(u("CVP1=a=b c")), (OptionValue{u("CVP1"), u("a=b c")}));
    EXPECT_EQ(parseOption(u("CVP1=")), (OptionValue{u("CVP1"), u("")}));
    for (const char* bad : {"", "=x", "PageSize", "a b=c"})
        EXPECT_FALSE(parseOption(u(bad))) << bad;
}

TEST(SavedOptions, TheUsersFileWinsOverTheSystems)
{
    const QTemporaryDir folder;
    const auto write = [&](const char* name, const QByteArray& text) {
        QFile file(folder.filePath(u(name)));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(text);
        return file.fileName();
    };
    const QString system =
        write("system", "Default Office PageSize=A4\nDest Tessarin PaperTone=Soft Resolution=300dpi\n");
    const QString user = write("user", "Dest Tessarin PaperTone='Very Warm'\nDefault Tessarin\nnonsense\n");
    const SavedOptions saved = readSavedOptions({system, user, u("/nowhere/lpoptions")});
    EXPECT_EQ(saved.defaultPrinter, u("Tessarin"));
    EXPECT_EQ(saved.byPrinter.value(u("Tessarin")),
              (OptionValues{{u("PaperTone"), u("Very Warm")}, {u("Resolution"), u("300dpi")}}));
}

TEST(JobWords, EveryStageHasASentenceWithTheJobAndWhatToDo)
{
    struct Case {
        JobStage stage;
        const char* words;
    };

    const Case cases[] = {{JobStage::completed, "Printed"},       {JobStage::held, "resume"},
                          {JobStage::stopped, "paper jam"},       {JobStage::blocked, "cupsenable"},
                          {JobStage::cancelled, "was cancelled"}, {JobStage::aborted, "error log"},
                          {JobStage::printing, "is printing"},    {JobStage::unknown, "does not say"}};
    for (const Case& c : cases) {
        JobStatus status;
        status.stage = c.stage;
        status.printerReasons = {u("media-jam-error"), u("cups-waiting-for-job-completed")};
        const QString sentence = jobSentence(status, u("Tessarin"), 17);
        EXPECT_TRUE(sentence.contains(u(c.words))) << qPrintable(sentence);
        EXPECT_TRUE(sentence.contains(u("17")) && sentence.contains(u("Tessarin"))) << qPrintable(sentence);
        EXPECT_FALSE(sentence.contains(u"%") || sentence.contains(u("cups-"))) << qPrintable(sentence);
    }
}

TEST(JobWords, APrintersStateNamesWhatIsWrong)
{
    PrinterInfo printer;
    EXPECT_EQ(stateText(printer), u("Ready"));
    printer.state = PrinterState::stopped;
    printer.reasons = {u("paused"), u("media-empty-error"), u("weird-thing-error"), u("harmless-report")};
    EXPECT_EQ(stateText(printer), u("Paused: out of paper, weird thing"));
    printer.isAccepting = false;
    EXPECT_TRUE(stateText(printer).startsWith(u("Does not accept jobs")));
}

} // namespace halvern
