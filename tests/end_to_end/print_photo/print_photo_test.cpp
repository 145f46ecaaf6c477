// SPDX-License-Identifier: MIT
#include "dialog/program/dialog_result.h"
#include "dialog/session/plugin_loader.h"
#include "tests/support/real_dialog.h"

#include <QJsonDocument>
#include <QJsonObject>
#include <QPainter>
#include <QSpinBox>

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
TEST(PrintPhoto, TheSharpnessAndThePageArriveAsChosen)
{
    useBuiltBundle();
    PrivateCups server;
    ASSERT_TRUE(server.addQueue(q("Tessarin"))) << qPrintable(server.error());
    const QTemporaryDir folder;
    SessionRequest request{q("Tessarin"), {}, {folder.filePath(q("quarters.jpg"))}};
    ASSERT_TRUE(quarters().save(request.files.front(), "JPEG", 95));
    // What the printer would answer meanwhile changes the resolution, and with it the size of the page.
    request.panelsAskPrinter = false;
    PluginLoader panels({QFileInfo(q(HALVERN_TEST_BUNDLE)).path()});
    RealDialog user(request, panels);
    ASSERT_TRUE(user.isReady() && user.showPage("com.halvern.print.pde.sharpness"));
    user.setOn(0x200, true);
    user.type(0x141, q("7"));
    user.type(0x142, q("1.237"));
    DialogResult result(user.session, user.dialog);
    const int job = user.print();
    user.dialog.findChild<QSpinBox*>(q("copies"))->setValue(9);
    const QJsonObject told = QJsonDocument::fromJson(result.json(0)).object();
    EXPECT_EQ(told.value(q("job")), job);
    EXPECT_EQ(told.value(q("copies")), 1) << "what was sent, not what is chosen since";
    EXPECT_EQ(told.value(q("options")).toObject().value(q("SharpnessEnabled")), q("True"));
    const auto options = server.receivedOptions(job);
    ASSERT_TRUE(options.has_value());
    EXPECT_EQ(options->at(q("SharpnessEnabled")), q("True"));
    // Neither number is a choice that the printer's description lists.
    EXPECT_EQ(options->at(q("SharpnessRadius")), q("7"));
    EXPECT_EQ(options->at(q("SharpnessIntensity")), q("1.24"));
    EXPECT_EQ(options->at(q("PageSize")), q("4x6"));

    const QImage page(server.jobFile(job, q("page-1.png")));
    ASSERT_EQ(page.size(), QSize(1200, 1800));
    // The sheet lies upright in the printer, the picture across it: a quarter turn, nothing mirrored.
    EXPECT_EQ(colourAt(page, 0.25, 0.75), QColor(Qt::red));
    EXPECT_EQ(colourAt(page, 0.25, 0.25), QColor(Qt::green));
    EXPECT_EQ(colourAt(page, 0.75, 0.75), QColor(Qt::blue));
    EXPECT_EQ(colourAt(page, 0.75, 0.25), QColor(Qt::yellow));
    EXPECT_EQ(colourAt(page, 0.005, 0.005), QColor(Qt::white));
}

} // namespace halvern
