// SPDX-License-Identifier: MIT
#pragma once

#include "dialog/window/help_book.h"

#include <QDialog>

class QLineEdit;
class QListView;
class QListWidget;
class QStackedLayout;
class QTextBrowser;
class QToolButton;

namespace halvern {

class HitList;

/// The help book, open: its contents or what was searched for at one side, a page at the other. Main thread
/// only.
class HelpWindow : public QDialog {
    Q_OBJECT

public:
    explicit HelpWindow(HelpBook book, QWidget* parent = nullptr);

    /// Opens the page that is about the control, or the nearest around it, else about the page of the dialog
    /// with this identifier, in the window's own help window. False: the book has no such page.
    static bool showFor(QWidget& window, const QString& shownPage);

    /// The first page of the book. False: there is no book.
    static bool showStart(QWidget& window);

    /// Makes the key for help open the book in this window, which has no pages: at what is about the control
    /// in focus or the window.
    static void addKey(QWidget& window);

    void showPage(qsizetype page);

protected:
    void keyPressEvent(QKeyEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    static bool open(QWidget& window, const HelpBook& book, qsizetype page);
    QWidget* makeContents();
    QLayout* makeButtons();
    void makeKeys();
    void search(const QString& typed);
    void go(int row);
    void takeShownPage(const QUrl& source);

    HelpBook book_;
    QLineEdit* field_;
    QListWidget* contents_;
    QListView* found_;
    HitList* hits_;
    QTextBrowser* page_;
    QStackedLayout* lists_ = nullptr;
    QToolButton* back_ = nullptr;
    QToolButton* forward_ = nullptr;
};

} // namespace halvern
