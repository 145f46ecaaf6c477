// SPDX-License-Identifier: MIT
#include "dialog/job/ipp_options.h"
#include "dialog/job/job_in_words.h"
#include "dialog/job/job_options.h"
#include "dialog/job/job_read_back.h"
#include "platform/printing/cups_ppd.h"
#include "tests/dialog/model_support.h"

#include <QLocale>

namespace halvern {
namespace {

constexpr char kForeign[] =
    "*PPD-Adobe: \"4.3\"\n*ModelName: \"Foreign\"\n"
    "*OpenUI *PageSize: PickOne\n*DefaultPageSize: A4\n"
    "*PageSize A4/A4 210 x 297 mm: \"\"\n*PageSize A4.Full/A4 210 x 297 mm Full: \"\"\n"
    "*PageSize Odd/101x149mm: \"\"\n*CloseUI: *PageSize\n"
    "*DefaultImageableArea: A4\n*ImageableArea A4: \"10 10 585 831\"\n"
    "*ImageableArea A4.Full: \"0 0 595 842\"\n*ImageableArea Odd: \"0 0 286.3 422.4\"\n"
    "*DefaultPaperDimension: A4\n*PaperDimension A4: \"595 842\"\n"
    "*PaperDimension A4.Full: \"595 842\"\n*PaperDimension Odd: \"286.3 422.4\"\n"
    "*OpenUI *MediaType: PickOne\n*DefaultMediaType: Plain\n"
    "*MediaType Plain/Plain Paper: \"\"\n*CloseUI: *MediaType\n"
    "*OpenUI *Resolution: PickOne\n*DefaultResolution: Auto\n"
    "*Resolution Auto/Automatic: \"\"\n*Resolution 720x360dpi/720 x 360 DPI: \"\"\n"
    "*CloseUI: *Resolution\n"
    "*OpenUI *Duplex/2-Sided: PickOne\n*DefaultDuplex: None\n*Duplex None/Off: \"\"\n"
    "*Duplex DuplexNoTumble/Long Edge: \"\"\n*CloseUI: *Duplex\n"
    "*OpenUI *Q/Quality: PickOne\n*DefaultQ: 1\n*Q 1/Normal: \"\"\n*Q 2/Best: \"\"\n"
    "*CloseUI: *Q\n";

struct Row {
    const char* options; // as on a command line, beside the defaults
    const char* words;
    int copies = 1;
    int pages = 1;
    std::vector<size_t> chosen = {0};
    bool isReversed = false;
};

QString told(const PpdModel& model, const Row& row, bool isOnPaper = true)
{
    JobInputs inputs{model.values(), {}, row.copies, row.pages, true};
    for (const QString& option : q(row.options).split(u' ', Qt::SkipEmptyParts))
        inputs.values.insert(option.section(u'=', 0, 0), option.section(u'=', 1));
    const JobInWords words = jobInWords(
        {model, JobValues(inputs), model.values(), row.pages, row.chosen, row.isReversed, isOnPaper});
    return words.parts.join(u'|') + u'|' + words.problem;
}

} // namespace

TEST(JobInWords, TellsWhatIsSentInTheOrderOfInterest)
{
    const auto tessarin = tessarinModel();
    const auto foreign = modelOf(kForeign);
    QLocale::setDefault(QLocale(QLocale::English, QLocale::Ireland));
    for (const Row& row :
         {Row{"", "10 × 15 cm|sheet: As Loaded|300 dpi|1 copy|"},
          Row{"PageSize=Roll1524x1016 PaperFeed=Roll EnableCVP1=True CVP1=Hello PaperName=gone",
              "15 × 10 cm|Gloss roll 152 mm|300 dpi|2 copies|text on the back|", 2},
          Row{"PageSize=4x6.Fullbleed PaperName=PhotoGloss102x152 EnableCVP1=True CVP1=",
              "10 × 15 cm borderless|sheet: Photo Gloss 102x152|300 dpi|1 copy|"},
          Row{"PageSize=Custom.100x149.5mm TwoSided=LongEdge",
              "100 × 149.5 mm|sheet: As Loaded|300 dpi|two-sided: Long Edge|3 pages|1 copy|",
              1,
              3,
              {0, 1, 2}},
          Row{"PageSize=Postcard PaperTone=Warm Gloss=2 job-sheets=standard,none job-hold-until=indefinite",
              "Postcard|sheet: As Loaded|300 dpi|1 copy|with a banner page|held on the queue|Tone: Warm|"}})
        EXPECT_EQ(told(*tessarin, row).toStdString(), row.words) << row.options;
    for (const Row& row :
         {Row{"", "210 × 297 mm|Plain Paper|1 copy|"},
          Row{"PageSize=A4.Full Resolution=720x360dpi Duplex=DuplexNoTumble Q=2",
              "210 × 297 mm borderless|Plain Paper|720 x 360 DPI|two-sided: Long Edge|1 copy|Quality: Best|"},
          Row{"PageSize=Odd",
              "101 × 149 mm|Plain Paper|pages 1-2, 4 of 4|last page first|1 copy|",
              1,
              4,
              {3, 1, 0},
              true}})
        EXPECT_EQ(told(*foreign, row).toStdString(), row.words) << row.options;
    EXPECT_TRUE(told(*tessarin, {"PageSize=A4", ""}, false).endsWith(q("|not enough paper for A4")));

    QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedStates));
    EXPECT_EQ(told(*tessarin, {"PaperFeed=Roll PageSize=5x7", ""}),
              QString::fromUtf8("5 × 7 in|Gloss roll 6 in|300 dpi|1 copy|"));
    QLocale::setDefault(QLocale::c());
}

