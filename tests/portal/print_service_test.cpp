// SPDX-License-Identifier: MIT
#include "dialog/window/login_dialog.h"
#include "dialog/window/print_dialog.h"
#include "dialog/window/review_switch.h"
#include "portal/print_call.h"
#include "portal/print_service.h"
#include "portal/sent_job.h"
#include "tests/support/files.h"
#include "tests/support/private_bus.h"
#include "tests/support/real_dialog.h"
#include "tests/support/server_test.h"

#include <QBuffer>
#include <QComboBox>
#include <QDBusConnection>
#include <QDBusPendingReply>
#include <QLineEdit>
#include <QMessageBox>
#include <QPainter>
#include <QPdfWriter>
#include <QSpinBox>

#include <unistd.h>

namespace halvern {
namespace {

using Answer = QDBusPendingReply<uint, QVariantMap>;

const QString kName = q("org.freedesktop.impl.portal.desktop.tessarin");
const QString kPath = q("/org/freedesktop/portal/desktop");

QString handleOf(const char* name)
{
    return kPath + q("/request/1_1/") + q(name);
}

QByteArray twoPages()
{
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    QPdfWriter writer(&buffer);
    QPainter painter(&writer);
    painter.drawText(1000, 1000, q("one"));
    writer.newPage();
    painter.drawText(1000, 1000, q("two"));
    painter.end();
    return buffer.data();
}

template <class Window> Window* shown()
{
    for (QWidget* widget : QApplication::topLevelWidgets()) {
        if (auto* window = qobject_cast<Window*>(widget); window && window->isVisible())
            return window;
    }
    return nullptr;
}

/// The service on a session bus of its own, and a front end that calls it.
class Portal : public ServerTest {
protected:
    static void SetUpTestSuite()
    {
        bus = std::make_unique<PrivateBus>("DBUS_SESSION_BUS_ADDRESS");
        startServer();
    }

    static void startServer()
    {
        server.reset();
        ServerTest::SetUpTestSuite();
        ASSERT_TRUE(server->addQueue(q("Tessarin"), {}, {}, {q("--default")})) << qPrintable(server->error());
    }

    static void TearDownTestSuite()
    {
        QDBusConnection::disconnectFromBus(q("qt_default_session_bus"));
        ServerTest::TearDownTestSuite();
        bus.reset();
    }

    Portal() { EXPECT_EQ(service.enter(), QString()); }

    ~Portal() override
    {
        QDBusConnection::disconnectFromBus(q("front end"));
        QDBusConnection::sessionBus().unregisterService(kName);
        QDBusConnection::sessionBus().unregisterObject(kPath);
    }

    Answer call(const char* method, const QVariantList& arguments)
    {
        QDBusMessage message =
            QDBusMessage::createMethodCall(kName, kPath, q("org.freedesktop.impl.portal.Print"), q(method));
        message.setArguments(arguments);
        return frontEnd.asyncCall(message);
    }

    Answer prepare(const QVariantMap& settings = {}, const QString& handle = handleOf("prepare"),
                   const QVariantMap& options = {})
    {
        return call("PreparePrint", {QVariant::fromValue(QDBusObjectPath(handle)), q("org.example.Editor"),
                                     QString(), q("Print"), settings, QVariantMap(), options});
    }

    /// `rest` is what the document is written to afterwards, if somebody wants to: the caller's to close.
    Answer print(const QByteArray& document, const QVariantMap& options, int* rest = nullptr)
    {
        int ends[2];
        EXPECT_EQ(pipe(ends), 0);
        QDBusUnixFileDescriptor descriptor;
        descriptor.giveFileDescriptor(ends[0]);
        const Answer answer =
            call("Print", {QVariant::fromValue(QDBusObjectPath(handleOf("print"))), q("org.example.Editor"),
                           QString(), q("Letter"), QVariant::fromValue(descriptor), options});
        EXPECT_EQ(write(ends[1], document.constData(), size_t(document.size())), document.size());
        if (rest)
            *rest = ends[1];
        else
            close(ends[1]);
        return answer;
    }

