// SPDX-License-Identifier: MIT
#pragma once

#include "dialog/page/photo.h"

#include <QObject>

#include <deque>

namespace halvern {

struct SmallCopy;

/// The small copies of the photos that were looked at last, read by a worker, so that a thousand photos take
/// no more memory than a few. Main thread only; never waits.
class SmallCopies : public QObject {
    Q_OBJECT

public:
    explicit SmallCopies(QObject* parent) : QObject(parent) {}

    /// The photo's small copy; null if it has to be read first: ready() follows, unless another one is asked
    /// for meanwhile.
    QImage find(const Photo& photo);

Q_SIGNALS:
    void ready(const QImage& copy);
    /// Some of the pixels are made up; of a photo that is not wanted any more, too.
    void damageFound(const QString& path, int page);
    /// The sentence about a file that cannot be read any more, wanted or not.
    void failed(const QString& sentence);

private:
    struct Kept {
        PhotoKey photo;
        QImage image;
    };

    void read();
    void take(const Photo& photo, const SmallCopy& copy);

    std::deque<Kept> kept_; // the last one first
    Photo wanted_;
    bool isBusy_ = false;
};

} // namespace halvern
