// SPDX-License-Identifier: MIT
#include "platform/printing/cups_connection.h"
#include "platform/printing/fresh_ppd.h"
#include "tests/support/scripted_server.h"

#include <cups/cups.h>

namespace halvern {

using Then = ScriptedServer::Then;
using namespace std::chrono_literals;

TEST(CupsConnection, AFaultOfTheServerEndsInASentenceBeforeTheServerLetsGo)
{
    const struct {
        const char* what;
        QByteArray answer;
        Then then;
        std::chrono::milliseconds whole;
        const char* words;
    } cases[] = {
        {"silent", "", Then::beSilent, 200ms, "does not answer"},
        {"silent in its answer", "HTTP/1.1 200 OK\r\nContent-Len", Then::beSilent, 200ms, "does not answer"},
        {"a byte now and then", "HTTP/1.1 200 OK\r\nContent-Length: 100000\r\n\r\n", Then::drip, 200ms,
         "does not answer"},
        {"endless", "HTTP/1.1 200 OK\r\nContent-Length: 900000000\r\n\r\n", Then::flood, 60s, "does not end"},
        {"gone", "", Then::close, 60s, "broke off"},
    };

    for (const auto& c : cases) {
        SCOPED_TRACE(c.what);
        const ScriptedServer fault(c.answer, c.then);
        cups::Connection server(nullptr, {c.whole, c.whole, 1024 * 1024});
        EXPECT_FALSE(server.get("/printers/Photo.ppd"));
        EXPECT_EQ(fault.hasLetGo(), c.then == Then::close);
        EXPECT_TRUE(server.failed(nullptr));
        EXPECT_TRUE(server.error().contains(q(c.words))) << qPrintable(server.error());
        EXPECT_EQ(fault.connections(), 1);
    }
}

TEST(CupsConnection, ARaisedFlagEndsTheWait)
{
    const ScriptedServer fault({}, Then::beSilent);
    const cups::CancelFlag flag = cups::makeCancelFlag();
    std::thread other([&] {
        while (fault.connections() == 0)
            std::this_thread::yield();
        flag->store(true);
    });
    cups::Connection server(flag, {600s, 600s});
    EXPECT_FALSE(server.request(cups::newRequest(IPP_OP_CUPS_GET_PRINTERS, {}), "/"));
    EXPECT_FALSE(fault.hasLetGo());
    other.join();
}

TEST(CupsConnection, NobodyIsAskedForAPassword)
{
    static bool isAsked = false;
    cupsSetPasswordCB2(
        [](const char*, http_t*, const char*, const char*, void*) -> const char* {
            isAsked = true;
            return nullptr;
        },
        nullptr);
    const ScriptedServer fault(
        "HTTP/1.1 401 Unauthorized\r\nWWW-Authenticate: Basic realm=\"x\"\r\nContent-Length: 0\r\n\r\n",
        Then::close);
    cups::Connection server(nullptr);
    EXPECT_FALSE(server.get("/printers/Photo.ppd"));
    EXPECT_FALSE(isAsked);
    EXPECT_TRUE(server.failed(nullptr));
    EXPECT_TRUE(server.error().contains(q("does not allow"))) << qPrintable(server.error());
}

TEST(FreshPpd, TheMainThreadTakesWhatCameLastWhileTheServerIsSilent)
{
    const ScriptedServer fault({}, Then::beSilent);
    EXPECT_EQ(ppd::freshText(q("Photo")), std::nullopt);
    ppd::rememberText(q("Photo"), "last");
    EXPECT_EQ(ppd::freshText(q("Photo")), "last");
    EXPECT_EQ(ppd::freshText(q("Other")), std::nullopt);
    EXPECT_FALSE(fault.hasLetGo());
}

} // namespace halvern
