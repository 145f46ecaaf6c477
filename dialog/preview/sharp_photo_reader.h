// SPDX-License-Identifier: MIT
#pragma once

#include "dialog/page/photo.h"

#include <QObject>

namespace halvern {

/// Reads a photo again in as many pixels as it has dots on paper, on a worker. One photo is read at a time,
/// and what nobody wants any more by then is dropped. Main thread only.
class SharpPhotoReader : public QObject {
    Q_OBJECT

public:
    using QObject::QObject;

    /// Asks for a photo in at most `dots` pixels. ready() or failed() follows, unless another one is asked
    /// for before; asking for the same again does nothing.
    void read(const Photo& photo, const QSize& dots);

    /// Asks for nothing any more.
    void forget();

    /// Whether an answer is still to come.
    bool isReading() const { return !wanted_.path.isEmpty() && !isAnswered_; }

Q_SIGNALS:
    void ready(const QImage& detail);
    void failed(const QString& sentence);

private:
    void start();
    void take(const Photo& photo, const QSize& dots, const QImage& detail, const QString& problem);
    bool isWanted(const Photo& photo, const QSize& dots) const;

    Photo wanted_;
    QSize wantedDots_;
    bool isAnswered_ = false;
    bool isBusy_ = false;
};

} // namespace halvern
