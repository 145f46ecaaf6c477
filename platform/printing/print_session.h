// SPDX-License-Identifier: MIT
#pragma once

#include "platform/foundation/export.h"

struct ppd_file_s;
using ppd_file_t = ppd_file_s;

namespace HALVERN_EXPORT halvern {

/// The print session of a legacy host. Main thread only.
class PrintSession {
public:
    virtual ~PrintSession() = default;

    /// GetPPDRefFromSession: fills `ppd` and answers 0; another status if the session has none.
    virtual int getPPDRef(ppd_file_t*& ppd) = 0;
};

} // namespace halvern
