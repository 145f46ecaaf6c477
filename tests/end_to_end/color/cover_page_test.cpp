// SPDX-License-Identifier: MIT
// The Cover Page replacement alone in the roster, on queues that print a banner page by themselves.
#include "panels/simple/cover_page_panel.h"
#include "platform/printing/print_settings.h"
#include "tests/support/real_dialog.h"

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
    const QString queue = q("Banner");
    ASSERT_TRUE(server.addQueue(queue, {}, {}, {q("--option"), q("job-sheets-default=standard,none")}))
        << qPrintable(server.error());
    ASSERT_TRUE(server.addQueue(q("Plain")));
    const QTemporaryDir folder;
    const QString photo = makeTestPhoto(folder.filePath(q("photo.jpg")));

    Roster empty(false);
    RealDialog without({queue, {}, {photo}}, empty);
    ASSERT_TRUE(without.isReady());
    const int bannered = without.print();
    EXPECT_EQ(jobAttribute(bannered, "job-sheets").value(0), q("standard"));
    EXPECT_EQ(sheetsOf(server, bannered), 2) << "the queue does print a banner page if nobody keeps it away";

    Roster roster(true);
    RealDialog with({queue, {}, {photo}}, roster);
    ASSERT_TRUE(with.isReady());
    ASSERT_EQ(with.session.panels().size(), 1u);
    selectAndWait(with.session, q("Plain"));
    selectAndWait(with.session, queue);
    const int job = with.print();
    QVariant saved;
    with.session.hostPrintSettings()->getValue(q("job-sheets"), saved);
    EXPECT_EQ(saved.toString(), q("None"));
    EXPECT_EQ(jobAttribute(job, "job-sheets").value(0), q("none"));
    EXPECT_EQ(sheetsOf(server, job), 1);
}

} // namespace halvern
