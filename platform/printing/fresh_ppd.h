// SPDX-License-Identifier: MIT
#pragma once

#include "platform/foundation/export.h"

#include <QByteArray>
#include <QString>

#include <optional>

/// What a queue's PPD says now. Any thread.
namespace HALVERN_EXPORT halvern {
namespace ppd {

/// Where the server has a queue's PPD, for HTTP.
QByteArray resourceOf(const QString& queue);

/// The text of the queue's PPD as the server has it now; blocks, for five seconds at most. The main thread
/// takes what a worker brings within its patience (patience.h), else the text that came last. Nothing if the
/// server has no such PPD or cannot be asked; for the main thread also if none has come yet.
std::optional<QByteArray> freshText(const QString& queue);

/// Keeps a text that somebody else has got from the server just now, in case that the next one is late.
void rememberText(const QString& queue, const QByteArray& text);

} // namespace ppd
} // namespace halvern