    static bool isAnswered(const Answer& answer)
    {
        return waitUntil([&] { return answer.isFinished(); }) && answer.isValid();
    }

    static void finish(int rest, const QByteArray& document)
    {
        EXPECT_EQ(write(rest, document.constData(), size_t(document.size())), document.size());
        close(rest);
    }

    static int lastJob()
    {
        int last = 0;
        for (const QString& name : QDir(server->jobsDir()).entryList(QDir::Dirs | QDir::NoDotAndDotDot))
            last = std::max(last, name.toInt());
        return last;
    }

    static PrintDialog* readyDialog()
    {
        PrintDialog* dialog = nullptr;
        waitUntil([&] { return (dialog = shown<PrintDialog>()); });
        auto* print = dialog->findChild<QPushButton*>(q("printButton"));
        return waitUntil([&] { return print->isEnabled(); }) ? dialog : nullptr;
    }

    QVariantMap accept(int copies, const QString& printer = q("Tessarin"))
    {
        const Answer answer = prepare({{q("n-copies"), QString::number(copies)}, {q("printer"), printer}});
        readyDialog()->findChild<QPushButton*>(q("printButton"))->click();
        EXPECT_TRUE(isAnswered(answer));
        EXPECT_EQ(answer.argumentAt<0>(), 0U);
        return answer.argumentAt<1>();
    }

    QVariantMap acceptedToken() { return {{q("token"), accept(1).value(q("token"))}}; }

