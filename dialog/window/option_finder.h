// SPDX-License-Identifier: MIT
#pragma once

#include "dialog/options/option_search.h"
#include "dialog/session/dialog_session.h"

#include <QElapsedTimer>
#include <QPointer>
#include <QTimer>
#include <QWidget>

#include <vector>

class QLabel;
class QLineEdit;
class QListView;

namespace halvern {

class HitList;

/// A page to look on.
struct SearchPage {
    QString identifier;
    QString title;
    QPointer<QWidget> view = {}; ///< looked through for named controls; null: not
    QStringList keys = {};       ///< the options that are on it
};

/// The field to search with, and the list of what was found as one types: options, their choices, controls of
/// the pages, and printers. It looks at a few options at a time, so that typing goes on. Main thread only.
class OptionFinder : public QWidget {
    Q_OBJECT

public:
    /// `pages` says what there is to look at; it is asked when a search begins.
    OptionFinder(DialogSession& session, std::function<QList<SearchPage>()> pages, QWidget* parent);

    /// The list, which its owner shows while there is something to show.
    QWidget* results() const { return results_; }

    /// What the Tab key visits here.
    QList<QWidget*> tabOrder() const;

    /// Takes the focus to the field.
    void start();

    /// Ends the search and forgets it.
    void stop();

    /// The pages are others now: looks for the same once more.
    void searchAgain();

    /// The identifier that stands for the printers.
    static QString printersPage();

Q_SIGNALS:
    /// A search has begun, or ended.
    void searching(bool isSearching);
    /// Somebody wants to go there. The search has ended.
    void chosen(const halvern::SearchHit& hit);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void makeResults();
    void search(const QString& typed);
    void lookOn();
    void lookAtOthers();
    void lookAtControls(const SearchPage& page);
    void showCount();
    void go(const QModelIndex& index);

    DialogSession& session_;
    std::function<QList<SearchPage>()> pages_;
    QLineEdit* field_;
    QWidget* results_;
    QLabel* count_ = nullptr;
    QListView* list_ = nullptr;
    HitList* hits_ = nullptr;
    QTimer timer_;
    SearchWords words_{QString()};
    QList<SearchPage> searched_;
    qsizetype page_ = 0;   ///< where the search is
    qsizetype option_ = 0; ///< on that page
    bool isSearching_ = false;
};

/// The control of a page that a hit without a keyword, or one of a panel's, means: on these a control is
/// known by what is written on it or beside it, or by what assistive technology calls it. Null: there is
/// none.
QWidget* findControl(QWidget& page, const QString& title);

} // namespace halvern
