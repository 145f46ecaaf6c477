// SPDX-License-Identifier: MIT
#pragma once

#include "platform/foundation/threads/atomic_shared.h"
#include "platform/plugin_api/panel.h"

#include <QPointer>

#include <atomic>
#include <memory>
#include <optional>

class QComboBox;
class QLineEdit;
class QProcess;
class QIODevice;
struct ppd_file_s;
using ppd_file_t = ppd_file_s;

namespace halvern {

class Bundle;
class HostCallback;
class Semaphore;
struct Notification;
class SpeechSynthesizer;

/// Current choices: PPD option keyword -> choice as the PPD names it ("True", "1.24", a paper's name).
using ChoiceDict = QMap<QString, QVariant>;

/// The base of every panel: its state and lifecycle, the way of a choice from a control to the host and back,
/// and the access to the printer's PPD. A panel names its options, its layout and its formats; all else is
/// here.
///
/// Main thread only, except the operations that say otherwise. "Nothing" is an invalid QVariant, an empty
/// optional or a null pointer; the empty string is a value. Operations without a comment of their own at an
/// override follow the base's. Create panels with makePanel().
class KSTRVLBasePDEHalvern : public Panel, public std::enable_shared_from_this<KSTRVLBasePDEHalvern> {
public:
    KSTRVLBasePDEHalvern();
    ~KSTRVLBasePDEHalvern() override;
    KSTRVLBasePDEHalvern(const KSTRVLBasePDEHalvern&) = delete;
    KSTRVLBasePDEHalvern& operator=(const KSTRVLBasePDEHalvern&) = delete;

    // Lifecycle and host protocol.

    /// initWithCallback: takes the host's PPD. False if there is none; the panel is then not offered.
    virtual bool initWithCallback(const std::shared_ptr<HostCallback>& callback);

    /// dealloc: runs on the complete object when its last reference drops, on whichever thread that is. Waits
    /// for a command job that is still watched.
    virtual void dealloc();

    /// nibName: the name of the layout; nothing for a panel without a view.
    virtual std::optional<QString> nibName();

    /// setPanelView: takes over `view`, null to let go of it. The old view is deleted on the main thread.
    virtual void setPanelView(QWidget* view);

    /// enableCustom: called once at the end of loading the view.
    virtual void enableCustom() {}

    /// getPPDOnTiger: a legacy host's PPD; always null on 64-bit builds.
    virtual ppd_file_t* getPPDOnTiger();

    QWidget* panelView() override;

    std::optional<QString> panelName() override { return std::nullopt; }

    std::optional<QString> panelKind() override { return std::nullopt; }

    QMap<QString, QString> summaryInfo() override;
    void willShow() override;
    bool shouldHide() override;
    void printWindowWillClose(bool printing) override;
    bool shouldShowHelp() override;

    // Print-settings persistence.

    bool saveValuesAndReturnError(PanelError* error) override;
    bool restoreValuesAndReturnError(PanelError* error) override;
    void PPDOptionKeyValueDidChange_ppdChoice(const std::optional<QString>& key,
                                              const QVariant& choice) override;
    QStringList supportedPPDOptionKeys() override;

    /// printSystemValueForKey: the host's marked choice, else the print settings' value, else nothing.
    virtual QVariant printSystemValueForKey(const std::optional<QString>& key);

    /// The seams through which a legacy host's settings would flow. `write` is false to read.
    virtual void usePPDSettingsFromPrintSettingsOnTiger(bool write);
    virtual void getPPDSettingsFromPrintSettingsOnTiger();
    virtual void writePPDSettingsToPrintSettingsOnTiger();

    // Diagnostics. Built, silent and never called by the system itself.

    /// initialize: does nothing.
    virtual void initialize() {}

    /// speaker: the process's shared synthesizer, made on first use and never released.
    virtual SpeechSynthesizer* speaker();

    /// threadedSpeech: replaces the shared synthesizer (the old one is left as it is) and greets. Any thread.
    virtual void threadedSpeech(const QVariant& unused);

