// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>

#include <functional>

class QAction;
class QKeySequence;

namespace halvern {

class DialogSession;
class PhotoList;
class PhotoListModel;
class Thumbnails;

/// The photos in a row beneath the preview, and what can be done with those that are selected: another order,
/// copies, the crop of one for all, which ones are printed, taking out. Main thread only.
class PhotoStrip : public QWidget {
    Q_OBJECT

public:
    /// `session` outlives it.
    PhotoStrip(DialogSession& session, QWidget* parent);

    /// Shows the session's photos as they are now.
    void refresh();

    /// The preview shows this photo now, by its place.
    void setCurrent(size_t place);

    /// "12 photos", or how many of them are selected.
    QString inWords() const;

    QWidget* list() const;

    /// Where files are dropped here.
    QWidget* dropArea() const;

Q_SIGNALS:
    /// The user wants to see this photo.
    void photoChosen(size_t place);
    /// The user wants to choose the part of the shown photo that is printed.
    void cropAsked();
    /// inWords() answers something else.
    void wordsChanged();

private:
    QAction* add(const QString& name, const QString& text, const QList<QKeySequence>& keys,
                 std::function<void()> act);
    void addSeparator();
    void makeActions();
    void makeMoveActions();
    void moveBy(int by);
    void moveTo(size_t before);
    void addCopies(int more);
    void askCopies();
    void togglePrinted();
    void updateActions();

    DialogSession& session_;
    PhotoListModel* model_;
    Thumbnails* thumbnails_;
    PhotoList* list_;
    QList<QAction*> forSome_; // of the actions, those that need a selection
    QAction* printAll_ = nullptr;
    bool isRefreshing_ = false;
};

} // namespace halvern
