// SPDX-License-Identifier: MIT
#pragma once

#include "platform/foundation/threads/work_queue.h"

#include <QWidget>

#include <memory>
#include <vector>

class QFileDialog;
class QImage;
class QMimeData;
class QTemporaryFile;
class QToolButton;

namespace halvern {

class DialogSession;

/// The ways to add photos to an open dialog: dropped on its window, chosen, or pasted, as files or as a
/// picture. Main thread only.
class PhotoAdding : public QObject {
    Q_OBJECT

public:
    /// Watches the window, whose child it becomes.
    PhotoAdding(QWidget* window, DialogSession& session);

    /// A button that offers the ways, for the window to place.
    QToolButton* makeButton(QWidget* parent);

    /// Takes drops on this widget of the window too, which has other drops of its own.
    void watch(QWidget* widget) { widget->installEventFilter(this); }

    void choose();
    void paste();

    /// Asks for photos before there is a window, and waits for the answer: empty if the user wants none.
    static QStringList askForFirst();

    bool eventFilter(QObject* watched, QEvent* event) override;

Q_SIGNALS:
    /// Nothing could be added; a sentence.
    void failed(const QString& sentence);

private:
    static QFileDialog* makeChooser(QWidget* parent, const QString& title);
    static bool holdsPhotos(const QMimeData& data);
    void add(const QMimeData& data);
    void addNamed(const QStringList& names);
    void addPicture(const QImage& image);

    QWidget* window_;
    DialogSession& session_;
    std::vector<std::shared_ptr<QTemporaryFile>> pasted_;
    WorkQueue disk_; // in the order in which they were added
};

} // namespace halvern