    /// speakString: discards the text.
    virtual void speakString(const QString& text);

    // PPD access. The fresh-PPD operations block on the CUPS server, on the main thread for 50 ms, after
    // which they answer from the PPD that came last; any thread.

    /// printerDeviceURI: "null://" while the printer or its URI cannot be had; once had, it is kept. Any
    /// thread.
    virtual QString printerDeviceURI();

    /// destinationName: the CUPS queue of the host's printer. Any thread.
    virtual std::optional<QString> destinationName();

    /// ppdSavedDataForAttribute:forPPD: the decoded bytes of an attribute run, nothing if there is none or it
    /// does not decode.
    virtual std::optional<QByteArray> ppdSavedDataForAttribute_forPPD(const QString& attribute,
                                                                      ppd_file_t* file);

    /// ppdSavedDataForAttribute: the same, from a fresh PPD.
    virtual std::optional<QByteArray> ppdSavedDataForAttribute(const QString& attribute);

    /// ppdValuesForAttributes: keyword -> value from one fresh PPD; keywords without a value have no entry.
    virtual QMap<QString, QString> ppdValuesForAttributes(const QStringList& attributes);

    /// ppdValueForAttribute: one value from a fresh PPD.
    virtual std::optional<QString> ppdValueForAttribute(const QString& attribute);

    virtual std::optional<QString> cupsValueForAttribute_forPPD(const std::optional<QString>& attribute,
                                                                ppd_file_t* file);
    virtual std::optional<QString> cupsDefaultChoiceForOption_forPPD(const std::optional<QString>& option,
                                                                     ppd_file_t* file);
    virtual std::optional<QString> cupsChoiceForOption_forPPD(const std::optional<QString>& option,
                                                              ppd_file_t* file);

    /// cupsOptionValueForKey: the dialog's marked choice, else the default.
    virtual std::optional<QString> cupsOptionValueForKey(const std::optional<QString>& key);

    /// defaultValueForOptionKey: the dialog PPD's default.
    virtual std::optional<QString> defaultValueForOptionKey(const std::optional<QString>& key);

    // Command jobs and their watching. These block on the CUPS server, except where they say otherwise, and
    // may run on any thread. The main thread waits patiently (platform/printing/patience.h): what is sent
    // then goes on without it, and a question that is late counts as one without an answer.

    /// sendPrinterCommands: sends the commands to the printer's queue as one job and starts to watch it; the
    /// outcome arrives at ppdDidUpdate or ppdUpdateDidAbort. Sends nothing and calls neither while the panel
    /// is hidden or unloading, a job of the panel is still watched, or the queue processes a job.
    virtual void sendPrinterCommands(const QStringList& commands);

    /// dsendPrinterCommands: the same commands through the printer object; never refused, not watched.
    virtual void dsendPrinterCommands(const QStringList& commands);

    /// activeJobIDForDesinationName: the job that the queue is processing; 0 if none.
    virtual int activeJobIDForDesinationName(const QString& destination);

    /// stringForCupsJobState: an IPP job state's word. Does not block.
    virtual QString stringForCupsJobState(int state);

    /// waitForJobCompletion: watches the job on a queue of its own, which holds the panel until then. Does
    /// not block. A job that is pending or processing is asked for twice a second; the unload flag ends the
    /// watch within that time, cancels the job, and no hook is called.
    virtual void waitForJobCompletion(int jobID);

    /// jobStateForDesinationName:JobID:waitWhileInProcess: the job's state, completed (9) if it is no longer
    /// active, 0 if the server has not said yet; with `wait`, once it is neither pending nor processing.
    virtual int jobStateForDesinationName_JobID_waitWhileInProcess(const QString& destination, int jobID,
                                                                   bool wait);

    /// ppdDidUpdate: hook, the watched job has completed. Called on the watch's queue.
    virtual void ppdDidUpdate() {}

