// SPDX-License-Identifier: MIT
#include "dialog/page/thumbnail_cache.h"

#include <QCoreApplication>
#include <QCryptographicHash>
#include <QDir>
#include <QFileInfo>
#include <QSaveFile>
#include <QStandardPaths>
#include <QtEndian>

#include <algorithm>
#include <array>

namespace halvern {

namespace {

constexpr qint64 kMostBytes = 4 * 1024 * 1024;
constexpr qint64 kMostHead = 64 * 1024; // what may stand before the pixels
constexpr quint32 kLongestChunk = 16 * 1024;
constexpr auto kForUser = QFileDevice::ReadOwner | QFileDevice::WriteOwner;
const QString kUriKey = QStringLiteral("Thumb::URI");
const QString kTimeKey = QStringLiteral("Thumb::MTime");

QString folderOf(ThumbnailSize size)
{
    return size == ThumbnailSize::normal ? QStringLiteral("normal") : QStringLiteral("large");
}

// As the desktop's other programs spell it: the name of the file depends on each character.
QByteArray uriOf(const QString& path)
{
    const QByteArray name = QFile::encodeName(QDir::cleanPath(QFileInfo(path).absoluteFilePath()));
    return "file://" + name.toPercentEncoding("!$&'()*+,-./:=@_~");
}

/// A text that stands in a PNG file before its pixels, as it stands there; nothing if there is none. Nothing
/// is unpacked.
std::optional<QByteArray> textIn(const QByteArray& png, const QByteArray& key)
{
    constexpr qsizetype kSignature = 8;
    constexpr qsizetype kAround = 12; // bytes of a chunk beside its data
    if (!png.startsWith("\x89PNG\r\n\x1a\n"))
        return std::nullopt;
    for (qsizetype at = kSignature; at + kAround <= png.size();) {
        const auto length = qFromBigEndian<quint32>(png.constData() + at);
        const QByteArray type = png.mid(at + 4, 4);
        if (type == "IDAT" || length > kLongestChunk)
            return std::nullopt;
        const QByteArray data = png.mid(at + 8, length);
        if (type == "tEXt" && data.startsWith(key + '\0'))
            return data.mid(key.size() + 1);
        at += kAround + length;
    }
    return std::nullopt;
}

// The address is compared too, where it can be read without unpacking.
bool isOf(const QString& thumbnail, const QByteArray& uri, qint64 changed)
{
    QFile file(thumbnail);
    if (!QFileInfo(thumbnail).isFile() || !file.open(QIODevice::ReadOnly) || file.size() > kMostBytes)
        return false;
    const QByteArray head = file.read(kMostHead);
    const std::optional<QByteArray> time = textIn(head, kTimeKey.toLatin1());
    const std::optional<QByteArray> address = textIn(head, kUriKey.toLatin1());
    // Some write fractions of a second.
    return time && time->split('.').first() == QByteArray::number(changed) && (!address || *address == uri);
}

bool makeFolder(const QString& path)
{
    return QFileInfo(path).isDir() || QDir().mkdir(path, kForUser | QFileDevice::ExeOwner) ||
           QFileInfo(path).isDir();
}

} // namespace

ThumbnailCache::ThumbnailCache(QString root) : root_(std::move(root))
{
    if (root_.isEmpty())
        root_ = QStandardPaths::writableLocation(QStandardPaths::GenericCacheLocation) +
                QStringLiteral("/thumbnails");
}

bool ThumbnailCache::isFor(const Photo& photo) const
{
    const QString path = QDir::cleanPath(QFileInfo(photo.path).absoluteFilePath());
    const auto isBelow = [&](const QString& folder) { return path.startsWith(folder + QLatin1Char('/')); };
    return photo.page == 0 && photo.pageNumber <= 1 && !isBelow(QDir::cleanPath(root_)) &&
           !isBelow(QDir::tempPath());
}

QString ThumbnailCache::pathFor(const QString& photo, ThumbnailSize size) const
{
    const QByteArray name = QCryptographicHash::hash(uriOf(photo), QCryptographicHash::Md5).toHex();
    return root_ + QLatin1Char('/') + folderOf(size) + QLatin1Char('/') + QString::fromLatin1(name) +
           QStringLiteral(".png");
}

std::optional<QString> ThumbnailCache::find(const QString& photo, qint64 changed, ThumbnailSize size) const
{
    const QByteArray uri = uriOf(photo);
    for (const ThumbnailSize kept : {ThumbnailSize::normal, ThumbnailSize::large}) {
        const QString path = pathFor(photo, kept);
        if (kept >= size && isOf(path, uri, changed))
            return path;
    }
    return std::nullopt;
}

bool ThumbnailCache::store(const QString& photo, qint64 changed, ThumbnailSize size, QImage thumbnail) const
{
    if (!QFileInfo(root_).isDir() && !QDir().mkpath(QFileInfo(root_).absolutePath()))
        return false;
    if (!makeFolder(root_) || !makeFolder(root_ + QLatin1Char('/') + folderOf(size)))
        return false;
    thumbnail.setText(kUriKey, QString::fromLatin1(uriOf(photo))); // plain: a file's
    thumbnail.setText(kTimeKey, QString::number(changed));         // plain: a file's
    thumbnail.setText(                                             // plain: a file's
        QStringLiteral("Software"), QCoreApplication::applicationName());
    QSaveFile file(pathFor(photo, size));
    return file.open(QIODevice::WriteOnly) && file.setPermissions(kForUser) && thumbnail.save(&file, "PNG") &&
           file.commit();
}

} // namespace halvern
