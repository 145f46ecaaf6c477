// SPDX-License-Identifier: MIT
#pragma once

#include <QList>
#include <QString>

#include <optional>

struct _ipp_s;

namespace halvern {

/// Something that a printer uses up, or a tank that it fills. A value; all of this on any thread.
struct Supply {
    QString name;             ///< in the printer's words, fit for a screen; may be empty
    QString type;             ///< a keyword: "ink-cartridge", "toner", "waste-ink"; may be empty
    QList<quint32> colours;   ///< as 0xRRGGBB, several in one cartridge; empty: none, or not told
    std::optional<int> level; ///< in per cent; nothing: not known
    int limit = 0;            ///< in per cent: from here on it is low, or nearly full
    bool fillsUp = false;     ///< what is bad of it is that it is full

    bool operator==(const Supply&) const = default;
};

/// What a printer's answer tells of them, in its order; no more than a screen can show. `isCut` becomes true
/// if it told of more.
QList<Supply> readSupplies(_ipp_s* answer, bool* isCut);

/// Whether it will soon, or does already, keep somebody from printing. Not known is not low.
bool isLow(const Supply& supply);
bool isUsedUp(const Supply& supply);

/// What it is called: the printer's name for it, else what it is and which colour.
QString supplyName(const Supply& supply);

/// "40 %", "5 %, low", "full", "not known".
QString levelText(const Supply& supply);

/// Whether a job needs it: one without colours prints with black alone, and what is no ink is needed always.
bool isNeeded(const Supply& supply, bool inColour);

/// The low ones that a job needs, in a few words: "Cyan is low (5 %)"; empty if there is none.
QString lowSupplies(const QList<Supply>& supplies, bool inColour);

} // namespace halvern
