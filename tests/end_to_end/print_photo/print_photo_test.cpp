#include "demonstration/demo_steps.h"
#include "dialog/session/dialog_session.h"
#include "dialog/session/plugin_loader.h"
#include "dialog/window/print_dialog.h"
#include "tests/support/observers.h"
#include "tests/support/private_cups.h"

#include <QFileInfo>
#include <QImage>
#include <QPainter>

#include <gtest/gtest.h>

namespace halvern {

namespace {

// A landscape picture with a colour in each quarter, so that a page tells which way round it lies.
QImage quarters()
{
    QImage image(1500, 1000, QImage::Format_RGB32);
    QPainter painter(&image);
    painter.fillRect(0, 0, 750, 500, Qt::red);
    painter.fillRect(750, 0, 750, 500, Qt::green);
    painter.fillRect(0, 500, 750, 500, Qt::blue);
    painter.fillRect(750, 500, 750, 500, Qt::yellow);
    return image;
}

// The colour at a place on the page, as shares of its width and height, each channel fully on or off.
QColor colourAt(const QImage& page, double across, double down)
{
    const QColor colour = page.pixelColor(int(page.width() * across), int(page.height() * down));
    const auto settled = [](int value) { return value > 127 ? 255 : 0; };
    return QColor(settled(colour.red()), settled(colour.green()), settled(colour.blue()));
}

} // namespace

/// The whole road: a real server with the virtual printer, the real dialog with the real bundle, clicks and
/// keys, and what the printer received.
class PrintPhotoTest : public testing::Test {
protected:
    void SetUp() override
    {
        useBuiltBundle();
        qputenv("HALVERN_PLUGIN_PATH", QFileInfo(QStringLiteral(HALVERN_TEST_BUNDLE)).path().toUtf8());
        ASSERT_TRUE(server.addQueue(QStringLiteral("Tessarin"))) << qPrintable(server.error());
        photo = folder.filePath(QStringLiteral("quarters.jpg"));
        ASSERT_TRUE(quarters().save(photo, "JPEG", 95));
    }

    void TearDown() override { qunsetenv("HALVERN_PLUGIN_PATH"); }

    // Works a fresh dialog through the steps; the first step that fails is the answer.
    QString work(const QStringList& steps)
    {
        SessionRequest request;
        request.printer = QStringLiteral("Tessarin");
        request.files = {photo};
        // What the printer would answer meanwhile changes the resolution, and with it the size of the page.
        request.panelsAskPrinter = false;
        DialogSession session(request, panels);
        PrintDialog dialog(session);
        dialog.show();
        session.start();
        QString said;
        QTextStream out(&said);
        DemoSteps worker(dialog, session, folder.path(), out);
        for (const QString& step : steps) {
            const QString problem = worker.run(step);
            if (!problem.isEmpty())
                return step + QStringLiteral(": ") + problem;
        }
        job = dialog.outcome().jobId;
        dialog.close();
        return {};
    }

    BeepCounter beeps;
    PrivateCups server;
    PluginLoader panels;
    QTemporaryDir folder;
    QString photo;
    int job = 0;
};

TEST_F(PrintPhotoTest, TheSharpnessAndThePageArriveAsChosen)
{
    ASSERT_EQ(work({QStringLiteral("ready"), QStringLiteral("page com.halvern.print.pde.sharpness"),
                    QStringLiteral("click tag:0x200"), QStringLiteral("slide tag:1 7"),
                    QStringLiteral("type tag:0x142 1.237"), QStringLiteral("print")}),
              QString());
    const auto options = server.receivedOptions(job);
    ASSERT_TRUE(options.has_value());
    EXPECT_EQ(options->at(QStringLiteral("SharpnessEnabled")), QStringLiteral("True"));
    // Neither number is a choice that the printer's description lists.
    EXPECT_EQ(options->at(QStringLiteral("SharpnessRadius")), QStringLiteral("7"));
    EXPECT_EQ(options->at(QStringLiteral("SharpnessIntensity")), QStringLiteral("1.24"));
    EXPECT_EQ(options->at(QStringLiteral("PageSize")), QStringLiteral("4x6"));

    const QImage page(server.jobFile(job, QStringLiteral("page-1.png")));
    ASSERT_EQ(page.size(), QSize(1200, 1800));
    // The sheet lies upright in the printer, the picture across it: a quarter turn, nothing mirrored.
    EXPECT_EQ(colourAt(page, 0.25, 0.75), QColor(Qt::red));
    EXPECT_EQ(colourAt(page, 0.25, 0.25), QColor(Qt::green));
    EXPECT_EQ(colourAt(page, 0.75, 0.75), QColor(Qt::blue));
    EXPECT_EQ(colourAt(page, 0.75, 0.25), QColor(Qt::yellow));
    EXPECT_EQ(colourAt(page, 0.005, 0.005), QColor(Qt::white));
}

TEST_F(PrintPhotoTest, WhatOneDialogChoseDoesNotReachTheNext)
{
    ASSERT_EQ(work({QStringLiteral("ready"), QStringLiteral("page com.halvern.print.pde.sharpness"),
                    QStringLiteral("click tag:0x200"), QStringLiteral("close")}),
              QString());
    ASSERT_EQ(work({QStringLiteral("ready"), QStringLiteral("print")}), QString());
    const auto options = server.receivedOptions(job);
    ASSERT_TRUE(options.has_value());
    EXPECT_EQ(options->at(QStringLiteral("SharpnessEnabled")), QStringLiteral("False"));
    EXPECT_EQ(options->at(QStringLiteral("SharpnessIntensity")), QStringLiteral("1.00"));
    EXPECT_EQ(beeps.count, 0);
}

} // namespace halvern
