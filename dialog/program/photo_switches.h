// SPDX-License-Identifier: MIT
#pragma once

#include "dialog/session/session_request.h"

#include <QCommandLineOption>
#include <QCommandLineParser>

namespace halvern {

/// The command line's options about single photos: which part of each is printed, how it is turned, how
/// often.
class PhotoSwitches {
public:
    PhotoSwitches();

    QList<QCommandLineOption> all() const { return {position_, zoom_, turn_, copies_}; }

    /// Takes them into the request. The sentence about one that is wrong; empty if none is.
    QString read(const QCommandLineParser& parser, SessionRequest& request) const;

private:
    QCommandLineOption position_;
    QCommandLineOption zoom_;
    QCommandLineOption turn_;
    QCommandLineOption copies_;
};

} // namespace halvern
