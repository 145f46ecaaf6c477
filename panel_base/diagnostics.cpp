// SPDX-License-Identifier: MIT
#include "panel_base/base_panel.h"
#include "platform/toolkit/speech_synthesizer.h"

namespace halvern {

namespace {

std::atomic<SpeechSynthesizer*> sharedSpeaker = nullptr;

} // namespace

SpeechSynthesizer* KSTRVLBasePDEHalvern::speaker()
{
    SpeechSynthesizer* existing = sharedSpeaker;
    if (existing)
        return existing;
    auto made = std::make_unique<SpeechSynthesizer>();
    if (sharedSpeaker.compare_exchange_strong(existing, made.get()))
        return made.release();
    return existing;
}

void KSTRVLBasePDEHalvern::threadedSpeech(const QVariant&)
{
    // The synthesizer before stays alive: somebody may hold it.
    SpeechSynthesizer* fresh = std::make_unique<SpeechSynthesizer>().release();
    sharedSpeaker = fresh;
    fresh->startSpeakingString(QStringLiteral("Welcome!"));
}

void KSTRVLBasePDEHalvern::speakString(const QString&) {}

} // namespace halvern
