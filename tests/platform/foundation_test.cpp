// SPDX-License-Identifier: MIT
#include "platform/foundation/date_additions.h"
#include "platform/foundation/description.h"
#include "platform/foundation/display_text.h"
#include "platform/foundation/notifications/notification_center.h"
#include "platform/foundation/numbers.h"
#include "platform/foundation/threads/semaphore.h"
#include "platform/foundation/threads/work_queue.h"
#include "tests/support/test.h"

#include <QLocale>
#include <QProcess>
#include <QTemporaryDir>
#include <QThread>

#include <atomic>
#include <clocale>
#include <cmath>
#include <future>
#include <limits>
#include <numeric>
#include <thread>

namespace halvern {

TEST(NumbersTest, ReadsTheNumberAtTheStartOfAText)
{
    const QList<QPair<const char*, double>> cases{
        {"3.7", 3.7}, {"12px", 12}, {" \t-4.5e1x", -45}, {"+2", 2},      {".5", 0.5},
        {"5.", 5},    {"1e", 1},    {"1e+", 1},          {"abc", 0},     {"", 0},
        {"-", 0},     {"--3", 0},   {"3,7", 3},          {"1.2.3", 1.2}, {".", 0},
        {"e5", 0},    {"0x1F", 0},  {"1 000", 1}};
    for (const auto& [text, number] : cases)
        EXPECT_DOUBLE_EQ(leadingDouble(q(text)), number) << text;
    EXPECT_EQ(leadingDouble(QString(400, u'9')), std::numeric_limits<double>::max());
    EXPECT_EQ(leadingDouble(u"-1e999"), -std::numeric_limits<double>::max());
    EXPECT_EQ(leadingInteger(u"3.7"), 3);
    EXPECT_EQ(leadingInteger(u"-12px"), -12);
    EXPECT_EQ(leadingInteger(u"1e3"), 1);
    EXPECT_EQ(leadingInteger(u"99999999999999999999"), std::numeric_limits<int>::max());
    EXPECT_EQ(leadingInteger(u"-99999999999999999999"), std::numeric_limits<int>::min());
    EXPECT_EQ(truncatedToInt(-2.9), -2);
    EXPECT_EQ(truncatedToInt(1e300), std::numeric_limits<int>::max());
    EXPECT_EQ(truncatedToInt(std::nan("")), 0);
}

TEST(NumbersTest, WritesAPointInEveryLocale)
{
    const QLocale own;
    const std::string before = std::setlocale(LC_NUMERIC, nullptr);
    const QTemporaryDir locales;
    qputenv("LOCPATH", locales.path().toUtf8());
    QProcess::execute(q("localedef"),
                      {q("-i"), q("de_DE"), q("-f"), q("UTF-8"), locales.filePath(q("de_DE.UTF-8"))});
    ASSERT_TRUE(std::setlocale(LC_NUMERIC, "de_DE.UTF-8")) << "needs localedef and the package locales";
    QLocale::setDefault(QLocale(q("de_DE")));
    ASSERT_STREQ(std::localeconv()->decimal_point, ",");
    EXPECT_EQ(formatDouble("%.2f", 1.237), q("1.24"));
    EXPECT_EQ(formatDouble("%.2f", 0.125), q("0.12"));
    EXPECT_EQ(formatDouble("%.2f", 2.675), q("2.67"));
    EXPECT_EQ(formatDouble("%.1f", 0.25), q("0.2"));
    EXPECT_EQ(formatDouble("%.2f", std::numeric_limits<double>::max()).size(), 312);
    EXPECT_EQ(shortestDouble(0.1), q("0.1"));
    EXPECT_EQ(shortestDouble(-0.0), q("0"));
    EXPECT_DOUBLE_EQ(leadingDouble(u"2.5"), 2.5);
    std::setlocale(LC_NUMERIC, before.c_str());
    QLocale::setDefault(own);
    qunsetenv("LOCPATH");
}

TEST(DisplayTextTest, LeavesNothingThatActsOnAScreenOrATerminal)
{
    struct Case {
        const char* text;
        const char* shown;
        const char* written;
    };

    for (const Case& c :
         {Case{"Evening\tat\nthe\u2028lake", "Evening at the lake", "Evening at the lake"},
          {"a\x1b[31mred\u009b0m\x7f", "a [31mred 0m ", "a [31mred 0m "},
          {"\u202egpj.exe\u200f", "gpj.exe", "gpj.exe"},
          {"at \u20684 x 6 in\u2069.", "at \u20684 x 6 in\u2069.", "at 4 x 6 in."},
          {"out\u2069 of\u2068", "out of", "out of"},
          {"<b>5 & 6</b> \U0001f5bc", "<b>5 & 6</b> \U0001f5bc", "<b>5 & 6</b> \U0001f5bc"}}) {
        EXPECT_EQ(displayText(q(c.text)), q(c.shown));
        EXPECT_EQ(terminalText(q(c.text)), q(c.written));
    }
    EXPECT_EQ(displayText(q("0123456789"), 5), q("0123\u2026"));
    EXPECT_EQ(displayText(q("012\U0001f5bc56"), 5), q("012\u2026"));
    EXPECT_EQ(displayText(q("\u2068012345\u2069"), 5), q("012\u2026"));
    EXPECT_EQ(isolated(q("\u06694\u2069\u202e"), 9), q("\u2068\u06694\u2069"));
}

TEST(SameValueTest, NumbersAreTheSameWhateverTheirWidthButNeverATexts)
{
    const auto record = [](const QVariant& resolution) {
        return QVariantList{QVariantMap{{q("r"), resolution}}};
    };
    for (const QVariant& same : {QVariant(qint64(3000)), QVariant(quint64(3000)), QVariant(3000.0)})
        EXPECT_TRUE(isSameValue(record(qint64(3000)), record(same)));
    EXPECT_FALSE(isSameValue(quint64(-1), qint64(-1)));
    for (const QVariant& other : {QVariant(q("3000")), QVariant(3000.5), QVariant(qint64(3001))})
        EXPECT_FALSE(isSameValue(record(qint64(3000)), record(other)));
    EXPECT_FALSE(isSameValue(QVariantMap(), QVariantMap{{q("a"), QVariant()}}));
}

TEST(DateAdditionsTest, FormatsUnicodePatternsInTheUsersLocale)
{
    const QDateTime afternoon(QDate(2026, 3, 9), QTime(13, 5));
    QLocale::setDefault(QLocale(q("de_DE")));
    EXPECT_EQ(KSTRVL_NSDateAdditions::stringWithUTSFormat(afternoon, q("EEEE")), q("Montag"));
    for (const QString& refused : {q("yyyy n"), q("n")})
        EXPECT_EQ(KSTRVL_NSDateAdditions::stringWithUTSFormat(afternoon, refused), std::nullopt)
            << "no half text";
    EXPECT_EQ(KSTRVL_NSDateAdditions::stringWithUTSFormat(QDateTime(), q("yyyy")), std::nullopt);
}

TEST(SemaphoreTest, TwoSignalsDoNotBothWakeOneWaiter)
{
    for (int round = 0; round < 200; ++round) {
        Semaphore semaphore;
        auto waiter = std::async(std::launch::async, [&] { semaphore.wait(); });
        const int woken = int(semaphore.signal()) + int(semaphore.signal());
        waiter.get();
        EXPECT_LE(woken, 1);
    }
}

TEST(WorkQueueTest, RunsItsWorkInOrderOffTheMainThreadAndOutlivesItsHandle)
{
    std::vector<int> order;
    std::promise<void> done;
    {
        const WorkQueue queue;
        for (int i = 0; i < 100; ++i)
            queue.async(
                [&order, i] { order.push_back((QThread::currentThread() == qApp->thread()) ? -1 : i); });
        queue.async([&done] { done.set_value(); });
    }
    done.get_future().get();
    std::vector<int> expected(100);
    std::iota(expected.begin(), expected.end(), 0);
    EXPECT_EQ(order, expected);
}

TEST(WorkQueueTest, MainQueueRunsOnTheMainThreadInOrderAndDelayedWorkLater)
{
    std::vector<int> order;
    mainQueue().after(1, [&] { order.push_back(3); });
    std::thread([&] {
        mainQueue().async([&] { order.push_back((QThread::currentThread() == qApp->thread()) ? 1 : -1); });
        mainQueue().async([&] { order.push_back(2); });
    }).join();
    ASSERT_TRUE(waitUntil([&] { return order.size() == 3; }));
    EXPECT_EQ(order, (std::vector<int>{1, 2, 3}));
}

TEST(NotificationCenterTest, AHandlerMayRemoveTheNextOne)
{
    NotificationCenter center;
    int first = 0;
    int second = 0;
    int delivered = 0;
    center.addObserver(&first, q("N"), nullptr, [&](const Notification&) { center.removeObserver(&second); });
    center.addObserver(&second, q("N"), nullptr, [&](const Notification&) { ++delivered; });
    center.post(q("N"), nullptr);
    EXPECT_EQ(delivered, 0);
}

} // namespace halvern
