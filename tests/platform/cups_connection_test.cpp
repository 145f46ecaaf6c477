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
    EXPECT_TRUE(server.error().contains(q("wants a name and a password"))) << qPrintable(server.error());
}

namespace {

/// Gives these answers, one after the other; then none.
class FakeQuestions : public cups::AccessQuestions {
public:
    std::optional<cups::Login> askLogin(const cups::LoginQuestion& question, const cups::CancelFlag&) override
    {
        asked.append(question.wasRefused ? q("again") : q("first"));
        isEncrypted = question.isEncrypted;
        return answers.isEmpty() ? std::nullopt : std::optional(answers.takeFirst());
    }

    void loginWasRight(const cups::Place&, const cups::Login& login) override { right = login.password; }

    bool askCertificate(const cups::CertificateQuestion&, const cups::CancelFlag&) override { return false; }

    QList<cups::Login> answers;
    QStringList asked;
    QString right;
    bool isEncrypted = true;
};

} // namespace

TEST(CupsConnection, APasswordIsAskedForOnceAndSentOpenlyOnlyIfTheUserSaysSo)
{
    const struct {
        QList<cups::Login> answers;
        QStringList asked;
        bool isLetIn;
    } cases[] = {
        {{{q("ann"), q("right"), true}}, {q("first")}, true},
        {{{q("ann"), q("wrong"), true}, {q("ann"), q("right"), true}}, {q("first"), q("again")}, true},
        {{{q("ann"), q("wrong"), true}}, {q("first"), q("again")}, false},
        {{{q("ann"), q("right"), false}}, {q("first"), q("first")}, false},
        {{}, {q("first")}, false},
    };

    for (const auto& c : cases) {
        ScriptedServer host([](_ipp_s*) { return scriptedAnswer(); });
        host.requireLogin("ann:right");
        const auto questions = std::make_shared<FakeQuestions>();
        questions->answers = c.answers;
        cups::Access::shared().setQuestions(questions);
        for (int i = 0; i < 3; ++i) {
            cups::Connection server(nullptr);
            const cups::Ipp answer = server.request(cups::newRequest(IPP_OP_CUPS_GET_PRINTERS, {}), "/");
            EXPECT_EQ(answer != nullptr, c.isLetIn);
            EXPECT_EQ(server.failed(answer), !c.isLetIn);
        }
        EXPECT_FALSE(questions->isEncrypted);
        EXPECT_EQ(questions->right, c.isLetIn ? q("right") : QString());
        EXPECT_EQ(questions->asked, c.asked);
        EXPECT_EQ(host.asked().size(), c.isLetIn ? 3 : 0);
        cups::Access::shared().setQuestions(nullptr);
        cups::Access::shared().askAgain();
    }
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
