// SPDX-License-Identifier: MIT
#pragma once

#include "dialog/photo/decoder_wire.h"

namespace halvern {

/// Somebody who will want photos decoded: the first one starts halvern-decode, which is then warm for all,
/// and the last one ends it, with all that it still reads. Any thread; starting and ending wait for nothing.
class DecoderLease {
public:
    DecoderLease();
    ~DecoderLease();
    DecoderLease(const DecoderLease&) = delete;
    DecoderLease& operator=(const DecoderLease&) = delete;
};

/// A process that reads one file: what to talk to it by, and what to end it by. Not open if there is none.
struct DecoderProcess {
    Descriptor socket;
    Descriptor process;

    /// Ends it at once, whatever it does.
    void kill() const;
};

/// A new process, of the helper that is kept warm. For who holds a lease. Any thread; takes about a
/// millisecond.
DecoderProcess startDecoder();

/// What this build reads, and by which libraries, a line each; empty if halvern-decode cannot be started.
/// Takes as long as starting a program takes.
QString readableFormats();

} // namespace halvern
