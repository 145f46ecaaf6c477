// SPDX-License-Identifier: MIT
#pragma once

#include "platform/foundation/export.h"

#include <QString>

namespace HALVERN_EXPORT halvern {

class Bundle;

/// AHGotoPage: opens the start page of the bundle's help book in the desktop's viewer, in the user's language
/// if the book has it. 0 if it was opened; another status if the book does not exist or no viewer took it.
/// Main thread only.
int gotoHelpPage(const Bundle& bundle, const QString& bookName);

} // namespace halvern
