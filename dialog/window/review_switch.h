// SPDX-License-Identifier: MIT
#pragma once

class QCheckBox;
class QWidget;

namespace halvern {

/// Whether a document that another program makes is shown, as it came, before it is printed. The user's, kept
/// with the preferences. Main thread only.
bool reviewsDocuments();

/// The switch for it, which keeps what is chosen.
QCheckBox* makeReviewSwitch(QWidget* parent);

} // namespace halvern
