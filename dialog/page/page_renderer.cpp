// SPDX-License-Identifier: MIT
#include "dialog/page/page_renderer.h"

#include "dialog/page/caption.h"
#include "dialog/page/colour_transform.h"
#include "dialog/page/jpeg_data.h"
#include "dialog/page/packed_rows.h"
#include "dialog/page/pdf_file.h"
#include "dialog/page/photo_facts.h"
#include "dialog/page/photo_problem.h"
#include "dialog/page/scaled_rows.h"
#include "platform/foundation/units.h"

#include <QCoreApplication>
#include <QFile>
#include <QPainter>
#include <QThread>

#include <algorithm>
#include <map>
#include <tuple>
#include <vector>

namespace halvern {

namespace {

constexpr int kMostTimesPrinterResolution = 2;
constexpr double kThinLine = 0.25; // points
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

/// A picture in the file, and how it is stored.
struct AddedPicture {
    int object = 0;
    Orientation stored;
    QString problem;
};

/// What a photo is wanted for on its sheet: the largest of its places decides.
struct Use {
    const Photo& photo;
    QSizeF onPaper; ///< points, upright
    bool isAlone = true;
};

// The JPEG file whose data may go in as they are.
std::optional<JpegInfo> untouched(const Use& use, const ColourPlan& plan, const QSize& most)
{
    std::optional<JpegInfo> jpeg = untouchableJpeg(use.photo);
    if (jpeg && !ColourTransform(jpeg->asStored(), plan).changesNothing())
        jpeg.reset();
    const QSize upright = jpeg ? jpeg->orientation.upright(jpeg->size) : QSize();
    // Of a hundred on a sheet none is sent as it came from the camera.
    if (!use.isAlone && upright.width() > most.width() && upright.height() > most.height())
        jpeg.reset();
    return jpeg;
}

AddedPicture addPicture(PdfFile& pdf, const Use& use, const PdfQuality& quality)
{
    AddedPicture added;
    added.problem = fileProblem(use.photo.path);
    if (!added.problem.isEmpty())
        return added;
    const QSize most = mostPixels(use.onPaper, quality.resolution);
    if (const std::optional<JpegInfo> jpeg = untouched(use, quality.colours, most)) {
        added.problem = addJpeg(pdf, use.photo.path, *jpeg);
        added.stored = jpeg->orientation;
    } else {
        // A PDF page that is enlarged needs more dots than its own size says.
        const double enlarged = use.onPaper.width() / std::max(use.photo.ownSize.width(), 1.0);
        const int dots = std::clamp(int(quality.resolution * enlarged), 72, 1200);
        std::unique_ptr<PictureRows> rows =
            openPixels(use.photo, dots, std::max(most.width(), most.height()), &added.problem);
        if (!rows)
            return added;
        rows = withoutSparePixels(std::move(rows), most);
        added.stored = rows->picture().orientation;
        added.problem = addRows(pdf, *rows, quality.colours);
    }
    if (added.problem.isEmpty() && hasChanged(use.photo))
        added.problem = photoProblem(PhotoFault::changed, use.photo.path);
    added.object = pdf.endPicture();
    return added;
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

// Where a photo is for the first time on its sheet; the others use its picture.
std::vector<size_t> firstPlaces(const std::vector<Photo>& photos)
{
    std::map<PhotoKey, size_t> first;
    std::vector<size_t> places;
    for (size_t i = 0; i < photos.size(); ++i)
        places.push_back(first.try_emplace(keyOf(photos[i]), i).first->second);
    return places;
}

QSizeF uprightOnPaper(const PageLayout& layout)
{
    return turnedSize(layout.photo.size(), layout.quarterTurns);
}

/// Writes the sheets, one after the other.
class SheetWriter {
public:
    SheetWriter(QIODevice& device, const PdfQuality& quality, const PdfControl& control)
        : pdf_(device), quality_(quality), control_(control)
    {
    }

    QString write(const std::vector<SheetToPrint>& sheets)
    {
        for (const SheetToPrint& sheet : sheets)
            photos_ += sheet.photos.size();
        for (const SheetToPrint& sheet : sheets) {
            const QString problem = add(sheet);
            if (!problem.isEmpty() || isStopped_)
                return problem;
        }
        return pdf_.finish() ? QString() : writeProblem();
    }

private:
    QString add(const SheetToPrint& printed)
    {
        const QTransform toSheet = printed.sheet.page.pageToSheet();
        const QSizeF paper = toSheet.mapRect(QRectF(QPointF(), printed.sheet.page.page)).size();
        const std::vector<size_t> first = firstPlaces(printed.photos);
        std::vector<AddedPicture> added(printed.photos.size());
        std::vector<int> objects;
        PdfContent content(paper);
        for (size_t i = 0; i < printed.photos.size(); ++i) {
            if (!waitWhilePaused(pdf_, control_, double(done_++) / double(photos_))) {
                isStopped_ = true;
                return {};
            }
            const PageLayout& layout = printed.sheet.photos[i].layout;
            if (first[i] == i) {
                added[i] = pictureFor(useOf(printed, first, i));
                if (!added[i].problem.isEmpty())
                    return added[i].problem;
                objects.push_back(added[i].object);
            }
            const auto number = std::ranges::find(objects, added[first[i]].object) - objects.begin();
            content.addPicture(int(number), toSheet.mapRect(layout.frame.intersected(layout.imageable)),
                               uprightFromStored(added[first[i]].stored) * photoToSheet(layout));
        }
        addMarks(content, printed, toSheet);
        pdf_.addPage(paper, content, objects);
        return {};
    }

    // One that is on many sheets is in the file once for each size that it is wanted in.
    AddedPicture pictureFor(const Use& use)
    {
        const QSize most = mostPixels(use.onPaper, quality_.resolution);
        AddedPicture& picture =
            pictures_[{use.photo.path, use.photo.page, most.width(), most.height(), use.isAlone}];
        if (picture.object == 0)
            picture = addPicture(pdf_, use, quality_);
        return picture;
    }

    static Use useOf(const SheetToPrint& printed, const std::vector<size_t>& first, size_t place)
    {
        Use use{printed.photos[place], {}, printed.photos.size() == 1};
        for (size_t i = 0; i < first.size(); ++i) {
            if (first[i] == place)
                use.onPaper = use.onPaper.expandedTo(uprightOnPaper(printed.sheet.photos[i].layout));
        }
        return use;
    }

    static void addMarks(PdfContent& content, const SheetToPrint& printed, const QTransform& toSheet)
    {
        for (const QLineF& mark : printed.sheet.cutMarks)
            content.addLine(toSheet.map(mark), kThinLine);
        std::map<PhotoKey, PhotoDetails> known;
        for (size_t i = 0; i < printed.photos.size(); ++i) {
            const PlacedPhoto& placed = printed.sheet.photos[i];
            const Photo& photo = printed.photos[i];
            if (printed.sheet.hasLine)
                content.addFrame(toSheet.mapRect(placed.outline), kThinLine);
            if (placed.caption.isEmpty())
                continue;
            const auto [details, isNew] = known.try_emplace(keyOf(photo));
            if (isNew && needsDetails(printed.caption))
                details->second = readPhotoFacts(photo).details;
            const QString text = captionFor(printed.caption, photo.path, placed.number, details->second);
            content.addShapes(toSheet.map(captionShapes(text, placed.caption, placed.layout.layoutsTurns)));
        }
    }

    PdfFile pdf_;
    const PdfQuality& quality_;
    const PdfControl& control_;
    std::map<std::tuple<QString, int, int, int, bool>, AddedPicture> pictures_;
    size_t photos_ = 0;
    size_t done_ = 0;
    bool isStopped_ = false;
};

} // namespace

SheetToPrint::SheetToPrint(const Photo& photo, const PageLayout& layout)
{
    sheet.page = layout;
    PlacedPhoto placed;
    placed.layout = layout;
    placed.cell = layout.frame;
    placed.outline = layout.visible();
    sheet.photos.push_back(placed);
    photos.push_back(photo);
}

QTransform photoToSheet(const PageLayout& layout)
{
    const QTransform toPage(layout.photo.width(), 0.0, 0.0, layout.photo.height(), layout.photo.left(),
                            layout.photo.top());
    return uprightFromStored({layout.quarterTurns, false}) * toPage * layout.pageToSheet();
}

void paintPhoto(QPainter& painter, const PageLayout& layout, const QImage& photo)
{
    painter.save();
    painter.setClipRect(layout.frame.intersected(layout.imageable), Qt::IntersectClip);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    // The job's road: the photo to the sheet, and the sheet turned as the user looks at it.
    const QTransform unit(1.0 / std::max(photo.width(), 1), 0.0, 0.0, 1.0 / std::max(photo.height(), 1), 0.0,
                          0.0);
    painter.setTransform(unit * photoToSheet(layout) * layout.pageToSheet().inverted(), true);
    painter.drawImage(0, 0, photo);
    painter.restore();
}

void paintPage(QPainter& painter, const PageLayout& layout, const QImage& photo, const QColor& paper)
{
    painter.fillRect(QRectF(QPointF(), layout.page), paper);
    paintPhoto(painter, layout, photo);
}

void paintMarks(QPainter& painter, const Sheet& sheet, const QStringList& captions)
{
    painter.save();
    painter.setBrush(Qt::NoBrush);
    // On a screen that shows it whole a quarter of a point would be nothing.
    painter.setPen(QPen(Qt::black, 0.0));
    for (const QLineF& mark : sheet.cutMarks)
        painter.drawLine(mark);
    for (size_t i = 0; i < sheet.photos.size(); ++i) {
        const PlacedPhoto& placed = sheet.photos[i];
        if (sheet.hasLine)
            painter.drawRect(placed.outline);
        if (!placed.caption.isEmpty())
            painter.fillPath(
                captionShapes(captions.value(qsizetype(i)), placed.caption, placed.layout.layoutsTurns),
                Qt::black);
    }
    painter.restore();
}

QString writePdf(QIODevice& device, const std::vector<SheetToPrint>& sheets, const PdfQuality& quality,
                 const PdfControl& control)
{
    return SheetWriter(device, quality, control).write(sheets);
}

} // namespace halvern
