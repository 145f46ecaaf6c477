// SPDX-License-Identifier: MIT
// Passwords for printers, and printers that have no PPD.
#include "dialog/job/job_submitter.h"
#include "dialog/options/ipp_twins.h"
#include "dialog/options/paper_sizes.h"
#include "dialog/options/ppd_model.h"
#include "dialog/server/ipp_description.h"
#include "dialog/window/access_dialogs.h"
#include "platform/printing/cups_ppd.h"
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

void addKeywords(ipp_t* attributes, const char* name, const std::vector<const char*>& values)
{
    ippAddStrings(attributes, IPP_TAG_PRINTER, IPP_TAG_KEYWORD, name, int(values.size()), nullptr,
                  values.data());
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
                {"stationery", "photographic-glossy", "*/bad: word", "stationery"});
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
    ippAddCollection(a, IPP_TAG_PRINTER, "job-constraints-supported", clash.get());
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
    EXPECT_EQ(model.choiceCount(q("MediaType")), 2);
    EXPECT_EQ(model.choiceText(q("MediaType"), q("photographic-glossy")), q("Glossy photo paper"));
    EXPECT_TRUE(model.change(q("MediaType"), q("photographic-glossy")).accepted);
    EXPECT_FALSE(model.change(q("Duplex"), q("DuplexNoTumble")).accepted);
    EXPECT_TRUE(model.change(q("PageSize"), q("4x6.Borderless")).accepted);
    EXPECT_EQ(model.sheet().imageable.toRect(), QRect(0, 0, 288, 432));
    const OptionValues sent = asIppOptions(model.file(), {{q("PageSize"), q("4x6.Borderless")},
                                                          {q("MediaType"), q("stationery")},
                                                          {q("Duplex"), q("DuplexNoTumble")},
                                                          {q("cupsPrintQuality"), q("High")},
                                                          {q("copies"), q("2")}});
    EXPECT_EQ(
        sent,
        (OptionValues{
            {q("sides"), q("two-sided-long-edge")},
            {q("print-quality"), q("5")},
            {q("copies"), q("2")},
            {q("media-col"),
             q("{media-size={x-dimension=10160 y-dimension=15240} media-left-margin=0 "
               "media-right-margin=0 media-top-margin=0 media-bottom-margin=0 media-type=stationery}")}}));
    EXPECT_FALSE(describedAsPpd(cups::Ipp(ippNew()).get(), false));
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

} // namespace halvern
