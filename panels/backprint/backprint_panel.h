// SPDX-License-Identifier: MIT
#pragma once

#include "panel_base/base_panel.h"
#include "platform/foundation/string_additions.h"

namespace halvern {

class BackPreview;

/// A run of characters: its start and its length, in UTF-16 units.
struct CharacterRange {
    qsizetype location = 0;
    qsizetype length = 0;
};

/// Up to two lines of text on the back of each picture, each switched on by a toggle of its own.
///
/// A field shows a line as typed; the print settings hold it with substitutes for the comma and the
/// apostrophe (stringWithSafeCharacters:). While the user types, the choice is the typed text and the host is
/// not asked; when editing ends, it is the stored form and the host is.
class RZBackprintPDEHalvern : public KSTRVLBasePDEHalvern {
public:
    bool initWithCallback(const std::shared_ptr<HostCallback>& callback) override;

    /// dealloc: announces on the thread it runs on that the plug-in is about to go, then does the base's.
    void dealloc() override;

    QStringList supportedPPDOptionKeys() override;
    std::optional<QString> nibName() override;
    std::optional<QString> panelName() override;
    std::optional<QString> panelKind() override;
    std::optional<QString> ppdOptionKeyForTag(int tag) override;
    void enableCustom() override;

    /// willShow: starts to follow the focus. Does not refresh the controls.
    void willShow() override;
    bool shouldHide() override;
    bool saveValuesAndReturnError(PanelError* error) override;

    /// restoreValuesAndReturnError: always refreshes the controls, which loads the view.
    bool restoreValuesAndReturnError(PanelError* error) override;

    /// stringWithSafeCharacters: a shown line in the form that is stored.
    virtual QString stringWithSafeCharacters(const QString& string);

    /// stringWithUnsafeCharacters: a stored line as it is shown.
    virtual QString stringWithUnsafeCharacters(const QString& string);

    /// limitCVPValue: a line held to its length, never with a backslash at its end.
    virtual QString limitCVPValue(const QString& text);

    QVariant newChoiceForSender(QWidget* sender) override;
    void updateControl_withValue(QWidget* control, const QVariant& value) override;
    void controlTextDidChange(QLineEdit* field) override;
    void controlTextDidEndEditing(QLineEdit* field) override;

    /// textView:willChangeSelectionFromCharacterRange:toCharacterRange: accepts every selection. Nothing
    /// calls it; a hook for a host's text views.
    virtual CharacterRange
    textView_willChangeSelectionFromCharacterRange_toCharacterRange(QWidget* textView, CharacterRange old,
                                                                    CharacterRange proposed);

    void populateMenuObjectsInView(QWidget* view) override;

    /// sendUICommand: inserts the menu's token into the line that has the focus, else the one that had it
    /// last.
    void sendUICommand(QWidget* sender) override;

    /// setToolTip:fromSender: clears the tool tip whatever text is given.
    void setToolTip_fromSender(const QString& toolTip, QWidget* sender) override;
    void setControlsEnabledByToggle(QWidget* toggle) override;

    /// observeValueForKeyPath:ofObject:change:context: remembers the line that `old`, the window's first
    /// responder until now, is. Other contexts are ignored.
    virtual void observeValueForKeyPath_ofObject_change_context(const QString& keyPath, QWidget* object,
                                                                QWidget* old, const QString& context);

private:
    QLineEdit* lineField(QWidget* widget) const;
    void rewriteLine(QLineEdit* field, const QString& text);
    void leaveRefusedHistory(QLineEdit* field);
    void setUpLine(int number, int toggleTag, BackPreview* preview);
    void stopFollowingFocus();
    QLineEdit* lineForInsertion(QWidget* window);

    WMKastrovelExtras::CharacterSet safeSet;
    QPointer<QLineEdit> lastResponder;
    QMetaObject::Connection focusObservation;
    bool rewriting = false;
};

} // namespace halvern
