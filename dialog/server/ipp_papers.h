// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QList>
#include <QString>

struct _ipp_s;

namespace halvern {

/// A paper size of a printer's with the margins that it needs, in hundredths of a millimetre. A value.
struct IppPaper {
    QString keyword; ///< in the PPD: "A4", "4x6.Borderless"
    QString text;
    int width = 0;
    int length = 0;
    int left = 0;
    int bottom = 0;
    int right = 0;
    int top = 0;

    bool isBorderless() const { return left == 0 && bottom == 0 && right == 0 && top == 0; }
};

/// The paper sizes of a printer. A value.
struct IppPapers {
    QList<IppPaper> papers; ///< each size once, or twice where it can be had without margins, too
    QString defaultKeyword;
    bool hasCustom = false; ///< sizes within these limits, with these margins
    int leastWidth = 0;
    int mostWidth = 0;
    int leastLength = 0;
    int mostLength = 0;
    int left = 0;
    int bottom = 0;
    int right = 0;
    int top = 0;
};

/// Reads them from what a printer says of itself over IPP: bounded, and without what is no size. Any thread.
IppPapers readIppPapers(_ipp_s* attributes);

/// Whether a collection of a width and a length is the paper's.
bool isOfSize(const IppPaper& paper, _ipp_s* size);

/// The members of media-col that choose a paper size, from media-size on: "{x-dimension=...}" and its
/// margins.
QByteArray mediaSizeValue(const IppPaper& paper);

} // namespace halvern
