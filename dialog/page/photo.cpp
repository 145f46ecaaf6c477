#include "dialog/page/photo.h"

#include <QColorSpace>
#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QImageReader>
#include <QMutex>
#include <QtMath>

#include <poppler-qt6.h>

#include <algorithm>

namespace halvern {

namespace {

constexpr int kAllocationMegabytes = 2048; // 100 megapixels at 16 bits a channel, and a copy
constexpr double kPointsPerInch = 72.0;
constexpr double kPointsPerMetre = 2834.645669291339;
constexpr double kAssumedResolution = 300.0;
constexpr int kMostPixels = 400'000'000;

QString words(const char* text)
{
    return QCoreApplication::translate("Photo", text);
}

QString named(const char* text, const QString& path)
{
    return words(text).arg(QDir::toNativeSeparators(path));
}

// Cameras and scanners write a resolution; a plain 72 or 96 is what programs write that know none.
QSizeF ownSizeInPoints(const QImage& image)
{
    const double perMetre = image.dotsPerMeterX();
    const double resolution = perMetre * 0.0254;
    const double dpi = resolution > 100.0 ? resolution : kAssumedResolution;
    return QSizeF(image.size()) * (kPointsPerInch / dpi);
}

QImage inSrgb(QImage image)
{
    const QColorSpace space = image.colorSpace();
    if (space.isValid() && space != QColorSpace(QColorSpace::SRgb)) {
        image.convertToColorSpace(QColorSpace::SRgb);
    }
    return image;
}

QImage decode(const QString& path, QString* problem)
{
    QImageReader::setAllocationLimit(kAllocationMegabytes);
    QImageReader reader(path);
    reader.setAutoTransform(true);
    reader.setDecideFormatFromContent(true);
    const QSize size = reader.size();
    if (size.isValid() && qint64(size.width()) * size.height() > kMostPixels) {
        *problem = named(QT_TRANSLATE_NOOP("Photo",
                                           "\"%1\" is too large to print. Make a copy with fewer pixels and "
                                           "print that."),
                         path);
        return {};
    }
    QImage image = reader.read();
    if (image.isNull()) {
        *problem =
            reader.canRead() || reader.error() == QImageReader::InvalidDataError
                ? named(QT_TRANSLATE_NOOP("Photo",
                                          "\"%1\" is damaged and cannot be read. Export it from your "
                                          "photo program again."),
                        path)
                : named(QT_TRANSLATE_NOOP("Photo", "\"%1\" is not a picture that can be printed. Use a JPEG, "
                                                   "PNG, TIFF or PDF file."),
                        path);
        return {};
    }
    return inSrgb(std::move(image));
}

QImage smallCopy(const QImage& image)
{
    const QSize bounds(kPreviewEdge, kPreviewEdge);
    QImage copy = image;
    if (image.width() > kPreviewEdge || image.height() > kPreviewEdge)
        copy = image.scaled(bounds, Qt::KeepAspectRatio, Qt::SmoothTransformation);
    return copy.convertToFormat(copy.hasAlphaChannel() ? QImage::Format_ARGB32_Premultiplied
                                                       : QImage::Format_RGB32);
}

bool looksLikePdf(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) && file.read(1024).contains("%PDF-");
}

std::unique_ptr<Poppler::Document> openPdf(const QString& path, QString* problem)
{
    // Otherwise it would write its complaints to the terminal.
    Poppler::setDebugErrorFunction([](const QString&, const QVariant&) {}, {});
    std::unique_ptr<Poppler::Document> document = Poppler::Document::load(path);
    if (!document || document->numPages() < 1) {
        *problem = named(QT_TRANSLATE_NOOP("Photo",
                                           "\"%1\" is damaged and cannot be read. Export it from your photo "
                                           "program again."),
                         path);
        return nullptr;
    }
    if (document->isLocked()) {
        *problem =
            named(QT_TRANSLATE_NOOP("Photo", "\"%1\" is locked with a password. Save a copy without one and "
                                             "print that."),
                  path);
        return nullptr;
    }
    document->setRenderHint(Poppler::Document::Antialiasing);
    document->setRenderHint(Poppler::Document::TextAntialiasing);
    return document;
}

PhotoFile readPdf(const QString& path)
{
    PhotoFile file;
    const auto document = openPdf(path, &file.problem);
    for (int i = 0; document && i < document->numPages(); ++i) {
        const std::unique_ptr<Poppler::Page> page = document->page(i);
        if (!page)
            continue;
        Photo photo{path, i, true, {}, page->pageSizeF(), {}};
        const double longer = std::max(photo.ownSize.width(), photo.ownSize.height());
        const double resolution =
            std::clamp(kPreviewEdge * kPointsPerInch / std::max(longer, 1.0), 1.0, 300.0);
        photo.preview = page->renderToImage(resolution, resolution).convertToFormat(QImage::Format_RGB32);
        file.pages.push_back(std::move(photo));
    }
    return file;
}

} // namespace

QString fileProblem(const QString& path)
{
    const QFileInfo info(path);
    if (!info.exists())
        return named(QT_TRANSLATE_NOOP("Photo", "There is no file \"%1\". Check its name."), path);
    if (info.isDir())
        return named(
            QT_TRANSLATE_NOOP("Photo", "\"%1\" is a folder. Name the photos in it, for example *.jpg."),
            path);
    if (!info.isReadable())
        return named(QT_TRANSLATE_NOOP("Photo", "\"%1\" cannot be opened. Check that you may read it."),
                     path);
    if (!info.isFile())
        return named(QT_TRANSLATE_NOOP(
                         "Photo", "\"%1\" is not a picture that can be printed. Use a JPEG, PNG, TIFF or "
                                  "PDF file."),
                     path);
    if (info.size() == 0)
        return named(QT_TRANSLATE_NOOP("Photo", "\"%1\" is empty. Copy it from the camera again."), path);
    return {};
}

PhotoFile readPhotoFile(const QString& path)
{
    PhotoFile file;
    file.problem = fileProblem(path);
    if (!file.problem.isEmpty())
        return file;
    if (looksLikePdf(path))
        return readPdf(path);
    const QImage image = decode(path, &file.problem);
    if (!image.isNull())
        file.pages.push_back({path, 0, false, image.size(), ownSizeInPoints(image), smallCopy(image)});
    return file;
}

QImage readPixels(const Photo& photo, int resolution, QString* problem)
{
    *problem = fileProblem(photo.path);
    if (!problem->isEmpty())
        return {};
    if (!photo.isPdf)
        return decode(photo.path, problem);
    const auto document = openPdf(photo.path, problem);
    const std::unique_ptr<Poppler::Page> page = document ? document->page(photo.page) : nullptr;
    if (document && !page)
        *problem =
            named(QT_TRANSLATE_NOOP("Photo", "\"%1\" has changed meanwhile. Open it again."), photo.path);
    return page ? page->renderToImage(resolution, resolution) : QImage();
}

} // namespace halvern