    /// ppdUpdateDidAbort: hook, the watched job has ended otherwise, is held, or never came to be. Called on
    /// the watch's queue. An override hides ppdUpdateDidAbort: (with its argument): name both with `using`.
    virtual void ppdUpdateDidAbort() {}

    /// ppdUpdateDidComplete:, ppdUpdateDidAbort: route a notification to the hooks. They do not block.
    virtual void ppdUpdateDidComplete(const Notification& notification);
    virtual void ppdUpdateDidAbort(const Notification& notification);

    /// statesForDestinationName: the queue's state reasons; nothing if CUPS does not know the queue.
    virtual std::optional<QStringList> statesForDestinationName(const std::optional<QString>& destination);

    /// printerStateReasons: the state reasons of the panel's printer.
    virtual std::optional<QStringList> printerStateReasons();

    // Choices.

    /// ppdOptionKeyForTag: the option that a control with the tag edits.
    virtual std::optional<QString> ppdOptionKeyForTag(int tag);

    /// ppdChoiceForTag: the choice that a matrix cell with the tag stands for.
    virtual QVariant ppdChoiceForTag(int tag);

    /// tagForStringValue: the reverse of ppdChoiceForTag; 0 if no cell stands for the value.
    virtual int tagForStringValue(const QVariant& value);

    /// setChoice:forKey: the only writer of the choices. Does nothing if either is nothing.
    virtual void setChoice_forKey(const QVariant& choice, const std::optional<QString>& key);

    /// newChoiceForSender: a control's state as a choice.
    virtual QVariant newChoiceForSender(QWidget* sender);

    /// floatValueForSender:format:allowsNegative: a control's number, filled into `format` (one double).
    virtual QString floatValueForSender_format_allowsNegative(QWidget* sender, const char* format,
                                                              bool allowsNegative);

    /// markChoice:forPPDOptionKey:fromSender: validates, offers to the host, stores or rejects. A choice that
    /// is out of range answers true although it was rejected.
    virtual bool markChoice_forPPDOptionKey_fromSender(const QVariant& choice,
                                                       const std::optional<QString>& key, QWidget* sender);
    virtual bool validateChoice_forPPDOptionKey_fromSender(const QVariant& choice,
                                                           const std::optional<QString>& key,
                                                           QWidget* sender);
    virtual void rejectChoice_forPPDOptionKey_fromSender(const QVariant& choice,
                                                         const std::optional<QString>& key, QWidget* sender);

    /// displayFormatForString:forPPDOptionKey: what the companion control shows for an accepted choice.
    virtual QVariant displayFormatForString_forPPDOptionKey(const QVariant& choice, const QString& key);

    /// setDefaults: marks the PPD's default of every supported option. The caller refreshes the controls.
    virtual void setDefaults();

    /// setGlobalDefaultsObject:forKey: writes one value into the user's global preferences.
    virtual void setGlobalDefaultsObject_forKey(const QVariant& object, const std::optional<QString>& key);

    // Control binding.

    virtual QWidget* view_controlForTag(QWidget* view, int tag);

    /// isControlSupportedForTag: false for a control that stays disabled whatever the toggle says.
    virtual bool isControlSupportedForTag(int tag);
    virtual bool enablerState(QWidget* toggle);
    virtual void setControlsEnabledByToggle(QWidget* toggle);
    virtual int indexOfMenuItem_forValue(QWidget* popup, const QVariant& value);
    virtual void updateControl_withValue(QWidget* control, const QVariant& value);

    /// updateUI: shows every stored choice; loads the view if it is not loaded yet.
    virtual void updateUI();

    /// changePrinterSetting: the action of every option control. Sent by a user's action only.
    virtual void changePrinterSetting(QWidget* sender);
    virtual void populateMenuObjectsInView(QWidget* view);
    virtual void enableTextFieldsForEditingInView(QWidget* view);
    virtual bool localizeStringsInView_andSubviews_resizeTofit(QWidget* view, bool recurse, bool resize);
    virtual void incrementControl(QWidget* button);
    virtual void decrementControl(QWidget* button);

