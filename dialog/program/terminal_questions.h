// SPDX-License-Identifier: MIT
#pragma once

#include "platform/printing/access.h"

namespace halvern {

/// Asks on the terminal that the program was started from, without an echo of what is secret; nobody if there
/// is none. What the desktop's keyring has goes before. Any thread.
class TerminalQuestions : public cups::AccessQuestions {
public:
    std::optional<cups::Login> askLogin(const cups::LoginQuestion& question,
                                        const cups::CancelFlag& cancelled) override;

    void loginWasRight(const cups::Place&, const cups::Login&) override {}

    bool askCertificate(const cups::CertificateQuestion& question,
                        const cups::CancelFlag& cancelled) override;
};

} // namespace halvern
