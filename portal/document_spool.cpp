// SPDX-License-Identifier: MIT
#include "portal/document_spool.h"

#include "platform/foundation/display_text.h"
#include "platform/foundation/threads/work_queue.h"

#include <QDir>
#include <QFile>
#include <QPointer>
#include <QStandardPaths>

#include <array>
#include <cerrno>
#include <cstdio>
#include <cstring>

#include <fcntl.h>
#include <poll.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <sys/statvfs.h>
#include <unistd.h>

namespace halvern {

namespace {

constexpr qint64 kPiece = 1024 * 1024;
constexpr int kLookUp = 200;          // milliseconds until the flag is looked at again
constexpr int kLongestSilence = 5000; // when there is hurry
constexpr int kLongestName = 60;
// What is left to others; of a small folder, which may be in memory, a quarter of it.
constexpr qint64 kReserve = qint64(256) * 1024 * 1024;

// In the order in which they are tried: the first is in memory, and small.
QStringList spoolFolders()
{
    const QString user = QString::number(getuid());
    QStringList folders;
    if (const QString runtime = QStandardPaths::writableLocation(QStandardPaths::RuntimeLocation);
        !runtime.isEmpty())
        folders.append(runtime + QStringLiteral("/halvern-print-portal"));
    folders.append(QStringLiteral("/var/tmp/halvern-print-portal-") + user);
    return folders;
}

// Only this user's own: in a folder that everybody may write to somebody may have been there before.
bool isOwnFolder(const QString& folder)
{
    struct stat found = {};
    return lstat(QFile::encodeName(folder).constData(), &found) == 0 && S_ISDIR(found.st_mode) &&
           found.st_uid == getuid() && (found.st_mode & 077) == 0;
}

QString fileName(const QString& title)
{
    QString name = displayText(title, kLongestName);
    for (QChar& c : name) {
        if (c == QLatin1Char('/') || c == QLatin1Char('\\'))
            c = QLatin1Char('-');
    }
    while (name.startsWith(QLatin1Char('.')))
        name.remove(0, 1);
    return name.trimmed().isEmpty() ? QStringLiteral("document") : name.trimmed();
}

// Whoever holds it uses the folder. It goes with the process, however that ends.
int lockFolder(const QString& folder)
{
    const int lock = open(QFile::encodeName(folder).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (lock >= 0 && flock(lock, LOCK_EX | LOCK_NB) == 0)
        return lock;
    if (lock >= 0)
        close(lock);
    return -1;
}

/// A folder of its own with one file, which go together.
class Room {
public:
    explicit Room(const QString& folder)
    {
        const QByteArray path = QFile::encodeName(folder);
        if (mkdir(path.constData(), 0700) != 0 && errno != EEXIST)
            return;
        QByteArray own = path + "/XXXXXX";
        if (!isOwnFolder(folder) || !mkdtemp(own.data()))
            return;
        folder_ = QFile::decodeName(own);
        lock_ = lockFolder(folder_);
    }

    ~Room()
    {
        if (!folder_.isEmpty())
            QDir(folder_).removeRecursively();
        if (lock_ >= 0)
            close(lock_);
    }

    Room(const Room&) = delete;
    Room& operator=(const Room&) = delete;

    const QString& folder() const { return folder_; }

private:
    QString folder_;
    int lock_ = -1;
};

struct Filling {
    std::shared_ptr<Room> room;
    QFile file;

    bool open(const QString& folder)
    {
        room = std::make_shared<Room>(folder);
        if (room->folder().isEmpty())
            return false;
        file.setFileName(room->folder() + QStringLiteral("/incoming"));
        return file.open(QIODevice::ReadWrite | QIODevice::NewOnly | QIODevice::Unbuffered,
                         QFileDevice::ReadOwner | QFileDevice::WriteOwner);
    }
};

bool hasRoom(const QFile& file, qint64 more)
{
    struct statvfs system = {};
    if (fstatvfs(file.handle(), &system) != 0 || system.f_blocks == 0)
        return true;
    const auto bytes = [&](fsblkcnt_t blocks) { return qint64(blocks) * qint64(system.f_frsize); };
    return bytes(system.f_bavail) - more >= std::min(kReserve, bytes(system.f_blocks) / 4);
}

// The whole piece, going over to the next folder where there is no room.
bool write(std::unique_ptr<Filling>& filling, QStringList& folders, const QByteArray& piece)
{
    const qint64 before = filling->file.pos();
    while (!hasRoom(filling->file, piece.size()) || filling->file.write(piece) != piece.size()) {
        auto next = std::make_unique<Filling>();
        while (!folders.isEmpty() && !next->open(folders.takeFirst())) {
        }
        if (!next->file.isOpen() || !filling->file.seek(0))
            return false;
        for (qint64 left = before; left > 0;) {
            const QByteArray old = filling->file.read(std::min(left, kPiece));
            if (old.isEmpty() || !hasRoom(next->file, old.size()) || next->file.write(old) != old.size())
                return false;
            left -= old.size();
        }
        filling = std::move(next);
    }
    return true;
}

// What its owner says meanwhile.
struct Flags {
    cups::CancelFlag stop;
    cups::CancelFlag hurry;
};

QString unreadable(int error)
{
    return DocumentSpool::tr("The document cannot be read: %1. Print it once more from its application.")
        .arg(QString::fromLocal8Bit(std::strerror(error)));
}

// Whether it is at its end; false with a sentence if something failed, or without one if nobody waits.
bool readAll(int descriptor, std::unique_ptr<Filling>& filling, QStringList folders, const Flags& flags,
             QString& problem)
{
    if (descriptor < 0) {
        problem = unreadable(EMFILE);
        return false;
    }
    QByteArray piece(kPiece, Qt::Uninitialized);
    int silence = 0;
    while (!flags.stop->load()) {
        pollfd wait{descriptor, POLLIN, 0};
        if (poll(&wait, 1, kLookUp) == 0) {
            silence += flags.hurry->load() ? kLookUp : 0;
            if (silence < kLongestSilence)
                continue;
            problem =
                DocumentSpool::tr("The application has gone before its document was whole. Print it once "
                                  "more.");
            return false;
        }
        silence = 0;
        const ssize_t count = read(descriptor, piece.data(), size_t(piece.size()));
        if (count == 0)
            return true;
        if (count < 0 && (errno == EINTR || errno == EAGAIN))
            continue;
        if (count < 0) {
            problem = unreadable(errno);
            return false;
        }
        if (!write(filling, folders, QByteArray::fromRawData(piece.constData(), count))) {
            problem = DocumentSpool::tr(
                          "There is no room for the document: %1. Make room on the disk, and print it "
                          "once more.")
                          .arg(filling->file.error() == QFile::NoError
                                   ? QString::fromLocal8Bit(std::strerror(ENOSPC))
                                   : filling->file.errorString());
            return false;
        }
    }
    return false;
}

SpooledDocument spool(int descriptor, const QString& title, const Flags& flags)
{
    SpooledDocument document;
    QStringList folders = spoolFolders();
    auto filling = std::make_unique<Filling>();
    while (!folders.isEmpty() && !filling->open(folders.takeFirst())) {
    }
    if (!filling->file.isOpen()) {
        document.problem =
            DocumentSpool::tr("No file can be made for the document in \"%1\". Make sure that you may "
                              "write there, and print it once more.")
                .arg(spoolFolders().back());
        return document;
    }
    if (!readAll(descriptor, filling, folders, flags, document.problem))
        return document;
    QFile& file = filling->file;
    const qint64 size = file.size();
    file.seek(0);
    const QByteArray start = file.read(kKindBytes);
    document.kind = kindOf(start);
    file.seek(std::max(size - kKindBytes, qint64(0)));
    document.problem = documentProblem(document.kind, size, file.read(kKindBytes));
    if (!document.problem.isEmpty())
        return document;
    const QString path = filling->room->folder() + QLatin1Char('/') + fileName(title) + endingOf(start);
    file.close();
    // QFile would copy it where it cannot be renamed, into a file that others may read.
    if (std::rename(QFile::encodeName(file.fileName()).constData(), QFile::encodeName(path).constData()) == 0)
        document.path = std::shared_ptr<const QString>(
            new QString(path), [room = filling->room](const QString* name) { delete name; });
    else
        document.problem = unreadable(errno);
    return document;
}

} // namespace

DocumentSpool::~DocumentSpool()
{
    stop_->store(true);
}

void DocumentSpool::start(int descriptor, const QString& title)
{
    QPointer<DocumentSpool> self(this);
    const int own = fcntl(descriptor, F_DUPFD_CLOEXEC, 3);
    const bool isStarted = WorkQueue().async([self, own, title, flags = Flags{stop_, hurry_}] {
        SpooledDocument document = spool(own, title, flags);
        if (own >= 0)
            close(own);
        mainQueue().async([self, document = std::move(document), stop = flags.stop] {
            if (self && !stop->load())
                Q_EMIT self->finished(document);
        });
    });
    if (isStarted)
        return;
    if (own >= 0)
        close(own);
    mainQueue().async([self] {
        SpooledDocument none;
        none.problem = tooBusySentence();
        if (self)
            Q_EMIT self->finished(none);
    });
}

QString DocumentSpool::tooBusySentence()
{
    return tr("The computer is too busy to take the document. Close something, and print it once more.");
}

void removeOldSpools()
{
    for (const QString& folder : spoolFolders()) {
        if (!isOwnFolder(folder))
            continue;
        for (const QFileInfo& room : QDir(folder).entryInfoList(QDir::Dirs | QDir::Hidden |
                                                                QDir::NoDotAndDotDot | QDir::NoSymLinks)) {
            const int lock = lockFolder(room.filePath());
            if (lock < 0)
                continue;
            QDir(room.filePath()).removeRecursively();
            close(lock);
        }
    }
}

} // namespace halvern
