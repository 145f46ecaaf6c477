// SPDX-License-Identifier: MIT
#include "dialog/page/page_renderer.h"

#include "dialog/page/colour_transform.h"
#include "dialog/page/jpeg_data.h"
#include "dialog/page/packed_rows.h"
#include "dialog/page/pdf_file.h"
#include "dialog/page/photo_problem.h"
#include "dialog/page/scaled_rows.h"
#include "platform/foundation/units.h"

#include <QCoreApplication>
#include <QFile>
#include <QPainter>
#include <QThread>

#include <algorithm>
#include <vector>

namespace halvern {

namespace {

constexpr int kMostTimesPrinterResolution = 2;
constexpr qint64 kPiece = 64 * 1024;
constexpr qsizetype kStripPixels = 1024 * 1024;
constexpr int kPauseStep = 100;        // milliseconds
constexpr int kSignOfLife = 60 * 1000; // a server takes some minutes of silence for the end

QString writeProblem()
{
    return QCoreApplication::translate(
        "PageRenderer", "The pages could not be written. Make room on the disk and try again.");
}

// From the stored picture's unit square to the upright one's.
QTransform uprightFromStored(const Orientation& how)
{
    QTransform t;
    t.translate(0.5, 0.5);
    t.rotate(90.0 * how.quarterTurns);
    if (how.isMirrored)
        t.scale(-1.0, 1.0);
    t.translate(-0.5, -0.5);
    return t;
}

// How many pixels of the upright photo the paper is worth: more cost time and memory in every filter, and
// change nothing on paper.
QSize mostPixels(const QSizeF& onPaper, int resolution)
{
    const double most = kMostTimesPrinterResolution * resolution / kPointsPerInch;
    return {int(onPaper.width() * most) + 1, int(onPaper.height() * most) + 1};
}

std::unique_ptr<PictureRows> withoutSparePixels(std::unique_ptr<PictureRows> rows, const QSize& most)
{
    const StoredPicture& picture = rows->picture();
    // From upright to stored is the same swap.
    const QSize limit = picture.orientation.upright(most);
    if (picture.size.width() <= limit.width() || picture.size.height() <= limit.height())
        return rows;
    return std::make_unique<ScaledRows>(std::move(rows), limit);
}

struct PlacedPage {
    QSizeF paper;
    QRectF clip;
    QTransform placement;
};

PlacedPage placed(const PageLayout& layout)
{
    const QTransform toSheet = layout.pageToSheet();
    return {toSheet.mapRect(QRectF(QPointF(), layout.page)).size(), toSheet.mapRect(layout.imageable),
            photoToSheet(layout)};
}

// A few rows at a time: read, converted on all cores, packed.
QString addRows(PdfFile& pdf, PictureRows& rows, const ColourPlan& plan)
{
    const StoredPicture& picture = rows.picture();
    const ColourTransform colours(picture, plan);
    const qsizetype width = picture.size.width();
    const int strip = int(std::clamp<qsizetype>(kStripPixels / width, 1, picture.size.height()));
    std::vector<uchar> given(size_t(strip * picture.rowBytes()));
    std::vector<uchar> converted(size_t(strip * width * colours.channels()));
    pdf.beginPicture({picture.size, colours.channels(), "FlateDecode"});
    PackedRows packed(pdf);
    for (int left = picture.size.height(); left > 0;) {
        const int count = rows.read(given.data(), std::min(strip, left));
        if (count == 0)
            return rows.problem();
        colours.convertOnAllCores(given.data(), converted.data(), count * width);
        if (!packed.add(converted.data(), count * width * colours.channels()))
            return writeProblem();
        left -= count;
    }
    return packed.finish() ? rows.problem() : writeProblem();
}

QString addJpeg(PdfFile& pdf, const QString& path, const JpegInfo& jpeg)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return photoProblem(PhotoFault::changed, path);
    pdf.beginPicture({jpeg.size, jpeg.components, "DCTDecode"});
    QByteArray piece(kPiece, Qt::Uninitialized);
    for (qint64 left = file.size(); left > 0;) {
        const qint64 count = file.read(piece.data(), std::min(left, kPiece));
        if (count <= 0)
            return photoProblem(PhotoFault::changed, path);
        if (!pdf.addToPicture(piece.constData(), count))
            return writeProblem();
        left -= count;
    }
    return {};
}

// The JPEG file whose data may go in as they are.
std::optional<JpegInfo> untouched(const Photo& photo, const ColourPlan& plan)
{
    std::optional<JpegInfo> jpeg = untouchableJpeg(photo);
    if (jpeg && !ColourTransform(jpeg->asStored(), plan).changesNothing())
        jpeg.reset();
    return jpeg;
}

QString addPage(PdfFile& pdf, const PageToPrint& page, const PdfQuality& quality)
{
    const PageLayout& layout = page.layout;
    PlacedPage place = placed(layout);
    QString problem = fileProblem(page.photo.path);
    if (!problem.isEmpty())
        return problem;
    Orientation stored;
    if (const std::optional<JpegInfo> jpeg = untouched(page.photo, quality.colours)) {
        problem = addJpeg(pdf, page.photo.path, *jpeg);
        stored = jpeg->orientation;
    } else {
        const QSize most = mostPixels(layout.photo.size(), quality.resolution);
        // A PDF page that is enlarged needs more dots than its own size says.
        const double enlarged = layout.photo.width() / std::max(page.photo.ownSize.width(), 1.0);
        const int dots = std::clamp(int(quality.resolution * enlarged), 72, 1200);
        std::unique_ptr<PictureRows> rows =
            openPixels(page.photo, dots, std::max(most.width(), most.height()), &problem);
        if (rows) {
            rows = withoutSparePixels(std::move(rows), most);
            stored = rows->picture().orientation;
            problem = addRows(pdf, *rows, quality.colours);
        }
    }
    if (problem.isEmpty())
        pdf.endPage(place.paper, place.clip, uprightFromStored(stored) * place.placement);
    return problem;
}

// False if the whole is to be stopped.
bool waitWhilePaused(PdfFile& pdf, const PdfControl& control, double done)
{
    int waited = 0;
    while (control.isPaused && control.isPaused()) {
        if (!control.keepGoing(done))
            return false;
        QThread::msleep(kPauseStep);
        waited += kPauseStep;
        if (waited % kSignOfLife == 0)
            pdf.sayStillHere();
    }
    return control.keepGoing(done);
}

} // namespace

