// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

class QDoubleSpinBox;
class QHBoxLayout;
class QSpinBox;
class QWidget;

namespace halvern {

/// Fields for lengths and numbers as the pages have them. All of this on the main thread; what is made
/// belongs to its parent.

/// Whether the user's country counts in millimetres; else in inches.
bool countsInMillimetres();

/// How many millimetres one of what the user counts in has.
double lengthUnit();

/// A field for a length in what the user counts in, from 0 to as many millimetres.
/// @param words what the field is called, for whoever does not see where it stands
QDoubleSpinBox* makeLengthField(const QString& name, const QString& words, double most, QWidget* parent);

/// A field for a number from 1 on.
QSpinBox* makeNumberField(const QString& name, const QString& words, int most, QWidget* parent);

/// A row without margins in a box that is part of a form.
QHBoxLayout* rowIn(QWidget* box);

} // namespace halvern