    /// sendUICommand: the action of a control that acts on the view itself. A hook for panels.
    virtual void sendUICommand(QWidget* sender);

    /// The text-field delegate's operations; `field` is the notification's object.
    virtual void controlTextDidChange(QLineEdit* field);
    virtual void controlTextDidEndEditing(QLineEdit* field);

    /// setToolTip:fromSender: nothing calls it; a hook for panels.
    virtual void setToolTip_fromSender(const QString& toolTip, QWidget* sender);

    /// The object's own class name, as log lines spell it.
    QString className() const;

    const std::optional<ChoiceDict>& choices() const { return choiceDict; }

protected:
    /// The stored choice for the key; invalid if there is none.
    QVariant storedChoice(const std::optional<QString>& key) const;

    /// A key looked up in the bundle's default strings table; the key itself if that finds nothing.
    QString localized(const QString& key) const;

    /// How far a slider goes at once: as laid out, or less where the range would leave it a few positions
    /// only. The former for a panel that writes its numbers with as many digits as the layout's steps have.
    enum class SliderStep { asLaidOut, fineForRange };

    /// Gives the view's sliders the ranges that the PPD sets for their options' custom values, so that a
    /// layout cannot offer what the printer refuses. A slider whose option has no such range stays as laid
    /// out, and so does its step if the PPD asks for whole numbers. The mark for the value that changes
    /// nothing is the layout's: a queue's default may be another. For enableCustom().
    void takeSliderRangesFromPPD(SliderStep step);

    /// A zero-terminated UTF-8 copy for a watch to keep, empty for nothing; null when memory has run out.
    virtual std::unique_ptr<char[]> copyForWatch(const std::optional<QString>& text);

    /// Runs `work` after `milliseconds` on the main thread, with a counted reference to the panel.
    void performDelayed(int milliseconds, void (KSTRVLBasePDEHalvern::*work)());

    std::shared_ptr<HostCallback> pdePluginCallbackObject;
    std::optional<QString> thePDEName;
    std::shared_ptr<Bundle> pdeBundle;
    std::optional<ChoiceDict> choiceDict;
    std::optional<QStringList> cachedSupportedPPDOptionKeys;
    bool useConstraintHandling = false;
    bool waitForCommandCompletion = false;
    std::atomic<bool> pdePluginDidUnload = false;
    AtomicShared<const QString> deviceURI;
    ppd_file_t* ppd = nullptr;
    QProcess* task = nullptr;
    QIODevice* streamIN = nullptr;
    QIODevice* streamERR = nullptr;
    QPointer<QWidget> _panelView;
    AtomicShared<Semaphore> pdeUnloadSemaphore;

private:
    std::atomic<bool> isSendingCommands_ = false;

    struct WatchedJob;
    static void watch(WatchedJob& job);
    void sendCommandJob(const QStringList& commands);
    void watchDidBailOut();
    void watchDidEnd(WatchedJob& job);
    void logEntered(const char* operation) const;
    void loadPanelView();
    void wireControlsInView(QWidget* view);
    void wireControl(QWidget* control);
    void wireTextField(QLineEdit* field);
    void sendAction(QWidget* sender);
    QWidget* controlBeside(QWidget* control, int tag);
    void stepControl(QWidget* button, int roleBits, int direction);
    void showInTagRun(int firstTag);
    bool replaceByLocalized(const QString& text, const std::function<void(const QString&)>& set) const;
    bool localizeOwnText(QWidget* view) const;
    void fillMenu(QComboBox* popup, const QString& key);
};

/// Creates a panel in two steps, on the complete object, and arranges for dealloc() to run before its
/// destructor. Null if initWithCallback: says no.
template <class P> std::shared_ptr<P> makePanel(const std::shared_ptr<HostCallback>& callback)
{
    std::shared_ptr<P> panel(std::make_unique<P>().release(), [](P* last) {
        last->dealloc();
        std::default_delete<P>()(last);
    });
    return panel->initWithCallback(callback) ? panel : nullptr;
}

} // namespace halvern
