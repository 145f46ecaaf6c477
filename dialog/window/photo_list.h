// SPDX-License-Identifier: MIT
#pragma once

#include <QListView>

#include <optional>

class QTimer;

namespace halvern {

class PhotoListModel;
class Thumbnails;

/// A row of thumbnails, from the first photo to the last. Only those in sight are read, and drawn with what
/// there is of them. Photos are dragged to other places. Main thread only.
class PhotoList : public QListView {
    Q_OBJECT

public:
    /// Both outlive it.
    PhotoList(PhotoListModel& photos, Thumbnails& thumbnails, QWidget* parent);

    /// The rows that are selected, from the first to the last.
    std::vector<size_t> selectedRows() const;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

Q_SIGNALS:
    /// The user has dropped the selected rows before this one; the number of rows: at the end.
    void dropped(size_t before);

protected:
    void paintEvent(QPaintEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void startDrag(Qt::DropActions actions) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dragMoveEvent(QDragMoveEvent* event) override;
    void dragLeaveEvent(QDragLeaveEvent* event) override;
    void dropEvent(QDropEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void wantVisible();
    void setDropPlace(std::optional<int> row);
    int rowBehind(const QPoint& at) const;
    void scrollWhileDragged();

    PhotoListModel& photos_;
    Thumbnails& thumbnails_;
    std::pair<int, int> inSight_{-1, -1};
    std::optional<int> dropPlace_;
    QTimer* scrolling_;
    int scrollStep_ = 0;
};

} // namespace halvern
