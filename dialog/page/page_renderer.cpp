// SPDX-License-Identifier: MIT
#include "dialog/page/page_renderer.h"

#include "dialog/page/jpeg_data.h"
#include "dialog/page/packed_rows.h"
#include "dialog/page/pdf_file.h"
#include "dialog/page/photo_problem.h"
#include "dialog/page/srgb.h"
#include "platform/foundation/units.h"

#include <QCoreApplication>
#include <QFile>
#include <QPainter>
#include <QThread>

#include <algorithm>

namespace halvern {

namespace {

constexpr int kMostTimesPrinterResolution = 2;
constexpr qint64 kPiece = 64 * 1024;
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

QImage onWhite(const QImage& image)
{
    if (!image.hasAlphaChannel())
        return image.convertToFormat(QImage::Format_RGB888);
    QImage opaque(image.size(), QImage::Format_RGB888);
    opaque.fill(Qt::white);
    QPainter painter(&opaque);
    painter.drawImage(0, 0, image);
    return opaque;
}

// More pixels than the printer can show cost time and memory in every filter, and change nothing on paper.
QImage withoutSparePixels(const QImage& image, const QSizeF& onPaper, int resolution)
{
    const double most = kMostTimesPrinterResolution * resolution / kPointsPerInch;
    const QSize limit(int(onPaper.width() * most) + 1, int(onPaper.height() * most) + 1);
    if (image.width() <= limit.width() || image.height() <= limit.height())
        return image;
    return image.scaled(limit, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
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

bool addPixels(PdfFile& pdf, const QImage& image)
{
    const bool isGray = image.isGrayscale() && !image.hasAlphaChannel();
    const QImage plain = isGray ? image.convertToFormat(QImage::Format_Grayscale8) : onWhite(image);
    const int components = isGray ? 1 : 3;
    pdf.beginPicture({plain.size(), components, "FlateDecode"});
    PackedRows rows(pdf);
    for (int y = 0; y < plain.height(); ++y) {
        if (!rows.add(plain.constScanLine(y), qsizetype(plain.width()) * components))
            return false;
    }
    return rows.finish();
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

QString addPage(PdfFile& pdf, const PageToPrint& page, int resolution)
{
    const PageLayout& layout = page.layout;
    PlacedPage place = placed(layout);
    QString problem = fileProblem(page.photo.path);
    if (!problem.isEmpty())
        return problem;
    if (const std::optional<JpegInfo> jpeg = untouchableJpeg(page.photo);
        jpeg && isSrgb(jpeg->profile, jpeg->components == 1)) {
        problem = addJpeg(pdf, page.photo.path, *jpeg);
        place.placement = uprightFromStored(jpeg->orientation) * place.placement;
    } else {
        // A PDF page that is enlarged needs more dots than its own size says.
        const double enlarged = layout.photo.width() / std::max(page.photo.ownSize.width(), 1.0);
        const int dots = std::clamp(int(resolution * enlarged), 72, 1200);
        const QImage image = readPixels(page.photo, dots, &problem);
        if (!image.isNull() && !addPixels(pdf, withoutSparePixels(image, layout.photo.size(), resolution)))
            problem = writeProblem();
    }
    if (problem.isEmpty())
        pdf.endPage(place.paper, place.clip, place.placement);
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

QString writePdf(QIODevice& device, const std::vector<PageToPrint>& pages, int resolution,
                 const PdfControl& control)
{
    PdfFile pdf(device);
    double done = 0.0;
    for (const PageToPrint& page : pages) {
        if (!waitWhilePaused(pdf, control, done / double(pages.size())))
            return {};
        const QString problem = addPage(pdf, page, resolution);
        if (!problem.isEmpty())
            return problem;
        done += 1.0;
    }
    return pdf.finish() ? QString() : writeProblem();
}

} // namespace halvern
