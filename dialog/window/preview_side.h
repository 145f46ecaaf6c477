// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>

#include <optional>
#include <vector>

class QHBoxLayout;
class QLabel;
class QToolButton;

namespace halvern {

class DialogSession;
class PhotoAdding;
class PhotoStrip;
class PreviewWidget;
struct BlankSheet;
struct Photo;
struct PreviewPage;
struct Sheet;

/// The dialog's side where one looks: the preview, the way from sheet to sheet, the photos in a row, and the
/// button that adds more. It knows which sheet is shown, and which of its photos is the one that is worked
/// on. Main thread only.
class PreviewSide : public QWidget {
    Q_OBJECT

public:
    /// `session` outlives it; photos can be dropped on `window`.
    PreviewSide(DialogSession& session, QWidget* window);

    /// Shows the session's sheets as they are now.
    void refresh();

    /// Shows a sheet with words, in place of photos.
    void showBlank(const BlankSheet& sheet);

    /// Shows the first sheet that this photo is on, and the photo there; one that is not printed is shown
    /// alone.
    void showPhoto(size_t photo);

    /// Shows another sheet, so many further on.
    void step(int by);

    /// Lets the user choose what of the shown photo is printed.
    void startCropping();

    /// What the Tab key may visit here.
    QList<QWidget*> tabOrder() const;

protected:
    void resizeEvent(QResizeEvent* event) override;

Q_SIGNALS:
    /// This photo is shown now, by its place among all; or something about it has changed.
    void shown(const halvern::Photo& photo, size_t place);
    /// Something to tell: a sentence.
    void failed(const QString& sentence);

private:
    void makePager();
    void makeAddButton(QHBoxLayout* row, QWidget* window);
    void connectPreview();
    void makeStrip(QHBoxLayout* row);
    void showStrip();
    void showPlace(const std::vector<Sheet>& sheets);
    void showSheet(const Sheet& sheet, size_t count);
    void showAside(size_t photo);
    void display(size_t photo, PreviewPage page, const QString& number);
    std::optional<size_t> placeOf(quint64 id) const;

    DialogSession& session_;
    PreviewWidget* preview_;
    QWidget* pager_;
    QLabel* pageNumber_;
    QToolButton* back_;
    QToolButton* forward_;
    PhotoAdding* adding_ = nullptr; // null: a document is printed
    QToolButton* add_ = nullptr;
    PhotoStrip* strip_ = nullptr; // with adding_
    QToolButton* fold_ = nullptr;
    bool isFolded_ = false;
    int current_ = 0;             // sheet
    size_t currentPlace_ = 0;     // on it
    std::optional<size_t> shown_; // the photo there
    quint64 shownId_ = 0;         // it, wherever it goes
    quint64 followed_ = 0;        // what the user goes on looking at; 0: nothing yet
    quint64 asked_ = 0;           // what the user has pointed at in the row
};

} // namespace halvern
