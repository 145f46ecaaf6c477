// SPDX-License-Identifier: MIT
#include "platform/toolkit/choice_group.h"

namespace halvern {

ChoiceGroup::ChoiceGroup(QWidget* parent) : QWidget(parent) {}

} // namespace halvern