TEST(JobReadBack, NamesWhatTheServerAddedAndChangedAndNoAccountOfItsOwn)
{
    const OptionValues sent{{q("PageSize"), q("4x6")},
                            {q("copies"), q("2")},
                            {q("CVP1"), q("a, \"b\"")},
                            {q("job-sheets"), q("none")},
                            {q("page-label"), q("")}};
    const cups::Ipp answer(ippNew());
    ippAddString(answer.get(), IPP_TAG_OPERATION, IPP_TAG_CHARSET, "attributes-charset", nullptr, "utf-8");
    ippAddInteger(answer.get(), IPP_TAG_JOB, IPP_TAG_INTEGER, "job-id", 7);
    ippAddInteger(answer.get(), IPP_TAG_JOB, IPP_TAG_INTEGER, "job-priority", 50);
    for (const OptionValue& option : sent)
        addJobOption(answer.get(), option);
    ipp_attribute_t* sheets = ippFindAttribute(answer.get(), "job-sheets", IPP_TAG_ZERO);
    ippSetString(answer.get(), &sheets, 1, "none");
    EXPECT_TRUE(compareJob(sent, answer.get()).isEqual());

    ippAddString(answer.get(), IPP_TAG_JOB, IPP_TAG_KEYWORD, "sides", nullptr, "two-sided-long-edge");
    OptionValues more = sent;
    ippAddResolution(answer.get(), IPP_TAG_JOB, "printer-resolution", IPP_RES_PER_INCH, 150, 150);
    more[1].value = q("3");
    more.append({q("PaperTone"), q("Warm")});
    const JobReadBack job = compareJob(more, answer.get());
    EXPECT_EQ(job.added,
              (OptionValues{{q("sides"), q("two-sided-long-edge")}, {q("printer-resolution"), q("150dpi")}}));
    EXPECT_EQ(job.changed, (QList<ChangedOption>{{q("copies"), q("3"), q("2")},
                                                 {q("PaperTone"), q("Warm"), std::nullopt}}));
    const QString sentence = readBackSentence(job, 7);
    for (const char* part : {"sides=two-sided-long-edge", "copies=2", "PaperTone=Warm"})
        EXPECT_TRUE(sentence.contains(q(part))) << qPrintable(sentence);
    EXPECT_FALSE(readBackSentence({}, 7).isEmpty());
}

} // namespace halvern
