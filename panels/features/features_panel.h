// SPDX-License-Identifier: MIT
#pragma once

#include "panel_base/base_panel.h"
#include "platform/foundation/threads/work_queue.h"
#include "platform/maker/paper_index.h"

#include <QDateTime>

class QGroupBox;
class QProgressBar;

namespace halvern {

class RunLoopTimer;
struct DistributedNotification;
struct Notification;

/// Paper, feed, resolution, tone, binding and two-sided printing. Shows the papers that the printer reports
/// and lets the user choose only what it can print; the rules correct what has become impossible.
///
/// A choice is stored in one of three ways. A marked choice is validated and offered to the host, which may
/// refuse it. The panel's own setChoice:forKey: stores without asking and lets the rules follow. A forced
/// choice, a correction by the rules themselves, tells the host and is stored without any rule following.
///
/// "Stored" values in the rules for two-sided printing and binding are those of the host
/// (printSystemValueForKey:), in the paper rules those of this panel's choices.
class RZFeaturesPDEHalvern : public KSTRVLBasePDEHalvern {
public:
    // Lifecycle and persistence.

    bool initWithCallback(const std::shared_ptr<HostCallback>& callback) override;
    void dealloc() override;
    void willShow() override;
    bool shouldHide() override;
    void printWindowWillClose(bool printing) override;
    QWidget* panelView() override;
    bool saveValuesAndReturnError(PanelError* error) override;
    bool restoreValuesAndReturnError(PanelError* error) override;

    // Identity and tables.

    std::optional<QString> nibName() override;
    std::optional<QString> panelName() override;
    std::optional<QString> panelKind() override;
    QStringList supportedPPDOptionKeys() override;
    std::optional<QString> ppdOptionKeyForTag(int tag) override;
    QVariant ppdChoiceForTag(int tag) override;
    int tagForStringValue(const QVariant& value) override;

    // Choices and controls.

    QVariant newChoiceForSender(QWidget* sender) override;
    void setChoice_forKey(const QVariant& choice, const std::optional<QString>& key) override;
    void setDefaults() override;
    std::optional<QString> defaultValueForOptionKey(const std::optional<QString>& key) override;
    int indexOfMenuItem_forValue(QWidget* popup, const QVariant& value) override;
    QWidget* view_controlForTag(QWidget* view, int tag) override;

    /// enclosingBoxForControl: the nearest box around the control, null if there is none.
    virtual QGroupBox* enclosingBoxForControl(QWidget* control);

    /// Shows a binding margin as the page is seen, all other values as they are.
    void updateControl_withValue(QWidget* control, const QVariant& value) override;
    void updateUI() override;
    void controlTextDidChange(QLineEdit* field) override;
    void controlTextDidEndEditing(QLineEdit* field) override;
    void setToolTip_fromSender(const QString& toolTip, QWidget* sender) override;

    // The paper catalogue.

    /// unsortedPaper, setUnsortedPaper: the catalogue, null if there is none yet. Any thread.
    virtual std::shared_ptr<const PaperCatalogue> unsortedPaper() const;
    virtual void setUnsortedPaper(std::shared_ptr<const PaperCatalogue> catalogue);

    /// sortedPaperNames, sortedPaperWidths: empty if there is no index.
    virtual QStringList sortedPaperNames();
    virtual QStringList sortedPaperWidths();

    /// setSortedPaper: rebuilds the paper menus, unless the index is the one held.
    virtual void setSortedPaper(const std::optional<PaperIndex>& index);

    /// humanReadablePaperWidthForActual: see paperWidthTitle().
    virtual std::optional<QString> humanReadablePaperWidthForActual(const QString& widthCode);

    /// updatePaperInfo: rebuilds the index from the catalogue and restores the choices onto the new menus.
    virtual void updatePaperInfo(const Notification* unused);

    // The paper rules.

    /// updatePaperUI: fills the name and width menus from the index and settles the feed.
    virtual void updatePaperUI();

    /// enableControlsForPaperFeed: enables the controls of the current feed.
    virtual void enableControlsForPaperFeed();

    /// enableResolutionsForPaper: corrects name, width and surface if needed, and enables the resolutions of
    /// the chosen paper.
    virtual void enableResolutionsForPaper();

    /// didSelectNewPaper: enableResolutionsForPaper, once for each state of the choices.
    virtual void didSelectNewPaper(const void* unused);

    /// enableToneValues: see tone_mask.h.
    virtual void enableToneValues(quint32 mask);

    /// match: the record of the current choices; nothing if there is none.
    virtual std::optional<QVariantMap> match();

    /// paperToneForStuff: that record's tones; 0 if there is no record.
    virtual quint32 paperToneForStuff();

    // Binding and two-sided printing.

    virtual bool isLandscapeOrientation();
    virtual bool paperIsTallerThanWide();

    /// bindingMarginForMargin:reverse: from the margin as shown to the one to store, or back.
    virtual QString bindingMarginForMargin_reverse(const QString& margin, bool reverse);

    /// didSelectTwoSided: settles the binding margins for the two-sided choice and the page's shape.
    virtual void didSelectTwoSided(const void* unused);

    /// The chain of availability; each calls the next.
    virtual void setDuplexAvailable();
    virtual void setBindingMarginAvailable();
    virtual void setBindingWidthAvailable();

