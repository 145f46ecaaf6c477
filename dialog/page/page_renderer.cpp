// SPDX-License-Identifier: MIT
#include "dialog/page/page_renderer.h"

#include "dialog/page/jpeg_data.h"
#include "dialog/page/pdf_file.h"
#include "dialog/page/photo_problem.h"
#include "platform/foundation/units.h"

#include <QCoreApplication>
#include <QPainter>

#include <algorithm>

namespace halvern {

namespace {

constexpr int kMostTimesPrinterResolution = 2;

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

PdfImage losslessImage(const QImage& image)
{
    const bool isGray = image.isGrayscale() && !image.hasAlphaChannel();
    const QImage plain = isGray ? image.convertToFormat(QImage::Format_Grayscale8) : onWhite(image);
    const int components = isGray ? 1 : 3;
    const qsizetype rowBytes = qsizetype(plain.width()) * components;
    QByteArray rows;
    rows.reserve(rowBytes * plain.height());
    for (int y = 0; y < plain.height(); ++y)
        rows.append(reinterpret_cast<const char*>(plain.constScanLine(y)), rowBytes);
    // qCompress puts four bytes of its own before the zlib stream. The job travels a socket, so speed counts.
    return {plain.size(), components, "FlateDecode", qCompress(rows, 1).mid(4)};
}

QString addPage(PdfFile& pdf, const PageToPrint& page, int resolution)
{
    const PageLayout& layout = page.layout;
    const QTransform toSheet = layout.pageToSheet();
    const QSizeF paper = toSheet.mapRect(QRectF(QPointF(), layout.page)).size();
    const QRectF clip = toSheet.mapRect(layout.imageable);
    const QString gone = fileProblem(page.photo.path);
    if (!gone.isEmpty())
        return gone;
    if (std::optional<JpegData> jpeg = readJpegData(page.photo)) {
        const QTransform placement = uprightFromStored(jpeg->orientation) * photoToSheet(layout);
        pdf.addPage(paper, clip, placement, {jpeg->size, jpeg->components, "DCTDecode", jpeg->bytes});
        return {};
    }
    QString problem;
    // A PDF page that is enlarged needs more dots than its own size says.
    const double enlarged = layout.photo.width() / std::max(page.photo.ownSize.width(), 1.0);
    const int dots = std::clamp(int(resolution * enlarged), 72, 1200);
    const QImage image = readPixels(page.photo, dots, &problem);
    if (image.isNull())
        return problem;
    pdf.addPage(paper, clip, photoToSheet(layout),
                losslessImage(withoutSparePixels(image, layout.photo.size(), resolution)));
    return {};
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
                 const std::function<bool(double)>& keepGoing)
{
    PdfFile pdf(device);
    double done = 0.0;
    for (const PageToPrint& page : pages) {
        if (!keepGoing(done / double(pages.size())))
            return {};
        const QString problem = addPage(pdf, page, resolution);
        if (!problem.isEmpty())
            return problem;
        done += 1.0;
    }
    if (!pdf.finish()) {
        return QCoreApplication::translate("PageRenderer",
                                           "The print job could not be written to a temporary file. Make "
                                           "room on the disk and try again.");
    }
    return {};
}

} // namespace halvern
