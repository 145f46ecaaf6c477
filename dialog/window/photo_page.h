// SPDX-License-Identifier: MIT
#pragma once

#include "dialog/page/photo_facts.h"

#include <QWidget>

class QFormLayout;

namespace halvern {

/// About the photo: what its file tells of it. Reads that on a worker, and only while it is shown. Main
/// thread only.
class PhotoPage : public QWidget {
    Q_OBJECT

public:
    explicit PhotoPage(QWidget* parent);

    /// The photo that the preview shows.
    void setPhoto(const Photo& photo);

protected:
    void showEvent(QShowEvent* event) override;

private:
    void read();
    void show(const PhotoFacts& facts);
    void addRow(const QString& title, const QString& text);
    bool isOf(const Photo& photo) const;

    QFormLayout* form_;
    Photo photo_;
    bool isRead_ = true;
};

} // namespace halvern
