// SPDX-License-Identifier: MIT
#include "dialog/preview/sharp_photo_reader.h"

#include "dialog/page/picture.h"
#include "dialog/page/scaled_rows.h"
#include "platform/foundation/threads/work_queue.h"
#include "platform/foundation/units.h"

#include <QPointer>

#include <algorithm>
#include <cmath>

namespace halvern {

namespace {

constexpr double kMostDots = 100e6; // of which no screen shows more than a part: they cost memory

// As many dots as may be, in the same shape.
QSize bearable(const QSize& dots)
{
    const double share = kMostDots / (double(dots.width()) * dots.height());
    return share < 1.0 ? (QSizeF(dots) * std::sqrt(share)).toSize().expandedTo({1, 1}) : dots;
}

// A PDF has no pixels of its own: its page is drawn at the resolution that gives these dots.
int resolutionFor(const Photo& photo, const QSize& dots)
{
    return std::clamp(int(dots.width() * kPointsPerInch / std::max(photo.ownSize.width(), 1.0)), 1, 1200);
}

QImage readInDots(const Photo& photo, const QSize& wanted, QString* problem)
{
    const QSize dots = bearable(wanted);
    const int leastEdge = std::max(dots.width(), dots.height());
    std::unique_ptr<PictureRows> rows = openPixels(photo, resolutionFor(photo, dots), leastEdge, problem);
    if (!rows)
        return {};
    // Made smaller while it is read: the whole does not have to be in memory.
    const QSize given = rows->picture().size;
    const QSize limit = rows->picture().orientation.upright(dots);
    if (given.width() > limit.width() && given.height() > limit.height())
        rows = std::make_unique<ScaledRows>(std::move(rows), limit);
    const Picture picture = readPicture(*rows);
    *problem = picture.problem;
    const QImage image = picture.image;
    return image.convertToFormat(image.hasAlphaChannel() ? QImage::Format_ARGB32_Premultiplied
                                                         : QImage::Format_RGB32);
}

} // namespace

bool SharpPhotoReader::isWanted(const Photo& photo, const QSize& dots) const
{
    return keyOf(photo) == keyOf(wanted_) && dots == wantedDots_;
}

void SharpPhotoReader::read(const Photo& photo, const QSize& dots)
{
    if (isWanted(photo, dots))
        return;
    wanted_ = photo;
    wantedDots_ = dots;
    isAnswered_ = false;
    if (!isBusy_)
        start();
}

void SharpPhotoReader::forget()
{
    wanted_ = Photo();
    wantedDots_ = QSize();
}

void SharpPhotoReader::start()
{
    isBusy_ = true;
    QPointer<SharpPhotoReader> self(this);
    WorkQueue().async([self, photo = wanted_, dots = wantedDots_] {
        QString problem;
        const QImage detail = readInDots(photo, dots, &problem);
        mainQueue().async([self, photo, dots, detail, problem] {
            if (self)
                self->take(photo, dots, detail, problem);
        });
    });
}

void SharpPhotoReader::take(const Photo& photo, const QSize& dots, const QImage& detail,
                            const QString& problem)
{
    isBusy_ = false;
    if (!isWanted(photo, dots)) {
        if (isReading())
            start();
        return;
    }
    isAnswered_ = true;
    if (detail.isNull())
        Q_EMIT failed(problem);
    else
        Q_EMIT ready(detail);
}

} // namespace halvern