    static inline std::unique_ptr<PrivateBus> bus;
    PrintService service{{.sending = std::chrono::minutes(1)}};
    QDBusConnection frontEnd =
        QDBusConnection::connectToBus(qEnvironmentVariable("DBUS_SESSION_BUS_ADDRESS"), q("front end"));
};

TEST_F(Portal, PrintsEachCopyOnceAndATokenOnce)
{
    const QVariantMap results = accept(3);
    const auto settings = qdbus_cast<QVariantMap>(results.value(q("settings")));
    EXPECT_EQ(settings.value(q("n-copies")), q("1"));
    EXPECT_TRUE(settings.contains(q("cups-PaperTone")));
    EXPECT_TRUE(qdbus_cast<QVariantMap>(results.value(q("page-setup"))).contains(q("MarginTop")));
    const QVariantMap token{{q("token"), results.value(q("token"))}};
    const Answer printed = print(twoPages(), token);
    ASSERT_TRUE(isAnswered(printed));
    EXPECT_EQ(printed.argumentAt<0>(), 0U);
    EXPECT_FALSE(shown<PrintDialog>());
    EXPECT_TRUE(waitUntil([this] { return !service.findChild<SentJob*>(); }));
    EXPECT_EQ(sheetsOf(*server, lastJob()), 6);

    const Answer stale = print(twoPages(), token);
    PrintDialog* const dialog = readyDialog();
    ASSERT_TRUE(dialog) << "with a number that was used, the dialog";
    dialog->reject();
    ASSERT_TRUE(isAnswered(stale));
    EXPECT_EQ(stale.argumentAt<0>(), 1U);
}

TEST_F(Portal, ShowsTheDocumentFirstIfTheUserWantsTo)
{
    const Answer answer = prepare();
    PrintDialog* dialog = readyDialog();
    auto* const review = dialog->findChild<QCheckBox*>(q("review"));
    review->setChecked(true);
    dialog->findChild<QSpinBox*>(q("copies"))->setValue(2);
    dialog->findChild<QPushButton*>(q("printButton"))->click();
    ASSERT_TRUE(isAnswered(answer));
    const Answer printed = print(twoPages(), {{q("token"), answer.argumentAt<1>().value(q("token"))}});
    dialog = readyDialog();
    ASSERT_TRUE(dialog);
    EXPECT_EQ(dialog->findChild<QSpinBox*>(q("copies"))->value(), 2);
    dialog->findChild<QPushButton*>(q("printButton"))->click();
    ASSERT_TRUE(isAnswered(printed));
    EXPECT_EQ(printed.argumentAt<0>(), 0U);
    EXPECT_TRUE(waitUntil([&] { return !dialog->isRunning(); }));
    EXPECT_EQ(sheetsOf(*server, lastJob()), 4);
    dialog->reject();
    std::unique_ptr<QCheckBox>(makeReviewSwitch(nullptr))->setChecked(false);
}

TEST_F(Portal, AsksForThePrintersPasswordAfterTheDialog)
{
    const QString guarded = q("Guarded");
    ASSERT_TRUE(
        server->addQueue(guarded, {}, {}, {q("--option"), q("auth-info-required=username,password")}));
    const Answer printed = print(twoPages(), {{q("token"), accept(1, guarded).value(q("token"))}});
    LoginDialog* login = nullptr;
    ASSERT_TRUE(waitUntil([&] { return (login = shown<LoginDialog>()); }));
    EXPECT_FALSE(shown<PrintDialog>());
    login->findChild<QLineEdit*>(q("loginPassword"))->setText(q("secret"));
    login->findChild<QPushButton*>(q("signIn"))->click();
    ASSERT_TRUE(isAnswered(printed));
    EXPECT_EQ(printed.argumentAt<0>(), 0U);
    EXPECT_TRUE(waitUntil([this] { return !service.findChild<SentJob*>(); }));
    EXPECT_EQ(sheetsOf(*server, lastJob()), 2);
}

TEST_F(Portal, TellsTheUserWhatCannotBePrinted)
{
    const Answer garbage = print("no document", {{q("token"), q("of a wrong type")}});
    ASSERT_TRUE(isAnswered(garbage));
    EXPECT_EQ(garbage.argumentAt<0>(), 2U);
    QMessageBox* box = nullptr;
    ASSERT_TRUE(waitUntil([&] { return (box = shown<QMessageBox>()); })) << "nobody shows notifications here";
    EXPECT_TRUE(box->text().contains(q("PDF")));
    box->close();
    drainMainQueue();
}

TEST_F(Portal, ClosesWhatNobodyWaitsForAndLeavesNothing)
{
    const Answer closed = prepare();
    const auto close = [] {
        return QDBusMessage::createMethodCall(kName, handleOf("prepare"),
                                              q("org.freedesktop.impl.portal.Request"), q("Close"));
    };
    const Answer stranger = prepare({}, handleOf("other"));
    QDBusConnection::sessionBus().call(close(), QDBus::NoBlock); // another one's
    frontEnd.asyncCall(close());                                 // before the dialog is there
    ASSERT_TRUE(isAnswered(closed));
    EXPECT_EQ(closed.argumentAt<0>(), 2U);
    EXPECT_TRUE(readyDialog()) << "the other call's";

    constexpr int kAtOnce = 20;
    for (int i = 0; i < kAtOnce; ++i)
        prepare({}, handleOf("n") + QString::number(i));
    EXPECT_TRUE(waitUntil([this] { return service.findChildren<PortalCall*>().size() == kAtOnce + 1; }));
    QDBusConnection::disconnectFromBus(q("front end"));
    frontEnd = QDBusConnection(QString());
    EXPECT_TRUE(waitUntil([this] { return !service.findChild<PortalCall*>(); }));
    EXPECT_FALSE(shown<PrintDialog>());
    EXPECT_TRUE(QDir(qEnvironmentVariable("XDG_RUNTIME_DIR") + q("/halvern-print-portal")).isEmpty());
}

TEST_F(Portal, AsksAndAnswersInTheApplicationsWords)
{
    const Answer answer = prepare({{q("use-color"), q("false")},
                                   {q("cups-EnableCVP1"), q("True")},
                                   {q("cups-CVP1"), q("Lake")},
                                   {q("printer"), q("Tessarin")}},
                                  handleOf("prepare"),
                                  {{q("accept_label"), q("_Make & print")},
                                   {q("has_current_page"), true},
                                   {q("has_selected_pages"), q("yes")},
                                   {q("supported_output_file_formats"), QStringList{q("svg"), q("ps")}}});
    PrintDialog* const dialog = readyDialog();
    auto* const button = dialog->findChild<QPushButton*>(q("printButton"));
    EXPECT_EQ(button->text(), q("&Make && print"));
    const auto* const pages = dialog->findChild<QComboBox*>(q("pageParity"));
    EXPECT_GE(pages->findData(int(PageParity::current)), 0);
    EXPECT_LT(pages->findData(int(PageParity::selection)), 0) << "of a wrong type";
    button->click();
    ASSERT_TRUE(isAnswered(answer));
    const auto settings = qdbus_cast<QVariantMap>(answer.argumentAt<1>().value(q("settings")));
    for (const auto& [key, value] : {std::pair("output-file-format", "ps"),
                                     {"use-color", "false"},
                                     {"cups-ColorModel", "Gray"},
                                     {"cups-CVP1", "Lake"}})
        EXPECT_EQ(settings.value(q(key)), q(value)) << key;
}

TEST_F(Portal, PrintsAPictureAsTheDialogDoes)
{
    QBuffer png;
    QImage image(60, 40, QImage::Format_RGB32);
    image.fill(Qt::darkGreen);
    image.save(&png, "PNG");
    const Answer printed = print(png.data(), acceptedToken());
    ASSERT_TRUE(isAnswered(printed));
    EXPECT_EQ(printed.argumentAt<0>(), 0U);
    EXPECT_TRUE(waitUntil([this] { return !service.findChild<SentJob*>(); }));
    EXPECT_EQ(jobAttribute(lastJob(), "document-format"), QStringList{q("application/pdf")});
    EXPECT_EQ(sheetsOf(*server, lastJob()), 1);
}

TEST_F(Portal, PrintsWhatWasAcceptedAlsoForAnApplicationThatHasGone)
{
    const QByteArray document = twoPages();
    int rest = -1;
    print(document.first(100), acceptedToken(), &rest);
    ASSERT_TRUE(waitUntil([this] { return service.findChild<PrintCall*>(); }));
    QDBusConnection::disconnectFromBus(q("front end"));
    frontEnd = QDBusConnection(QString());
    const int before = lastJob();
    finish(rest, document.sliced(100));
    EXPECT_TRUE(waitUntil([&] { return lastJob() > before && !service.findChild<SentJob*>(); }));
    EXPECT_EQ(sheetsOf(*server, lastJob()), 2);
}

TEST_F(Portal, EndsWithoutLosingWhatWasAccepted)
{
    const QByteArray document = twoPages();
    int rest = -1;
    const Answer sent = print(document.first(100), acceptedToken(), &rest);
    const Answer open = prepare();
    ASSERT_TRUE(readyDialog());
    bool isOver = false;
    QObject::connect(&service, &PrintService::over, [&] { isOver = true; });
    service.end();
    ASSERT_TRUE(isAnswered(open));
    EXPECT_EQ(open.argumentAt<0>(), 2U);
    EXPECT_TRUE(!isOver && !sent.isFinished());
    finish(rest, document.sliced(100));
    ASSERT_TRUE(isAnswered(sent));
    EXPECT_EQ(sent.argumentAt<0>(), 0U);
    EXPECT_TRUE(waitUntil([&] { return isOver; }));
}

TEST_F(Portal, TellsThatTheServerWentAfterTheDialog)
{
    const QVariantMap token = acceptedToken();
    ASSERT_TRUE(server->stop());
    const Answer lost = print(twoPages(), token);
    ASSERT_TRUE(isAnswered(lost));
    EXPECT_EQ(lost.argumentAt<0>(), 2U);
    QMessageBox* box = nullptr;
    ASSERT_TRUE(waitUntil([&] { return (box = shown<QMessageBox>()); }));
    EXPECT_FALSE(box->text().isEmpty());
    box->close();
    drainMainQueue();
    startServer();
}

TEST_F(Portal, EndsWhenNothingGoesOn)
{
    PrintService idle({std::chrono::milliseconds(0)});
    bool isOver = false;
    QObject::connect(&idle, &PrintService::over, [&] { isOver = true; });
    EXPECT_TRUE(waitUntil([&] { return isOver; }));
}

} // namespace
} // namespace halvern
