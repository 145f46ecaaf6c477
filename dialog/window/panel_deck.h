// SPDX-License-Identifier: MIT
#pragma once

#include "dialog/session/dialog_session.h"

#include <QWidget>

class QListWidget;
class QScrollArea;
class QStackedLayout;

namespace halvern {

class JobPage;
class LayoutPage;
class PhotoPage;
class PrinterPage;
class OptionFinder;
class OptionsPage;
class SummaryPage;
class PaperPage;
struct SearchHit;
struct SearchPage;

/// The list of pages, the dialog's own and the panels', and the page that is shown. It keeps the protocol of
/// showing and hiding panels. Main thread only.
class PanelDeck : public QWidget {
    Q_OBJECT

public:
    PanelDeck(DialogSession& session, QWidget* parent);

    /// Fills the list for the session's printer.
    void rebuild();

    /// Takes the current values into the dialog's own pages and the summary.
    void refresh();

    /// Hides the shown panel and hands its view back, before the panels or this widget go.
    void releasePanels();

    /// Has all panels end what they do in the background, the shown one and those never shown, so that no
    /// question to the printer stands before a job that is about to be sent.
    void pausePanels();

    /// Tells the shown panel that it is shown again, after saving or a pause has marked it as leaving.
    void resumePanel();

    /// Lets the shown panel open its help. False if no panel is shown or it leaves that to the dialog.
    bool showHelpOfShownPanel();

    /// Tells all panels, once, that the dialog closes.
    void tellClosing(bool printing);

    /// Shows the page with this identifier ("page", "options", "summary", or a panel's kind). False: no such
    /// page.
    bool showPage(const QString& identifier);

    QStringList identifiers() const;

    /// The identifier of the page that is shown; empty before any is.
    QString shownPage() const;

    /// The pages about the photo tell of this one from now on; `place` is its place among all.
    void setPhoto(const Photo& photo, size_t place);

    /// Takes the focus to the field that searches all pages.
    void startSearch();

    /// Takes the preview in as a page of its own, because there is no room beside the pages; null gives it
    /// back to the caller, who shows it elsewhere.
    void setPreviewPage(QWidget* preview);

    /// The width at which no page that has been shown is cut at its side.
    int wantedWidth() const;

    /// What the Tab key may visit here: the list, then what the shown page shows, from the top to the bottom
    /// and in a line as one reads.
    QList<QWidget*> tabOrder() const;

Q_SIGNALS:
    /// Another page is shown.
    void pageShown();
    /// The user wants to choose the part of the photo that is printed.
    void cropAsked();
    /// Something to tell: a sentence.
    void told(const QString& sentence);

private:
    void layOut();
    void addPage(const QString& identifier, const QString& title);
    QList<SearchPage> searchPages() const;
    void go(const SearchHit& hit);
    void showRow(int row);
    bool hideShownPanel();
    void takeShownView();
    void nameArea(int row, const QString& identifier);
    QWidget* viewFor(const QString& identifier);
    Panel* panelFor(const QString& identifier) const;

    DialogSession& session_;
    OptionFinder* finder_;
    QStackedLayout* stack_ = nullptr;
    QListWidget* list_;
    QScrollArea* area_;
    QWidget* empty_;
    QWidget* previewPage_ = nullptr;
    PaperPage* page_;
    OptionsPage* options_;
    LayoutPage* layout_; // null: a document is printed
    JobPage* job_;
    PhotoPage* photo_;
    PrinterPage* printer_;
    SummaryPage* summary_;
    Panel* shown_ = nullptr;
    int shownRow_ = -1;
    int pageWidth_ = 0;
    bool toldClosing_ = false;
};

} // namespace halvern
