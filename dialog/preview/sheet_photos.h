// SPDX-License-Identifier: MIT
#pragma once

#include "dialog/page/photo_opening.h"
#include "dialog/photo/photo_details.h"

#include <QObject>

#include <map>
#include <optional>
#include <vector>

namespace halvern {

/// Pictures of many photos on one sheet, in no more pixels than the sheet shows of each, and what their files
/// tell for captions. A worker reads them, one after the other. Main thread only; never waits.
class SheetPhotos : public QObject {
    Q_OBJECT

public:
    explicit SheetPhotos(QObject* parent) : QObject(parent) {}

    /// The sheet's photos; those of another one are dropped. Begins to read what is not there.
    void want(const std::vector<Photo>& photos, int edge, bool withDetails);

    /// The photo, about `edge` pixels long; null as long as it is not read.
    QImage image(const Photo& photo) const;

    /// What is known for a caption; nothing as long as it is not read.
    std::optional<PhotoDetails> details(const Photo& photo) const;

Q_SIGNALS:
    /// There is one more.
    void changed();
    /// Some of the pixels are made up.
    void damageFound(const QString& path, int page);

private:
    struct Kept {
        Photo photo;
        QImage image;
        int edge = 0; // that it was read for
        std::optional<PhotoDetails> details;
        bool isBroken = false;
    };

    /// What a worker brings: no more than was not there.
    struct Answer {
        std::optional<SmallCopy> copy;
        int edge = 0;
        std::optional<PhotoDetails> details;
    };

    void readNext();
    void take(const PhotoKey& key, const Answer& answer);

    std::map<PhotoKey, Kept> kept_;
    int edge_ = 0;
    bool withDetails_ = false;
    bool isBusy_ = false;
};

} // namespace halvern