QTransform photoToSheet(const PageLayout& layout)
{
    const QTransform toPage(layout.photo.width(), 0.0, 0.0, layout.photo.height(), layout.photo.left(),
                            layout.photo.top());
    return toPage * layout.pageToSheet();
}

void paintPage(QPainter& painter, const PageLayout& layout, const QImage& photo)
{
    painter.save();
    painter.fillRect(QRectF(QPointF(), layout.page), Qt::white);
    painter.setClipRect(layout.imageable, Qt::IntersectClip);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    // The job's road: the photo to the sheet, and the sheet turned as the user looks at it.
    const QTransform unit(1.0 / std::max(photo.width(), 1), 0.0, 0.0, 1.0 / std::max(photo.height(), 1), 0.0,
                          0.0);
    painter.setTransform(unit * photoToSheet(layout) * layout.pageToSheet().inverted(), true);
    painter.drawImage(0, 0, photo);
    painter.restore();
}

QString writePdf(QIODevice& device, const std::vector<PageToPrint>& pages, const PdfQuality& quality,
                 const PdfControl& control)
{
    PdfFile pdf(device);
    double done = 0.0;
    for (const PageToPrint& page : pages) {
        if (!waitWhilePaused(pdf, control, done / double(pages.size())))
            return {};
        const QString problem = addPage(pdf, page, quality);
        if (!problem.isEmpty())
            return problem;
        done += 1.0;
    }
    return pdf.finish() ? QString() : writeProblem();
}

} // namespace halvern
