#pragma once

#include <QByteArray>
#include <QString>

namespace halvern {

/// The archive that a PPD file carries, empty if it carries none. `failure` is set if the PPD cannot be read.
QByteArray archiveInPpd(const QString& path, QString& failure);

} // namespace halvern
