// SPDX-License-Identifier: MIT
#include "platform/foundation/whole_file.h"

#include <QElapsedTimer>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>
#include <QThread>

#include <cerrno>
#include <cstring>

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

namespace halvern {

namespace {

constexpr int kLookAgainMilliseconds = 10;

// Some file systems have nothing to be flushed.
bool isOnDisk(int file)
{
    return fsync(file) == 0 || errno == EINVAL || errno == EROFS || errno == ENOTSUP;
}

} // namespace

QString writeWholeFile(const QString& path, const QByteArray& text, NewFile kind)
{
    QSaveFile file(path);
    const bool isNew = !QFileInfo::exists(path);
    if (!file.open(QIODevice::WriteOnly))
        return file.errorString();
    if (isNew && kind == NewFile::forMyself)
        file.setPermissions(QFileDevice::ReadOwner | QFileDevice::WriteOwner);
    // commit() would take what is still to be written when the disk is full for a success.
    if (file.write(text) != text.size() || !file.flush())
        return file.errorString();
    if (!isOnDisk(file.handle()))
        return QString::fromLocal8Bit(std::strerror(errno));
    return file.commit() ? QString() : file.errorString();
}

FileLock::FileLock(const QString& path, int milliseconds)
{
    const int file = open(QFile::encodeName(path).constData(),
                          O_RDWR | O_CREAT | O_CLOEXEC | O_NOFOLLOW | O_NONBLOCK, 0600);
    if (file < 0)
        return;
    QElapsedTimer clock;
    clock.start();
    while (flock(file, LOCK_EX | LOCK_NB) != 0) {
        if ((errno != EWOULDBLOCK && errno != EINTR) || clock.hasExpired(milliseconds)) {
            close(file);
            return;
        }
        QThread::msleep(kLookAgainMilliseconds);
    }
    file_ = file;
}

FileLock::~FileLock()
{
    if (file_ >= 0)
        close(file_);
}

} // namespace halvern
