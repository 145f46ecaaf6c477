// SPDX-License-Identifier: MIT
#include "platform/toolkit/speech_synthesizer.h"

#include <QProcess>
#include <QStandardPaths>

namespace halvern {

bool SpeechSynthesizer::startSpeakingString(const QString& text)
{
    const QString client = QStandardPaths::findExecutable(QStringLiteral("spd-say"));
    return !client.isEmpty() && QProcess::startDetached(client, {QStringLiteral("--"), text});
}

} // namespace halvern
