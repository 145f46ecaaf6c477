// SPDX-License-Identifier: MIT
#pragma once

#include "dialog/session/dialog_session.h"

#include <QWidget>

class QCheckBox;
class QComboBox;
class QLabel;

namespace halvern {

/// Who converts the photos' colours, for which profile and how, and whether the preview simulates the print;
/// beneath it, the same in a sentence. Main thread only.
class ColourRow : public QWidget {
    Q_OBJECT

public:
    ColourRow(DialogSession& session, QWidget* parent);

    /// Takes the session's current values into the controls; asks nothing of it.
    void refresh();

    /// For a label's key.
    QWidget* field() const;

private:
    QWidget* makeDetails();
    QWidget* makeProof();
    void refreshProof();
    void chooseProof();
    void listProfiles();
    void choose();
    void chooseProfile();
    void useProfile(const QString& path);
    void askForFile();

    DialogSession& session_;
    QComboBox* who_;
    QWidget* details_;
    QComboBox* profile_;
    QComboBox* intent_;
    QCheckBox* blackPoint_;
    QCheckBox* proof_;
    QCheckBox* paper_;
    QCheckBox* gamut_;
    QLabel* words_;
};

} // namespace halvern
