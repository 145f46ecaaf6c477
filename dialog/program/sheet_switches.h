// SPDX-License-Identifier: MIT
#pragma once

#include "dialog/session/session_request.h"

#include <QCommandLineOption>
#include <QCommandLineParser>

namespace halvern {

/// The command line's options about sheets: the layout, sizes, and what stands around each photo.
class SheetSwitches {
public:
    SheetSwitches();

    QList<QCommandLineOption> all() const;

    /// Takes them into the request. The sentence about one that is wrong; empty if none is.
    QString read(const QCommandLineParser& parser, SessionRequest& request) const;

private:
    QString readFlags(const QCommandLineParser& parser, SheetWishes& sheets) const;
    QString readLengths(const QCommandLineParser& parser, SheetWishes& sheets) const;
    QString readSize(const QCommandLineParser& parser, SheetWishes& sheets) const;

    QCommandLineOption layout_;
    QCommandLineOption caption_;
    QCommandLineOption size_;
    QCommandLineOption corner_;
    QCommandLineOption margin_;
    QCommandLineOption border_;
    QList<QCommandLineOption> flags_; // each beside the one that switches it off
};

} // namespace halvern
