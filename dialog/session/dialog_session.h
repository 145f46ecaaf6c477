// SPDX-License-Identifier: MIT
#pragma once

#include "dialog/adjust/look.h"
#include "dialog/job/job_options.h"
#include "dialog/job/print_run.h"
#include "dialog/job/trays_in_words.h"
#include "dialog/options/page_fit.h"
#include "dialog/options/ppd_model.h"
#include "dialog/page/page_renderer.h"
#include "dialog/server/printer_watch.h"
#include "dialog/session/colour_management.h"
#include "dialog/session/option_changes.h"
#include "dialog/session/page_setup.h"
#include "dialog/session/photo_loader.h"
#include "dialog/session/photo_steps.h"
#include "dialog/session/printer_choice.h"
#include "dialog/session/printer_panels.h"
#include "dialog/session/recent_names.h"
#include "dialog/session/session_presets.h"

#include <QObject>

namespace halvern {

struct JobInWords;
struct StartingOptions;
class PdfOutput;

/// Everything about one print dialog that is not a widget: how photos, printer, options and panels come
/// together, and the job that comes of them. Main thread only; what blocks is done by workers.
class DialogSession : public QObject, public HostSource {
    Q_OBJECT

public:
    /// `panels` outlives the session.
    DialogSession(SessionRequest request, PanelSource& panels, QObject* parent = nullptr);
    ~DialogSession() override;

    /// Starts to load photos and printers.
    void start();

    PrinterList& printerList() { return printer_.list(); }

    const QString& printerName() const { return printer_.name(); }

    const std::vector<Photo>& photos() const { return photos_.photos(); }

    /// What the user wants of one photo: its crop, its turn, how often it is printed.
    void setPlacement(size_t photo, const PhotoPlacement& placement);

    /// Gives all photos the crop and the turn of this one. This and what follows down to choosePhotos() is a
    /// step that undoLastChange() takes back: stepTaken() tells.
    void cropAllAs(size_t photo);

    /// Puts the photos at these places before the one at `before`, in their order; photos().size(): at the
    /// end. The same ones stay chosen.
    void movePhotos(const std::vector<size_t>& places, size_t before);

    /// Takes the photos at these places out. The others that were chosen stay so.
    void removePhotos(const std::vector<size_t>& places);

    /// Prints the photos at these places only.
    void choosePhotos(const std::vector<size_t>& places);

    /// Prints each of the photos at these places so often in each copy of the job.
    void setPhotoCopies(const std::vector<size_t>& places, int copies);

    /// Somebody who decoded a photo has found that a part of it is missing.
    void noteDamage(const QString& path, int page) { photos_.noteDamage(path, page); }

    /// A sentence for each file of which a part is missing. They print only if the user says so: ask before
    /// makeRun(), and settle it.
    QStringList damagedFiles() const { return photos_.damagedFiles(); }

    /// A sentence for each file that cannot be read and is left out, until that is settled.
    const QStringList& unreadableFiles() const { return photos_.unreadableFiles(); }

    /// Reads these files too; their photos come behind the others.
    void addPhotos(const QStringList& files) { photos_.add(files); }

    /// Whether somebody has to be asked about them before anything is made of the photos. Settles them
    /// without a question where that was asked for.
    bool hasBrokenFiles();

    /// What the user says: the damaged photos print as they are, or are left out.
    void settleDamaged(bool print);

    /// Whether all files have been read.
    bool hasPhotos() const { return photos_.isDone(); }

    /// Null while no printer's PPD is there.
    PpdModel* model() const { return options_.model(); }

    /// Whether the sheet is printed on both sides.
    bool isTwoSided() const;

    const PanelList& panels() const { return panels_.list(); }

    bool hasCustomPanels() const { return !panels_.list().empty(); }

    /// What the selected printer lets a job be.
    const JobOffer& jobOffer() const { return jobOffer_; }

    /// Sets an attribute of the job, "job-priority" for example; empty: the server decides. Another printer
    /// gets it, too.
    void setJobAttribute(const QString& name, const QString& value);

    /// Selects a queue and fetches its PPD; printerReady() or printerFailed() follows. Selecting the selected
    /// one again does nothing.
    void selectPrinter(const QString& name) { printer_.select(name); }

    const QStringList& recentPrinters() const { return recentPrinters_.names(); }

    const QStringList& recentPapers() const { return recentPapers_.names(); }

    /// Remembers the printer and the paper size as the ones that were used last.
    void noteUse();

    const PageSettings& page() const { return page_.settings(); }

    const ColourManagement& colours() const { return colours_; }

    ColourManagement& colours() { return colours_; }

    /// Why the colours cannot be converted as it is set; empty if they can.
    QString colourProblem() const;

    void setPage(const PageSettings& page);

    /// The places in photos() that the ranges choose, in their order, or why there are none.
    ChosenPages chosenPages() const;

    /// Those of them that are on a sheet that is printed.
    std::vector<size_t> printedPhotos() const;

