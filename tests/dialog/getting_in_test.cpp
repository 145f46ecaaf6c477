// SPDX-License-Identifier: MIT
// Passwords for printers, and printers that have no PPD.
#include "dialog/job/ipp_options.h"
#include "dialog/job/job_submitter.h"
#include "dialog/job/user_jobs.h"
#include "dialog/options/custom_paper.h"
#include "dialog/options/given_options.h"
#include "dialog/options/ipp_twins.h"
#include "dialog/options/loaded_trays.h"
#include "dialog/options/paper_sizes.h"
#include "dialog/options/ppd_model.h"
#include "dialog/program/option_listing.h"
#include "dialog/server/ipp_description.h"
#include "dialog/server/local_queue.h"
#include "dialog/window/access_dialogs.h"
#include "platform/foundation/units.h"
#include "platform/printing/cups_ppd.h"
#include "platform/printing/server_files.h"
#include "tests/support/scripted_server.h"
#include "tests/support/test.h"

#include <QDialog>

namespace halvern {
namespace {

cups::Ipp newCollection(std::initializer_list<std::pair<const char*, int>> members)
{
    cups::Ipp collection(ippNew());
    for (const auto& [name, value] : members)
        ippAddInteger(collection.get(), IPP_TAG_ZERO, IPP_TAG_INTEGER, name, value);
    return collection;
}

cups::Ipp newMedia(int width, int length, int margin)
{
    cups::Ipp media(ippNew());
    const cups::Ipp size = newCollection({{"x-dimension", width}, {"y-dimension", length}});
    ippAddCollection(media.get(), IPP_TAG_ZERO, "media-size", size.get());
    for (const char* side :
         {"media-left-margin", "media-right-margin", "media-top-margin", "media-bottom-margin"})
        ippAddInteger(media.get(), IPP_TAG_ZERO, IPP_TAG_INTEGER, side, margin);
    return media;
}

void addKeywords(ipp_t* attributes, const char* name, const std::vector<const char*>& values,
                 ipp_tag_t tag = IPP_TAG_KEYWORD)
{
    ippAddStrings(attributes, IPP_TAG_PRINTER, tag, name, int(values.size()), nullptr, values.data());
}

// A photo printer as it describes itself, with things in it that nobody should say.
cups::Ipp photoPrinter()
{
    cups::Ipp attributes(ippNew());
    ipp_t* a = attributes.get();
    ippAddString(a, IPP_TAG_PRINTER, IPP_TAG_MIMETYPE, "document-format-supported", nullptr,
                 "application/pdf");
    ippAddString(a, IPP_TAG_PRINTER, IPP_TAG_TEXT, "printer-make-and-model", nullptr, "Photo \"X\"\n*Bad: 1");
    const cups::Ipp media[] = {newMedia(21000, 29700, 300), newMedia(10160, 15240, 300),
                               newMedia(10160, 15240, 0), newMedia(-5, 15240, 0),
                               newMedia(10160, 15240, 2000000)};
    ipp_attribute_t* all = ippAddCollections(a, IPP_TAG_PRINTER, "media-col-database", 5, nullptr);
    for (int i = 0; i < 5; ++i)
        ippSetCollection(a, &all, i, media[i].get());
    ippAddCollection(a, IPP_TAG_PRINTER, "media-col-default", media[1].get());
    addKeywords(a, "media-type-supported",
                {"stationery", "photographic-glossy", "bad {word", "stationery", "My */\"canvas's\\, 34%"},
                IPP_TAG_NAME);
    addKeywords(a, "media-source-supported", {"manual", "main"});
    const int dots[] = {300, 600, INT_MAX};
    ippAddResolutions(a, IPP_TAG_PRINTER, "printer-resolution-supported", 3, IPP_RES_PER_INCH, dots, dots);
    addKeywords(a, "sides-supported", {"one-sided", "two-sided-long-edge"});
    addKeywords(a, "sides-default", {"one-sided"});
    const int qualities[] = {3, 4, 5};
    ippAddIntegers(a, IPP_TAG_PRINTER, IPP_TAG_ENUM, "print-quality-supported", 3, qualities);
    ippAddInteger(a, IPP_TAG_PRINTER, IPP_TAG_ENUM, "print-quality-default", 4);
    const cups::Ipp clash(ippNew());
    ippAddString(clash.get(), IPP_TAG_ZERO, IPP_TAG_KEYWORD, "sides", nullptr, "two-sided-long-edge");
    const cups::Ipp type(ippNew());
    ippAddString(type.get(), IPP_TAG_ZERO, IPP_TAG_KEYWORD, "media-type", nullptr, "photographic-glossy");
    ippAddCollection(clash.get(), IPP_TAG_ZERO, "media-col", type.get());
    const cups::Ipp small(ippNew());
    ippAddString(small.get(), IPP_TAG_ZERO, IPP_TAG_KEYWORD, "sides", nullptr, "two-sided-long-edge");
    const cups::Ipp nowhere(ippNew());
    ippAddString(nowhere.get(), IPP_TAG_ZERO, IPP_TAG_KEYWORD, "media-type", nullptr, "unheard-of");
    const ipp_t* papers[] = {nowhere.get(), media[1].get()};
    ippAddCollections(small.get(), IPP_TAG_ZERO, "media-col", 2, papers);
    const ipp_t* clashes[] = {clash.get(), small.get()};
    ippAddCollections(a, IPP_TAG_PRINTER, "job-constraints-supported", 2, clashes);
    // A roll, as wide as it is.
    const cups::Ipp roll = newCollection({{"x-dimension", 21000}});
    ippAddRange(roll.get(), IPP_TAG_ZERO, "y-dimension", 10000, 500000);
    ippAddCollection(a, IPP_TAG_PRINTER, "media-size-supported", roll.get());
    return attributes;
}

} // namespace

TEST(IppDescription, BecomesAModelWithSizesConflictsAndTheJobsOwnWords)
{
    const cups::Ipp attributes = photoPrinter();
    ASSERT_TRUE(isDescribed(attributes.get()));
    const std::optional<QByteArray> text = describedAsPpd(attributes.get(), true);
    ASSERT_TRUE(text);
    QString why;
    ppd::File file = ppd::parse(*text, &why);
    ASSERT_TRUE(file) << qPrintable(why) << text->constData();
    PpdModel model(std::move(file));
    EXPECT_TRUE(takesCollectionsAsText(model.file()));
    EXPECT_EQ(model.value(q("PageSize")), q("4x6"));
    EXPECT_EQ(model.choiceCount(q("PageSize")), 3);
    EXPECT_EQ(model.choiceCount(q("MediaType")), 3);
    const QString own = model.option(q("MediaType")).choices.value(2).keyword;
    const QString canvas = q("My */\"canvas's\\, 34%");
    EXPECT_EQ(choiceFor(model, {{}, canvas, {}}).type, own);
    const GivenOptions named = givenBy(OptionOrigin::typed, {{q("MediaType"), canvas}});
    EXPECT_EQ(understand(model.file(), named).options.value(0).value, own);
    const QStringList lines = optionLines(model, model.values());
    EXPECT_EQ(lines.filter(q("MediaType=")).join(q("")).count(q("canvas's")), 1) << "a name for its hash";
    EXPECT_TRUE(lines.filter(q("InputSlot= (default not known)")).size() == 1)
        << qPrintable(lines.join(q("\n")));
    EXPECT_EQ(model.value(q("InputSlot")), QString()) << "only the printer knows which one it is set to";
    EXPECT_EQ(model.choiceCount(q("Resolution")), 2);
    EXPECT_EQ(model.resolution(), kUsualResolution);
    const std::optional<PaperLimits> limits = paperLimits(model.file());
    EXPECT_TRUE(limits && limits->holds(QSizeF(595.276, 2000.0))) << "a page from the roll";
    EXPECT_EQ(model.choiceText(q("MediaType"), q("photographic-glossy")), q("Glossy photo paper"));
    EXPECT_FALSE(model.change(q("Duplex"), q("DuplexNoTumble")).accepted) << "4x6 is too small";
    EXPECT_TRUE(model.change(q("PageSize"), q("A4")).accepted);
    EXPECT_TRUE(model.change(q("Duplex"), q("DuplexNoTumble")).accepted);
    EXPECT_TRUE(model.change(q("Duplex"), q("None")).accepted);
    EXPECT_TRUE(model.change(q("MediaType"), q("photographic-glossy")).accepted);
    EXPECT_FALSE(model.change(q("Duplex"), q("DuplexNoTumble")).accepted);
    EXPECT_TRUE(model.change(q("PageSize"), q("4x6.Borderless")).accepted);
    EXPECT_EQ(model.sheet().imageable.toRect(), QRect(0, 0, 288, 432));
    const OptionValues sent = asIppOptions(model.file(), {{q("PageSize"), q("4x6.Borderless")},
                                                          {q("MediaType"), own},
                                                          {q("Duplex"), q("DuplexNoTumble")},
                                                          {q("cupsPrintQuality"), q("High")},
                                                          {q("copies"), q("2")}});
    EXPECT_EQ(sent, (OptionValues{{q("sides"), q("two-sided-long-edge")},
                                  {q("print-quality"), q("5")},
                                  {q("copies"), q("2")},
                                  {q("media-col"),
                                   q("{media-size={x-dimension=10160 y-dimension=15240} media-left-margin=0 "
                                     "media-right-margin=0 media-top-margin=0 media-bottom-margin=0 "
                                     "media-type='My */\"canvas\\'s\\\\, 34%'}")}}));
    const cups::Ipp job(ippNew());
    EXPECT_EQ(addJobOption(job.get(), sent.back(), Collections::whole), QString());
    ipp_attribute_t* type = ippFindAttribute(job.get(), "media-col/media-type", IPP_TAG_ZERO);
    EXPECT_EQ(q(ippGetString(type, 0, nullptr)), canvas);
    EXPECT_EQ(ippGetValueTag(type), IPP_TAG_NAME) << "it is no keyword";
    EXPECT_FALSE(describedAsPpd(cups::Ipp(ippNew()).get(), false));
}

TEST(GettingIn, APrinterOfAQueueWithoutADriverIsAskedWithoutTheUsersName)
{
    int port = 0;
    std::atomic<int> named = 0;
    const ScriptedServer server([&](ipp_t* request) {
        ipp_attribute_t* uri = ippFindAttribute(request, "printer-uri", IPP_TAG_URI);
        if (!q(ippGetString(uri, 0, nullptr)).endsWith(q("/ipp/print"))) {
            cups::Ipp queue = scriptedAnswer();
            const QByteArray device = "ipp://127.0.0.1:" + QByteArray::number(port) + "/ipp/print?waitjob=no";
            ippAddString(queue.get(), IPP_TAG_PRINTER, IPP_TAG_URI, "device-uri", nullptr,
                         device.constData());
            return queue;
        }
        named += ippFindAttribute(request, "requesting-user-name", IPP_TAG_ZERO) ? 1 : 0;
        cups::Ipp answer = scriptedAnswer();
        const cups::Ipp printer = photoPrinter();
        ippCopyAttributes(answer.get(), printer.get(), 0, nullptr, nullptr);
        return answer;
    });
    port = server.port();
    cups::Connection connection(cups::makeCancelFlag());
    QString problem;
    EXPECT_TRUE(describeByIpp(connection, q("Photo"), cups::makeCancelFlag(), &problem))
        << qPrintable(problem);
    EXPECT_EQ(named, 0);
}

TEST(GettingIn, APrintersOwnPasswordTravelsBesideTheJobAndIsAskedForInADialogOnce)
{
    QStringList received;
    ScriptedServer server([&](ipp_t* request) {
        ipp_attribute_t* info = ippFindAttribute(request, "auth-info", IPP_TAG_TEXT);
        if (ippGetOperation(request) == IPP_OP_CREATE_JOB) {
            for (int i = 0; i < ippGetCount(info); ++i)
                received.append(q(ippGetString(info, i, nullptr)));
        }
        cups::Ipp answer = scriptedAnswer();
        ippAddInteger(answer.get(), IPP_TAG_JOB, IPP_TAG_INTEGER, "job-id", 3);
        return answer;
    });
    QWidget window;
    const AccessDialogs dialogs(&window);
    JobRequest job{q("Office"), q("Photo"), {{q("copies"), q("1")}}};
    job.asked = {q("username"), q("password")};
    std::atomic<int> sent = 0;
    std::thread worker([&] {
        for (int i = 0; i < 2; ++i) {
            bool isGiven = false;
            const SubmitResult result = submitJob(
                job,
                [&] {
                    return std::optional(std::exchange(isGiven, true) ? QByteArray() : QByteArray("%PDF"));
                },
                cups::makeCancelFlag());
            sent += result.jobId == 3;
        }
        sent += 10;
    });
    QPointer<QDialog> dialog;
    ASSERT_TRUE(waitUntil([&] { return dialog = window.findChild<QDialog*>(q("loginDialog")); }));
    auto* button = dialog->findChild<QPushButton*>(q("signIn"));
    dialog->findChild<QLineEdit*>(q("loginName"))->setText(q("ann"));
    dialog->findChild<QLineEdit*>(q("loginPassword"))->setText(q("secret"));
    EXPECT_FALSE(button->isEnabled()); // the server is reached openly
    dialog->findChild<QCheckBox*>(q("sendOpenly"))->setChecked(true);
    button->click();
    EXPECT_TRUE(waitUntil([&] { return sent >= 10; }));
    worker.join();
    EXPECT_EQ(sent, 12);
    EXPECT_EQ(received, QStringList({q("ann"), q("secret"), q("ann"), q("secret")}));
}

TEST(GettingIn, ANewProgramAsksForTheJobsUnderTheNameThatTheServerWanted)
{
    QString asked;
    const ScriptedServer server([&](ipp_t* request) {
        asked = q(ippGetString(ippFindAttribute(request, "requesting-user-name", IPP_TAG_NAME), 0, nullptr));
        return scriptedAnswer();
    });
    cups::Connection connection(cups::makeCancelFlag());
    cups::keepJobOwner(connection.hostName(), q("ann"));
    askUserJobs(connection, {}, false);
    EXPECT_EQ(asked, q("ann"));
    cups::keepJobOwner(connection.hostName(), q(cupsUser()));
    EXPECT_EQ(cups::keptJobOwner(connection.hostName()), QString());
}

} // namespace halvern
