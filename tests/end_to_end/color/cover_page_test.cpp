// The Cover Page replacement alone in the roster, on queues that print a banner page by themselves.
#include "panels/simple/unavailable_panel.h"
#include "platform/printing/cups_ppd.h"
#include "platform/printing/print_settings.h"
#include "tests/support/observers.h"
#include "tests/support/real_dialog.h"

#include <gtest/gtest.h>

#include <memory>

namespace halvern {

namespace {

class Roster : public PanelSource {
public:
    explicit Roster(bool hasPanel) : hasPanel_(hasPanel) {}

    PanelList panels(const QString&, const std::shared_ptr<HostCallback>& host, QString*) override
    {
        return hasPanel_ ? PanelList{makePanel<RZUnavailablePDEHalvern>(host)} : PanelList();
    }

private:
    bool hasPanel_;
};

// The banner pages that CUPS noted for a job.
QStringList jobSheetsOf(int job)
{
    ipp_t* request = ippNewRequest(IPP_OP_GET_JOB_ATTRIBUTES);
    const QByteArray uri = "ipp://localhost/jobs/" + QByteArray::number(job);
    ippAddString(request, IPP_TAG_OPERATION, IPP_TAG_URI, "job-uri", nullptr, uri.constData());
    ippAddString(request, IPP_TAG_OPERATION, IPP_TAG_NAME, "requesting-user-name", nullptr, cupsUser());
    const std::unique_ptr<ipp_t, decltype(&ippDelete)> answer(
        cupsDoRequest(CUPS_HTTP_DEFAULT, request, "/jobs"), &ippDelete);
    ipp_attribute_t* sheets = ippFindAttribute(answer.get(), "job-sheets", IPP_TAG_ZERO);
    QStringList names;
    for (int i = 0; sheets && i < ippGetCount(sheets); ++i)
        names.append(QString::fromUtf8(ippGetString(sheets, i, nullptr)));
    return names;
}

void selectAndWait(DialogSession& session, const QString& queue)
{
    session.selectPrinter(queue);
    ASSERT_TRUE(waitUntil([&] { return session.canPrint(); }));
}

} // namespace

TEST(CoverPageEndToEnd, TheReplacementKeepsTheQueuesBannerPageAway)
{
    useBuiltBundle();
    PrivateCups server;
    ASSERT_TRUE(server.isRunning()) << qPrintable(server.error());
    const QString queue = QStringLiteral("Banner");
    ASSERT_TRUE(server.addQueue(
        queue, {}, {}, {QStringLiteral("--option"), QStringLiteral("job-sheets-default=standard,none")}))
        << qPrintable(server.error());
    ASSERT_TRUE(server.addQueue(QStringLiteral("Plain")));
    const QTemporaryDir folder;
    const QString photo = makeTestPhoto(folder.filePath(QStringLiteral("photo.jpg")));

    Roster empty(false);
    RealDialog without({queue, {}, {photo}}, empty);
    ASSERT_TRUE(without.isReady());
    const int bannered = without.print();
    EXPECT_EQ(jobSheetsOf(bannered).value(0), QStringLiteral("standard"));
    EXPECT_EQ(sheetsOf(server, bannered), 2) << "the queue does print a banner page if nobody keeps it away";

    Roster roster(true);
    RealDialog with({queue, {}, {photo}}, roster);
    ASSERT_TRUE(with.isReady());
    ASSERT_EQ(with.session.panels().size(), 1u);
    selectAndWait(with.session, QStringLiteral("Plain"));
    selectAndWait(with.session, queue);
    const int job = with.print();
    QVariant saved;
    with.session.hostPrintSettings()->getValue(QStringLiteral("job-sheets"), saved);
    EXPECT_EQ(saved.toString(), QStringLiteral("None"));
    EXPECT_EQ(jobSheetsOf(job).value(0), QStringLiteral("none"));
    EXPECT_EQ(sheetsOf(server, job), 1);
}

} // namespace halvern