    /// The photos on their sheets, in the order of printing, or why there are none; never null. Another one
    /// is there once something is set, or a photo comes.
    std::shared_ptr<const SheetPlan> sheetPlan() const
    {
        return page_.plan(photos(), chosenPages().pages, model());
    }

    /// The layouts that can be chosen.
    LayoutLibrary& layouts() { return page_.layouts(); }

    /// Chooses a layout by its id, with what that sets; an unknown one is left alone. A step, as
    /// changeSheets() takes it.
    void chooseLayout(const QString& id);

    /// As setPage(), but another layout, or another size or place of the photo, is a step that
    /// undoLastChange() takes back: stepTaken() tells.
    void changeSheets(const PageSettings& page);

    /// Whether the photos' files are another program's, and gone when the dialog is.
    bool areFilesBorrowed() const { return request_.areFilesBorrowed; }

    /// The document that is printed in place of photos; null if photos are.
    const BlindDocument* document() const { return request_.document ? &*request_.document : nullptr; }

    /// The sheet that it is printed on.
    PageLayout sheet() const { return page_.sheet(model()); }

    /// What the document leaves free at the sheet's edges, in points; nothing if it has not said so, or if
    /// the paper is another one.
    std::optional<QMarginsF> documentMargins() const;

    /// How far the printer lets a picture run over each of the paper's edges, where it is cut away, in
    /// points; 0 where it prints no picture to the edges.
    double overspill() const;

    /// The layout of a photo on the current sheet.
    PageLayout layoutFor(const Photo& photo) const { return page_.layout(photo, model()); }

    /// What the printer's adjustments do to the photos, from the options' current values.
    Look look() const;

    /// The printer's dots per inch.
    int resolution() const;

    /// A choice that the user made in the dialog's own controls. False if it was refused; refused() then says
    /// why.
    bool changeOption(const QString& key, const QVariant& value) { return options_.choose(key, value); }

    /// What changeOption() would change beside the listed choice.
    QList<SideChange> alsoChanges(const QString& key, const QString& choice) const
    {
        return options_.alsoChanges(key, choice);
    }

    /// Puts the options back to what the printer has by default, as one change that can be undone;
    /// optionsPutBack() follows. False if it was refused; refused() then says why.
    bool putBack(const QStringList& keys) { return options_.putBack(keys); }

    /// What is known of the paper that is chosen.
    PaperRoom chosenPaper() const;

    /// Why the chosen page size cannot be on the chosen paper; nothing if it can, or if nobody knows.
    std::optional<PageMisfit> pageMisfit() const;

    /// What the selected printer tells of itself.
    const PrinterReport& report() const { return watch_.report(); }

    /// Asks the printer again now.
    void refreshReport() { watch_.refresh(); }

    /// The papers that it says are in its trays; none where a maker's panel knows better.
    QList<TrayPaper> trays() const;

    /// Which of them the options are set for; -1 if none.
    int trayInUse() const;

    /// Sets the page, the tray and the kind of paper as they are in this one, in one step that
    /// undoLastChange() takes back. Nothing happens if there is no such tray any more.
    void useTray(int tray);

    /// Why the chosen paper is not where it would be taken from; nothing if it is, or if nobody knows.
    std::optional<NotLoaded> notLoaded() const;

    /// What of its supplies is low and needed as it is set now, in words; empty if nothing is.
    QString lowSupplies() const;

    /// Takes the last change that changed other options too back, with those. Nothing happens once one of
    /// them has been changed again.
    void undoLastChange() { options_.undo(); }

    /// The presets of the selected printer. What is chosen comes from chosen(), as far as isAsChosen() says.
    Presets& presets() { return presets_.offered(); }

    /// Sets everything as a preset has it, in one step that undoLastChange() takes back. presetApplied()
    /// follows, and a notice() of what cannot be had.
    void applyPreset(const PresetEntry& entry) { presets_.apply(entry); }

    /// Keeps what is set now under a name, in the place of what has it.
    void savePreset(const QString& name, const PresetContents& contents) { presets_.save(name, contents); }

    /// What would be kept.
    Preset capture(const PresetContents& contents) const { return presets_.capture(contents); }

    /// Whether everything is set as the chosen preset has it.
    bool isAsChosen() const { return presets_.isAsChosen(); }

    /// Whether print() would do something.
    bool canPrint() const { return whyNotPrintable().isEmpty(); }

    /// Why it would not, and what to do; empty if it would.
    QString whyNotPrintable() const;

    /// Why the request's lines for the back cannot be printed on the selected printer; empty if they can, or
    /// if there are none.
    const QString& backLinesProblem() const { return backLinesProblem_; }

    /// What the job is called: what the user wrote, else the name of the first page's file.
    QString jobTitle() const;

    /// The job's options as they would go out now. No panel is asked: what a panel holds is in the model or
    /// in the print settings as soon as its user has ended an editing.
    JobValues valuesToSend() const;

