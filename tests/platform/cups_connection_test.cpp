// SPDX-License-Identifier: MIT
#include "platform/printing/cups_connection.h"
#include "platform/printing/fresh_ppd.h"
#include "tests/support/scripted_server.h"

#include <cups/cups.h>

#include <QDir>
#include <QFile>

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

TEST(CupsConnection, AServerThatTakesNoMoreOfADocumentIsNotWaitedForForEver)
{
    // How long a document takes is nobody's business, so it is the silence that ends this.
    const ScriptedServer fault("HTTP/1.1 100 Continue\r\n\r\n", Then::stall);
    cups::Connection server(nullptr, {200ms, 600s});
    EXPECT_FALSE(server.request(cups::newRequest(IPP_OP_SEND_DOCUMENT, q("Photo")), "/printers/Photo",
                                [] { return std::optional(QByteArray(64 * 1024, 'x')); }));
    EXPECT_FALSE(fault.hasLetGo());
    EXPECT_TRUE(server.failed(nullptr) && server.error().contains(q("does not answer")))
        << qPrintable(server.error());
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

    void loginWasRight(const cups::Place&, const cups::Login& login) override { right += login.password; }

    bool askCertificate(const cups::CertificateQuestion& question, const cups::CancelFlag&) override
    {
        certificates.append(question.known);
        return isTrusting;
    }

    QList<cups::Login> answers;
    QStringList asked;
    QStringList right; ///< what is to be kept for later
    QStringList certificates;
    bool isEncrypted = true;
    bool isTrusting = false;
};

} // namespace

TEST(CupsConnection, APasswordIsAskedForOnceAndSentOpenlyOnlyIfTheUserSaysSo)
{
    const struct {
        QList<cups::Login> answers;
        QStringList asked;
        bool isLetIn;
        bool isAnswered = true;
    } cases[] = {
        {{{q("ann"), q("right"), true, true}}, {q("first")}, true},
        {{{q("ann"), q("wrong"), true, true}, {q("ann"), q("right"), true, true}},
         {q("first"), q("again")},
         true},
        {{{q("ann"), q("wrong"), true, true}}, {q("first"), q("again")}, false},
        {{{q("ann"), q("right"), false, true}}, {q("first"), q("first")}, false},
        {{{q("ann"), q("right"), true, true}}, {q("first")}, true, false},
        {{}, {q("first")}, false},
    };

    for (const auto& c : cases) {
        QString owner;
        ScriptedServer host([&](_ipp_s* request) {
            owner =
                q(ippGetString(ippFindAttribute(request, "requesting-user-name", IPP_TAG_NAME), 0, nullptr));
            return c.isAnswered ? scriptedAnswer() : nullptr;
        });
        host.requireLogin("ann:right");
        const auto nobody = std::make_shared<FakeQuestions>();
        cups::Access::shared().addQuestions(nobody);
        const auto questions = std::make_shared<FakeQuestions>();
        questions->answers = c.answers;
        cups::Access::shared().addQuestions(questions);
        for (int i = 0; i < 3; ++i) {
            cups::Connection server(nullptr);
            const cups::Ipp answer = server.request(cups::newRequest(IPP_OP_CREATE_JOB, q("Photo")), "/");
            EXPECT_EQ(answer != nullptr, c.isLetIn && c.isAnswered);
            EXPECT_EQ(server.failed(answer), !(c.isLetIn && c.isAnswered));
            EXPECT_EQ(server.mayBeDone(), c.isLetIn);
        }
        EXPECT_FALSE(questions->isEncrypted);
        EXPECT_EQ(owner == q("ann"), c.isLetIn && c.isAnswered) << "the jobs there are ann's";
        EXPECT_EQ(questions->right, c.isLetIn && c.isAnswered ? QStringList(q("right")) : QStringList());
        EXPECT_EQ(questions->asked, c.asked);
        EXPECT_EQ(nobody->asked, QStringList());
        EXPECT_EQ(host.asked().size(), c.isLetIn ? 3 : 0);
        cups::Access::shared().removeQuestions(questions.get());
        cups::Access::shared().askAgain();
        EXPECT_FALSE(cups::Access::shared().login({{q("elsewhere")}, q("ann")}, {}, nullptr));
        EXPECT_EQ(nobody->asked, QStringList(q("first"))) << "who was there before is asked again";
        cups::Access::shared().removeQuestions(nobody.get());
        cups::Access::shared().askAgain();
    }
}

TEST(CupsConnection, ADocumentIsNotSentTwiceToAServerThatAsksForALoginAfterIt)
{
    ScriptedServer host([](_ipp_s*) { return scriptedAnswer(); });
    host.requireLogin("ann:right");
    const auto questions = std::make_shared<FakeQuestions>();
    questions->answers = {{q("ann"), q("right"), true}};
    cups::Access::shared().addQuestions(questions);
    cups::Connection server(nullptr);
    QList<QByteArray> pieces{"%PDF", ""};
    EXPECT_FALSE(server.request(cups::newRequest(IPP_OP_SEND_DOCUMENT, q("Photo")), "/printers/Photo", [&] {
        return std::optional(pieces.isEmpty() ? QByteArray() : pieces.takeFirst());
    }));
    EXPECT_TRUE(server.failed(nullptr) && server.error().contains(q("broke off")))
        << qPrintable(server.error());
    EXPECT_EQ(host.asked(), QStringList());
    cups::Access::shared().removeQuestions(questions.get());
    cups::Access::shared().askAgain();
}

TEST(CupsConnection, AServerThatHadACertificateIsNotTalkedToOpenlyUnasked)
{
    ScriptedServer host([](_ipp_s*) { return scriptedAnswer(); });
    const QString folder = QString::fromLocal8Bit(qgetenv("XDG_DATA_HOME")) + q("/halvern/servers");
    ASSERT_TRUE(QDir().mkpath(folder));
    QFile known(QStringLiteral("%1/127.0.0.1_%2.crt").arg(folder).arg(host.port()));
    ASSERT_TRUE(known.open(QFile::WriteOnly)); // one that cannot be read counts, too
    const auto questions = std::make_shared<FakeQuestions>();
    cups::Access::shared().addQuestions(questions);
    for (const bool isTrusting : {false, true}) {
        questions->isTrusting = isTrusting;
        cups::Access::shared().askAgain();
        cups::Connection server(nullptr);
        EXPECT_EQ(server.isConnected(), isTrusting);
        EXPECT_EQ(server.error().contains(q("is not trusted")), !isTrusting);
    }
    EXPECT_EQ(questions->certificates.size(), 2);
    EXPECT_FALSE(known.exists());
    EXPECT_TRUE(cups::Connection(nullptr).isConnected());
    cups::Access::shared().removeQuestions(questions.get());
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
