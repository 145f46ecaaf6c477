// SPDX-License-Identifier: MIT
#pragma once

#include "dialog/page/jpeg_walker.h"

#include <array>
#include <vector>

namespace halvern {

/// One of the tables of codes by which a JPEG file's numbers are packed, laid out for going over the numbers:
/// how many bits they take, and how many places of a block they fill.
class JpegCodes {
public:
    enum class Kind { first, others }; ///< of a block's numbers

    /// From the bytes of a file: 16 counts, and the codes' meanings. False if they say what cannot be. Codes
    /// that no camera's file uses are left out, so that going over one fails.
    bool define(Kind kind, const QByteArray& counts, const QByteArray& meanings);

    /// A code's step, from the bits that begin with it: bits to leave behind in the lowest kBitsOfLength
    /// bits, places above. 0: no such code.
    quint32 step(quint64 bits) const
    {
        const quint32 step = steps_[bits >> kShift];
        return step != 0 ? step : longStep(bits);
    }

    /// The same of up to two codes at once, for where there is room for at least 17 places.
    quint32 twoSteps(quint64 bits) const
    {
        const quint32 step = twoSteps_[bits >> kShift];
        return step != 0 ? step : longStep(bits);
    }

    static constexpr int kBitsOfLength = 5;
    static constexpr quint32 kLengthMask = (1U << kBitsOfLength) - 1;
    static constexpr quint32 kRestIsZero = 128; ///< as places: nothing follows in this block

private:
    static constexpr int kSeenBits = 11;
    static constexpr int kShift = 64 - kSeenBits;
    static constexpr int kLongestCode = 16;

    quint32 longStep(quint64 bits) const;
    void pairUp();

    std::array<quint16, 1 << kSeenBits> steps_{};
    std::array<quint16, 1 << kSeenBits> twoSteps_{};
    std::array<qint32, kLongestCode + 1> firstCode_{}; // of each length
    std::array<qint32, kLongestCode + 1> lastCode_{};  // -1: none
    std::array<qint32, kLongestCode + 1> place_{};     // in stepOf_, of code 0 of that length
    std::vector<quint16> stepOf_;
};

/// A part of what a scan repeats: blocks of one component.
struct JpegBlocks {
    const JpegCodes* first = nullptr;
    const JpegCodes* others = nullptr;
    int count = 1;
};

/// Goes over the packed numbers of a scan to the marker behind them, which is answered: kNone if they are not
/// what they should be. Unpacks nothing, which is several times faster than decoding. `times` is how often
/// the blocks are repeated, `interval` after how many times a restart's marker stands; 0: never.
int markerBehindScan(JpegWalker& walker, const std::vector<JpegBlocks>& blocks, qint64 times, int interval);

} // namespace halvern
