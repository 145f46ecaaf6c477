// SPDX-License-Identifier: MIT
#pragma once

#include <QTranslator>

#include <memory>

namespace halvern {

/// The dialog's and the toolkit's words in the user's language, for the application object that is there;
/// the caller keeps them as long. Main thread only.
QList<std::shared_ptr<QTranslator>> installTranslations();

/// A text of the dialog's in the user's language, also while there is no application object.
QString translatedEarly(const char* context, const char* text);

} // namespace halvern
