// SPDX-License-Identifier: MIT
#pragma once

#include "platform/foundation/export.h"

#include <QString>

namespace HALVERN_EXPORT halvern {

/// A voice, through the desktop's speech service. Any thread.
class SpeechSynthesizer {
public:
    /// Starts to speak and returns. False if there is no speech service on this machine.
    bool startSpeakingString(const QString& text);
};

} // namespace halvern
