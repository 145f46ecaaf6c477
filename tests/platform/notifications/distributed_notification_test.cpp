// SPDX-License-Identifier: MIT
#include "platform/foundation/notifications/distributed_notification_center.h"
#include "platform/foundation/notifications/notification_bus.h"
#include "tests/support/private_bus.h"
#include "tests/support/scripted_server.h"

#include <QThread>

#include <thread>

namespace halvern {
namespace {

const QString kNote = q("VLXPrinterPaperDidUpdateNotification");
const QString kUri = q("halvern://virtual/photo?width=10%22");

} // namespace

class DistributedNotificationTest : public testing::Test {
protected:
    DistributedNotificationCenter::Handler note(const char* observer)
    {
        return [this, observer](const DistributedNotification& notification) {
            EXPECT_EQ(QThread::currentThread(), qApp->thread());
            received.append(QLatin1StringView(observer) + u' ' + notification.name + u' ' +
                            notification.object.value_or(q("nothing")));
        };
    }

    // What was posted before is delivered before what is posted after.
    void flush()
    {
        int key = 0;
        bool arrived = false;
        center.addObserver(&key, q("test.flush"), std::nullopt, [&](const auto&) { arrived = true; });
        QString why;
        ASSERT_TRUE(DistributedNotificationCenter::post(q("test.flush"), QString(), &why))
            << why.toStdString();
        ASSERT_TRUE(waitUntil([&] { return arrived; }));
        center.removeObserver(&key);
    }

    bool connected()
    {
        return waitUntil([this] { return center.isConnected(); });
    }

    LogCapture log;
    DistributedNotificationCenter center;
    QStringList received;
    int a = 0;
    int b = 0;
};

TEST_F(DistributedNotificationTest, NotificationsReachTheObserversOfTheirNameAndObjectInOrder)
{
    const PrivateBus bus;
    center.addObserver(&a, kNote, kUri, note("this"));
    center.addObserver(&a, kNote, std::nullopt, note("any"));
    center.addObserver(&b, q("other.name"), std::nullopt, note("other"));
    ASSERT_TRUE(connected());
    ASSERT_TRUE(DistributedNotificationCenter::post(kNote, kUri));
    ASSERT_TRUE(DistributedNotificationCenter::post(kNote, q("halvern://virtual/é")));
    ASSERT_TRUE(DistributedNotificationCenter::post(kNote, QString()));
    flush();
    EXPECT_EQ(received, (QStringList{q("this ") + kNote + u' ' + kUri, q("any ") + kNote + u' ' + kUri,
                                     q("any ") + kNote + q(" halvern://virtual/é"),
                                     q("any ") + kNote + q(" nothing")}));
    EXPECT_TRUE(log.lines().isEmpty());
}

TEST_F(DistributedNotificationTest, ARemovedObserverHearsNothingMore)
{
    const PrivateBus bus;
    center.addObserver(&a, kNote, std::nullopt, [this](const DistributedNotification&) {
        received.append(q("a"));
        center.removeObserver(&b);
        std::thread([this] { center.removeObserver(&a); }).join();
    });
    center.addObserver(&b, kNote, std::nullopt, note("b"));
    ASSERT_TRUE(connected());
    ASSERT_TRUE(DistributedNotificationCenter::post(kNote, kUri));
    ASSERT_TRUE(DistributedNotificationCenter::post(kNote, kUri));
    flush();
    EXPECT_EQ(received, QStringList{q("a")});
}

TEST_F(DistributedNotificationTest, AMissingBusIsLoggedOnceAndTriedAgainAtTheNextRegistration)
{
    qputenv("DBUS_SYSTEM_BUS_ADDRESS", "unix:path=/nonexistent/bus");
    center.addObserver(&a, kNote, std::nullopt, note("a"));
    ASSERT_TRUE(waitUntil([this] { return !log.lines().isEmpty(); }));
    center.addObserver(&a, kNote, std::nullopt, note("again"));
    drainMainQueue();
    EXPECT_EQ(log.lines().size(), 1);
    EXPECT_TRUE(log.lines().first().contains(QLatin1String("No such file or directory")));
    QString why;
    EXPECT_FALSE(DistributedNotificationCenter::post(kNote, kUri, &why));
    EXPECT_EQ(why, q("No such file or directory"));

    const PrivateBus bus;
    center.addObserver(&b, kNote, std::nullopt, note("b"));
    ASSERT_TRUE(connected());
    ASSERT_TRUE(DistributedNotificationCenter::post(kNote, kUri));
    flush();
    EXPECT_EQ(received.size(), 3);
}

TEST_F(DistributedNotificationTest, ABusThatBreaksOffIsLoggedAndMayComeBack)
{
    PrivateBus bus;
    center.addObserver(&a, kNote, std::nullopt, note("a"));
    ASSERT_TRUE(connected());
    bus.kill();
    ASSERT_TRUE(waitUntil([this] { return !center.isConnected(); }));
    EXPECT_EQ(log.lines().size(), 1);
    bus.start();
    ASSERT_TRUE(connected());
    ASSERT_TRUE(DistributedNotificationCenter::post(kNote, kUri));
    flush();
    EXPECT_EQ(received.size(), 1);
}

TEST_F(DistributedNotificationTest, ABusThatNeverAnswersHoldsUpNobody)
{
    const ScriptedServer silent({}, ScriptedServer::Then::beSilent);
    qputenv("DBUS_SYSTEM_BUS_ADDRESS", "tcp:host=127.0.0.1,port=" + QByteArray::number(silent.port()));
    center.addObserver(&a, kNote, std::nullopt, note("a"));
    // The main loop turns while the call waits for its answer.
    EXPECT_TRUE(waitUntil([&] { return silent.callers() == 1; }));
    drainMainQueue();
    EXPECT_EQ(silent.callers(), 1);
    EXPECT_FALSE(center.isConnected());
    std::string why;
    EXPECT_FALSE(notification_bus::post("name", "object", &why, std::chrono::milliseconds(200)));
    EXPECT_EQ(why, "Connection timed out");
}

} // namespace halvern