    /// The same in words; nothing without a printer.
    JobInWords jobInWords() const;

    /// What the printer does by itself: the PPD's choices and the queue's; empty without a printer.
    const QMap<QString, QString>& printerDefaults() const { return presets_.printerDefaults(); }

    /// Whether the chosen page size can be on the chosen paper, or nobody knows.
    bool isPageOnPaper() const;

    /// Lets the panels save and merges the job's options.
    OptionValues collectOptions();

    /// Makes the run for the chosen pages; the caller starts it. Owned by the session. Call canPrint()
    /// first.
    PrintRun* makeRun();

    /// The job for the document that is printed in place of photos: whoever has it sends it. Call canPrint()
    /// first.
    JobRequest makeOrder();

    /// What is set now, as it is remembered as used last; with `contents` also what such a preset leaves out.
    Preset usedNow(const PresetContents& contents = {}) const { return presets_.usedNow(contents); }

    /// Makes what writes the current pages into a file; the caller starts it. Owned by the session. Call
    /// canPrint() first.
    PdfOutput* makePdf(const QString& path);

    /// The command line that prints this again. Call canPrint() first.
    QString command() const;

    // What the panels' callback object asks.
    ppd_file_t* hostPpdFile() override;
    bool hostWillChange(const QString& key, const QVariant& choice) override;

    std::shared_ptr<PrintSettings> hostPrintSettings() override { return options_.settings(); }

    std::shared_ptr<PageFormat> hostPageFormat() override;

Q_SIGNALS:
    void photosChanged();
    /// A file could not be read; a sentence.
    void photoFailed(const QString& sentence);
    /// A part of a file is missing; a sentence.
    void photoDamaged(const QString& sentence);
    /// The old printer's panels are about to go; their views must be handed back.
    void printerLeaving();
    void printerSelected(const QString& name);
    void printerReady();
    void printerFailed(const QString& sentence);
    /// Something to tell about the printer that does not keep it from printing.
    void notice(const QString& sentence);
    void refused(const QString& sentence);
    /// A choice of the user's has changed other options too, by a resolver or by a panel's rules.
    void otherOptionsChanged(const QList<halvern::SideChange>& changes);
    /// Options have been put back to the printer's defaults, and undoLastChange() undoes it.
    void optionsPutBack(const QList<halvern::SideChange>& changes);
    /// A panel has corrected what its printer cannot do.
    void optionsCorrected(const QList<halvern::SideChange>& changes);
    /// What undoLastChange() put back was corrected again at once, and would be every time.
    void undoFailed(const QList<halvern::SideChange>& changes);
    /// undoLastChange() would do nothing any more.
    void undoExpired();
    /// The photos or their sheets were changed in a step that undoLastChange() takes back; a sentence.
    void stepTaken(const QString& sentence);
    /// A preset was applied as one step.
    void presetApplied(const QString& title);
    /// There is news of what the printer has loaded.
    void offerChanged();
    /// The printer tells something else of itself.
    void reportChanged();
    /// The tray that is printed from has other paper now, and the options were set for that, as one step that
    /// undoLastChange() takes back; a sentence.
    void trayRefilled(const QString& sentence);
    /// The system's colour service has said what it knows of the printer.
    void coloursKnown();
    /// Option values or the page have changed.
    void optionsChanged();

private:
    void tellOptions();
    void takePrinter(const FetchedPrinter& printer);
    void takeOffer(const PrinterOffer& offer);
    void takeReport();
    QList<SideChange> setAsTray(const TrayPaper& paper);
    void leavePrinter();
    void applyOptions(const FetchedPrinter& printer);
    void takeStartingPage(const StartingOptions& start, const std::optional<PresetEntry>& preset);
    void takeProfile(const std::optional<PresetEntry>& preset);
    void keepReadable();
    void keepJobAttributes();
    void loadPanels();
    JobInputs jobInputs() const;
    PdfQuality quality() const;
    std::vector<SheetToPrint> sheetsToPrint() const;
    void arrange(const std::vector<size_t>& order);

    SessionRequest request_;
    PhotoLoader photos_;
    PrinterChoice printer_;
    PrinterPanels panels_;
    PrinterWatch watch_;
    QList<TrayPaper> lastTrays_;
    std::optional<TrayPaper> inUse_; ///< by what was loaded last
    PageSetup page_;
    OptionChanges options_;
    PhotoSteps steps_{photos_, page_, options_};
    SessionPresets presets_;
    ColourManagement colours_;
    QHash<QString, QString> profiles_; ///< that were chosen for printers that were left, by queue
    QString backLinesProblem_;
    bool pageIsUsers_ = false; // no other printer's preset changes it
    bool hasStartingPage_ = false;
    bool hasKeptReadable_ = false;
    JobOffer jobOffer_;
    QMap<QString, QString> jobAttributes_; ///< what the user has set
    RecentNames recentPrinters_;
    RecentNames recentPapers_;
};

} // namespace halvern