    /// What a fresh PPD says of the printer. Blocks on the CUPS server, on the main thread for 50 ms.
    virtual bool hardwareSupportsDuplex();
    virtual bool hardwareSupportsExtraFeatures();
    virtual void setHardwareSupportsDuplex(bool supported);
    virtual void setHardwareSupportsExtraFeatures(bool supported);

    /// setSupportsSheet: refuses sheet feeding on a printer without the extra features.
    virtual void setSupportsSheet();

    /// setDuplexEnabled: writes the platform's own duplex setting. False if the host has no settings or
    /// refuses.
    virtual bool setDuplexEnabled(bool enabled);

    // The refresh of the printer's data. A check runs on a queue of its own: what the printer said last is
    // shown, and if that is stale, a command job asks the printer again. Its end calls one of the two hooks,
    // and no further check follows until the panel is shown again. A job that was never sent leaves the panel
    // waiting until it is hidden, closed or unloaded.

    /// startPPDUpdateTimer: starts the repeating check, the first one at once, unless it is started already.
    /// Main thread only.
    virtual void startPPDUpdateTimer();
    virtual void ppdUpdateTimerDidFire();

    /// waitForUpdatePPD: starts one check, unless the panel is waiting for the printer.
    virtual void waitForUpdatePPD();

    /// lastUpdateDate: when the printer's data were last updated, nothing if never; shows it in the status
    /// line. Blocks on the CUPS server. Any thread.
    virtual std::optional<QDateTime> lastUpdateDate();
    virtual void pdelastRefreshTimeUpdateWithDate(const std::optional<QDateTime>& date);

    /// ppdDataIsStale: calls lastUpdateDate. Any thread.
    virtual bool ppdDataIsStale();

    /// progressIndicator: a direct child of the view, null if there is none.
    virtual QProgressBar* progressIndicator();

    /// updatePaperDict: takes the catalogue from a fresh PPD. An empty or corrupt one changes nothing. Any
    /// thread.
    virtual void updatePaperDict();

    /// The hooks of the job's end, on the watcher's queue.
    void ppdDidUpdate() override;
    void ppdUpdateDidAbort() override;
    using KSTRVLBasePDEHalvern::ppdUpdateDidAbort;

    /// stopUpdateCycle: no further checks; the waiting ends on the main thread. Any thread.
    virtual void stopUpdateCycle();

    virtual void newPaperDict(const DistributedNotification& notification);
    virtual void printInfoDidChange(const DistributedNotification& notification);
    virtual void shouldUnload(const Notification& notification);

    /// Whether a refresh is outstanding. Any thread.
    bool isWaitingOnPaper() const { return _waitingOnPaper; }

    /// Seams that do nothing.
    virtual void newPrinterInfo(const DistributedNotification&) {}

    virtual void startPaperUpdating() {}

    virtual void waitForHalvernPaper(QWidget*) {}

    /// logfile: where a log of this user's would lie. Nothing writes it.
    virtual QString logfile();

    /// noteLog: traces a notification, except the windowing system's own. Nothing registers it.
    virtual void noteLog(const Notification& notification);

private:
    void logEnteredSelf(const char* operation) const;
    bool isFeedSheet() const;
    std::optional<QString> storedText(const QString& key) const;
    bool hostValueIs(const QString& key, QLatin1StringView value);
    QComboBox* popup(int tag);
    void forceChoice(const QVariant& choice, const QString& key);
    void setAvailable(int tag, bool available, const char* why);
    bool isFeedItemAvailable(QLatin1StringView feed);
    void setFeedItemAvailable(QLatin1StringView feed, bool available, const char* why);

    void chooseName(const QStringList& names);
    bool chooseNameIfListed(const QVariant& name);
    void fillNameMenu(const QStringList& names, bool hasNames);
    void fillWidthMenu(bool hasNames);
    void showStoredFeed();
    void showSurfaceLegend();
    void takeStepperRanges();

    std::optional<QStringList> sheetResolutions();
    bool findRollResolutions(std::optional<QStringList>& titles);
    const ResolutionTitles* surfacesOfWidth(const QString& width) const;
    void limitSurfaces(const ResolutionTitles& surfaces);
    void enableResolutionItems(const std::optional<QStringList>& titles);
    void correctResolution();
    QString sortedPaperDescription() const;
    void selectBindingMargin(QComboBox* margins);

    std::shared_ptr<RZFeaturesPDEHalvern> sharedSelf();
    void registerNotifications();
    void checkPrinterData();
    void takeCatalogue(quint64 number, std::shared_ptr<const PaperCatalogue> catalogue);
    void showStatusControl(bool shown);

    /// A catalogue and the place of its read among all reads.
    struct NumberedCatalogue {
        quint64 number;
        std::shared_ptr<const PaperCatalogue> catalogue;
    };

    AtomicShared<const PaperCatalogue> paperDict;
    AtomicShared<const NumberedCatalogue> newestRead_;
    std::atomic<quint64> startedReads_ = 0;
    AtomicShared<RunLoopTimer> ppdUpdateTimer;
    std::optional<PaperIndex> _sortedPaper;
    mutable std::optional<QString> sortedPaperText_;
    std::atomic<bool> _waitingOnPaper = false;
    bool _firstRun = false;
    WorkQueue paperNews_;
    bool refusingSheet_ = false;
    QVariant namePutInPlace_; // the PPD's, of the sheet whose name is no longer in the catalogue
};

} // namespace halvern
