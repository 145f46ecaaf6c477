// SPDX-License-Identifier: MIT
// Several photos on a sheet, measured on the pages that the printer has printed.
#include "dialog/session/plugin_loader.h"
#include "tests/support/real_dialog.h"

#include <QImageWriter>
#include <QPainter>

#include <algorithm>

namespace halvern {
namespace {

constexpr double kDotsPerMm = 300.0 / 25.4;
constexpr double kTolerance = 0.2; // millimetres

// A colour in each quarter, so that a page tells which way round it lies; the camera noted a turn.
QString photo(const QString& path, const QSize& size, QImageIOHandler::Transformation turn)
{
    QImage image(size, QImage::Format_RGB32);
    QPainter painter(&image);
    const QSize half = size / 2;
    painter.fillRect(QRect({0, 0}, half), Qt::red);
    painter.fillRect(half.width(), 0, size.width() - half.width(), half.height(), Qt::green);
    painter.fillRect(0, half.height(), half.width(), size.height() - half.height(), Qt::blue);
    painter.fillRect(half.width(), half.height(), size.width() - half.width(), size.height() - half.height(),
                     Qt::magenta);
    painter.end();
    const bool isMirrored = turn & QImageIOHandler::TransformationMirror;
    const bool isFlipped = turn & QImageIOHandler::TransformationFlip;
    QImage stored = image;
    if (turn & QImageIOHandler::TransformationRotate90)
        stored = stored.transformed(QTransform().rotate(-90));
    stored = stored.mirrored(isMirrored, isFlipped);
    QImageWriter writer(path, "JPEG");
    writer.setQuality(95);
    writer.setTransformation(turn);
    EXPECT_TRUE(writer.write(stored));
    return path;
}

bool isColoured(QRgb pixel)
{
    return std::max({qRed(pixel), qGreen(pixel), qBlue(pixel)}) -
               std::min({qRed(pixel), qGreen(pixel), qBlue(pixel)}) >
           100;
}

// What is coloured within a part of the page, in millimetres.
QRectF colouredPart(const QImage& page, const QRectF& part)
{
    QRect found;
    const QRect dots =
        QRectF(part.topLeft() * kDotsPerMm, part.size() * kDotsPerMm).toAlignedRect() & page.rect();
    for (int y = dots.top(); y <= dots.bottom(); ++y) {
        for (int x = dots.left(); x <= dots.right(); ++x) {
            if (isColoured(page.pixel(x, y)))
                found |= QRect(x, y, 1, 1);
        }
    }
    return {QPointF(found.topLeft()) / kDotsPerMm, QSizeF(found.size()) / kDotsPerMm};
}

bool hasInk(const QImage& page, const QRectF& part)
{
    const QRect dots =
        QRectF(part.topLeft() * kDotsPerMm, part.size() * kDotsPerMm).toAlignedRect() & page.rect();
    for (int y = dots.top(); y <= dots.bottom(); ++y) {
        for (int x = dots.left(); x <= dots.right(); ++x) {
            if (qGray(page.pixel(x, y)) < 128 && !isColoured(page.pixel(x, y)))
                return true;
        }
    }
    return false;
}

QRectF inMillimetres(const QRectF& points)
{
    return {points.topLeft() / kPointsPerMillimetre, points.size() / kPointsPerMillimetre};
}

void expectUpright(const QImage& page, const QTransform& photoToDots)
{
    const std::pair<QPointF, QColor> quarters[] = {{{0.25, 0.25}, Qt::red},
                                                   {{0.75, 0.25}, Qt::green},
                                                   {{0.25, 0.75}, Qt::blue},
                                                   {{0.75, 0.75}, Qt::magenta}};
    for (const auto& [at, wanted] : quarters) {
        const QColor found = page.pixelColor(photoToDots.map(at).toPoint());
        const auto settled = [](int value) { return value > 127 ? 255 : 0; };
        EXPECT_EQ(QColor(settled(found.red()), settled(found.green()), settled(found.blue())), wanted)
            << at.x() << ' ' << at.y();
    }
}

} // namespace

TEST(PrintedSheets, SixPhotosOfThreeShapesAreWhereTheLayoutSays)
{
    useBuiltBundle();
    PrivateCups server;
    ASSERT_TRUE(server.addQueue(q("Tessarin"))) << qPrintable(server.error());
    const QTemporaryDir folder;
    SessionRequest request{q("Tessarin"), {{q("PageSize"), q("A4")}}, {}};
    const QSize shapes[] = {{900, 600}, {600, 900}, {700, 700}};
    const QImageIOHandler::Transformation turns[] = {
        QImageIOHandler::TransformationNone,      QImageIOHandler::TransformationMirror,
        QImageIOHandler::TransformationRotate180, QImageIOHandler::TransformationRotate90,
        QImageIOHandler::TransformationRotate270, QImageIOHandler::TransformationMirrorAndRotate90};
    for (size_t i = 0; i < 6; ++i)
        request.files.append(photo(folder.filePath(q("%1.jpg")).arg(i), shapes[i % 3], turns[i]));
    request.panelsAskPrinter = false;
    PluginLoader panels({QFileInfo(q(HALVERN_TEST_BUNDLE)).path()});
    RealDialog user(request, panels);
    ASSERT_TRUE(user.isReady());
    user.session.chooseLayout(q("2x2"));
    PageSettings settings = user.session.page();
    settings.sheets.caption = q("[C]. [F]");
    settings.sheets.hasCutMarks = true;
    user.session.setPage(settings);
    const SheetPlan plan = *user.session.sheetPlan();
    ASSERT_EQ(plan.sheets.size(), 2u);
    // The printer leaves 3.0, 3.0, 3.0 and 4.2 mm free; four millimetres are between two places.
    const QRectF first = inMillimetres(plan.sheets[0].photos[0].cell);
    EXPECT_NEAR(first.left(), 3.0, kTolerance);
    EXPECT_NEAR(first.top(), 3.0, kTolerance);
    const int job = user.print();
    ASSERT_GT(job, 0);
    for (size_t i = 0; i < plan.sheets.size(); ++i) {
        const QImage page(server.jobFile(job, q("page-%1.png").arg(i + 1)));
        ASSERT_EQ(page.size(), QSize(2480, 3508));
        const Sheet& sheet = plan.sheets[i];
        const QTransform toSheet = sheet.page.pageToSheet();
        EXPECT_EQ(sheet.photos.size(), i == 0 ? 4u : 2u);
        for (const PlacedPhoto& placed : sheet.photos) {
            SCOPED_TRACE(placed.number);
            const QRectF wanted = inMillimetres(toSheet.mapRect(placed.layout.visible()));
            const QRectF found = colouredPart(page, inMillimetres(toSheet.mapRect(placed.cell)));
            EXPECT_NEAR(found.left(), wanted.left(), kTolerance);
            EXPECT_NEAR(found.top(), wanted.top(), kTolerance);
            EXPECT_NEAR(found.right(), wanted.right(), kTolerance);
            EXPECT_NEAR(found.bottom(), wanted.bottom(), kTolerance);
            expectUpright(page,
                          photoToSheet(placed.layout) * QTransform::fromScale(300.0 / 72.0, 300.0 / 72.0));
            EXPECT_TRUE(hasInk(page, inMillimetres(toSheet.mapRect(placed.caption))));
        }
        EXPECT_FALSE(sheet.cutMarks.empty());
        for (const QLineF& mark : sheet.cutMarks) {
            const QRectF line = inMillimetres(toSheet.mapRect(QRectF(mark.p1(), mark.p2()).normalized()));
            EXPECT_TRUE(hasInk(page, line.adjusted(-kTolerance, -kTolerance, kTolerance, kTolerance)));
        }
    }
}

} // namespace halvern
