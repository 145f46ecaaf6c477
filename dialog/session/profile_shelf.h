// SPDX-License-Identifier: MIT
#pragma once

#include <QElapsedTimer>
#include <QHash>
#include <QObject>

namespace halvern {

/// A profile that colours can be converted to, or the sentence that says why it is none.
struct PrinterProfile {
    QByteArray bytes;
    QString path;
    QString name; ///< its own: a stranger's text
    QString problem;
    bool isGray = false;   ///< it has no colours
    bool canProof = false; ///< it also says what its colours look like
    bool isRead = true;    ///< else a worker reads it, and `problem` says so

    bool operator==(const PrinterProfile&) const = default;
};

/// Reads an ICC profile from a file. Any thread.
PrinterProfile readPrinterProfile(const QString& path);

/// Printers' profiles, each read once, by a worker. Main thread only; never waits.
class ProfileShelf : public QObject {
    Q_OBJECT

public:
    using QObject::QObject;

    /// The profile. If it is being read, changed() follows. A file that could not be read is tried again
    /// after a while, for it may be there by now.
    PrinterProfile find(const QString& path);

    /// Whether a profile is still to come.
    bool isReading() const;

Q_SIGNALS:
    void changed();

private:
    struct Entry {
        PrinterProfile profile;
        QElapsedTimer age;
        bool isBeingRead = false;
    };

    void read(const QString& path);

    QHash<QString, Entry> entries_; // by path
};

} // namespace halvern
