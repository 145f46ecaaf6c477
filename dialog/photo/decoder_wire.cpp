// SPDX-License-Identifier: MIT
#include "dialog/photo/decoder_wire.h"

#include <QDataStream>
#include <QIODevice>

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <utility>

#include <poll.h>
#include <sys/mman.h>
#include <sys/socket.h>
#include <unistd.h>

namespace halvern {

namespace {

constexpr quint32 kLongestMessage = 64 * 1024 * 1024; // profiles of printing presses have megabytes
constexpr quint32 kMostPages = 100'000;
constexpr int kMostResolution = 100'000;
constexpr double kMostPoints = 1e6;
constexpr int kMostStars = 5;

QDataStream& operator<<(QDataStream& out, const PhotoDetails& d)
{
    return out << d.kind << d.taken << d.camera << d.lens << d.exposure << d.aperture << d.focalLength
               << qint32(d.sensitivity) << d.title << d.description << qint32(d.rating);
}

QDataStream& operator>>(QDataStream& in, PhotoDetails& d)
{
    qint32 sensitivity = 0;
    qint32 rating = 0;
    in >> d.kind >> d.taken >> d.camera >> d.lens >> d.exposure >> d.aperture >> d.focalLength >>
        sensitivity >> d.title >> d.description >> rating;
    for (QString* text : {&d.kind, &d.taken, &d.camera, &d.lens, &d.title, &d.description})
        text->truncate(kLongestDetail);
    for (double* number : {&d.exposure, &d.aperture, &d.focalLength})
        *number = qIsFinite(*number) ? std::max(*number, 0.0) : 0.0;
    d.sensitivity = std::max(sensitivity, 0);
    d.rating = std::clamp(rating, 0, kMostStars);
    return in;
}

QDataStream& operator<<(QDataStream& out, const StoredPicture& p)
{
    return out << p.size << p.fullSize << quint8(p.format) << p.profile << quint8(p.colorTag)
               << quint8(p.orientation.quarterTurns) << p.orientation.isMirrored << p.dotsPerInch;
}

bool isPossible(const QSize& size)
{
    return size.width() > 0 && size.height() > 0 && qint64(size.width()) * size.height() <= kMostPixels;
}

QDataStream& operator>>(QDataStream& in, StoredPicture& p)
{
    quint8 format = 0;
    quint8 tag = 0;
    quint8 turns = 0;
    in >> p.size >> p.fullSize >> format >> p.profile >> tag >> turns >> p.orientation.isMirrored >>
        p.dotsPerInch;
    const bool isRight =
        format <= quint8(PixelFormat::cmyk8) && tag <= quint8(ColorTag::adobeRgb) && turns < 4;
    if (!isRight)
        in.setStatus(QDataStream::ReadCorruptData);
    p.format = isRight ? PixelFormat(format) : PixelFormat::rgb8;
    p.colorTag = isRight ? ColorTag(tag) : ColorTag::none;
    p.orientation.quarterTurns = isRight ? turns : 0;
    if (!qIsFinite(p.dotsPerInch))
        p.dotsPerInch = 0.0;
    return in;
}

QDataStream& operator>>(QDataStream& in, PhotoFault& fault)
{
    quint8 number = 0;
    in >> number;
    fault = number <= quint8(PhotoFault::noReader) ? PhotoFault(number) : PhotoFault::crashed;
    return in;
}

/// A file's pages; the toolkit's own reading of a list makes room for as many as are announced.
struct Pages {
    QList<qint32>& list;
};

QDataStream& operator>>(QDataStream& in, Pages pages)
{
    quint32 count = 0;
    in >> count;
    if (count > kMostPages)
        in.setStatus(QDataStream::ReadCorruptData);
    pages.list.clear();
    for (quint32 i = 0; i < count && in.status() == QDataStream::Ok; ++i) {
        qint32 page = 0;
        in >> page;
        pages.list.append(page);
    }
    return in;
}

template <typename... Fields> QByteArray bytesOf(const Fields&... fields)
{
    QByteArray bytes;
    QDataStream out(&bytes, QIODevice::WriteOnly);
    (out << ... << fields);
    return bytes;
}

template <typename... Fields> bool readFrom(const QByteArray& bytes, Fields&&... fields)
{
    QDataStream in(bytes);
    (in >> ... >> fields);
    return in.status() == QDataStream::Ok;
}

// Waits for something to read; a half that has closed is something, too.
bool waitFor(int socket, int milliseconds)
{
    pollfd wanted{socket, POLLIN, 0};
    int ready = 0;
    do
        ready = poll(&wanted, 1, milliseconds);
    while (ready < 0 && errno == EINTR);
    return ready > 0;
}

void takeDescriptor(const msghdr& header, Descriptor* descriptor)
{
    for (cmsghdr* part = CMSG_FIRSTHDR(&header); part;
         part = CMSG_NXTHDR(const_cast<msghdr*>(&header), part)) {
        if (part->cmsg_level != SOL_SOCKET || part->cmsg_type != SCM_RIGHTS)
            continue;
        // There is room for two, for alignment; who sends more than one is not to fill our table of them.
        const size_t count = (part->cmsg_len - CMSG_LEN(0)) / sizeof(int);
        for (size_t i = 0; i < count; ++i) {
            int number = -1;
            std::memcpy(&number, CMSG_DATA(part) + i * sizeof number, sizeof number);
            Descriptor taken(number);
            if (descriptor)
                *descriptor = std::move(taken);
        }
    }
}

Received receiveBytes(int socket, char* to, size_t size, Descriptor* descriptor, int milliseconds)
{
    while (size > 0) {
        if (!waitFor(socket, milliseconds))
            return Received::tooLate;
        iovec part{to, size};
        alignas(cmsghdr) char control[CMSG_SPACE(sizeof(int))];
        msghdr header{};
        header.msg_iov = &part;
        header.msg_iovlen = 1;
        header.msg_control = control;
        header.msg_controllen = sizeof control;
        const ssize_t count = recvmsg(socket, &header, MSG_CMSG_CLOEXEC);
        if (count < 0 && errno == EINTR)
            continue;
        if (count <= 0)
            return Received::end;
        takeDescriptor(header, descriptor);
        to += count;
        size -= size_t(count);
    }
    return Received::message;
}

} // namespace

QByteArray encoded(const OpenRequest& m)
{
    return bytesOf(m.suffix);
}

bool decode(const QByteArray& bytes, OpenRequest& m)
{
    return readFrom(bytes, m.suffix);
}

QByteArray encoded(const OpenAnswer& m)
{
    return bytesOf(quint8(m.fault), m.isPdf, m.isCutOff, m.pages, m.details);
}

bool decode(const QByteArray& bytes, OpenAnswer& m)
{
    return readFrom(bytes, m.fault, m.isPdf, m.isCutOff, Pages{m.pages}, m.details);
}

QByteArray encoded(const ReadRequest& m)
{
    return bytesOf(m.page, m.leastEdge, m.resolution);
}

bool decode(const QByteArray& bytes, ReadRequest& m)
{
    return readFrom(bytes, m.page, m.leastEdge, m.resolution) && m.resolution >= 0 &&
           m.resolution <= kMostResolution;
}

QByteArray encoded(const PictureAnswer& m)
{
    return bytesOf(quint8(m.fault), m.picture, m.ownSize, m.bandRows);
}

bool decode(const QByteArray& bytes, PictureAnswer& m)
{
    if (!readFrom(bytes, m.fault, m.picture, m.ownSize, m.bandRows))
        return false;
    const bool isSizePossible = m.ownSize.width() >= 0.0 && m.ownSize.width() < kMostPoints &&
                                m.ownSize.height() >= 0.0 && m.ownSize.height() < kMostPoints;
    return m.fault != PhotoFault::none ||
           (isPossible(m.picture.size) && isPossible(m.picture.fullSize) && m.bandRows > 0 &&
            m.bandRows <= m.picture.size.height() && isSizePossible);
}

QByteArray encoded(const BandAnswer& m)
{
    return bytesOf(quint8(m.fault), m.isDamaged, m.rows);
}

bool decode(const QByteArray& bytes, BandAnswer& m)
{
    return readFrom(bytes, m.fault, m.isDamaged, m.rows) && m.rows >= 0;
}

Descriptor& Descriptor::operator=(Descriptor&& other) noexcept
{
    if (this != &other) {
        reset();
        number_ = other.release();
    }
    return *this;
}

int Descriptor::release()
{
    return std::exchange(number_, -1);
}

void Descriptor::reset()
{
    if (isOpen())
        close(release());
}

Mapping::Mapping(int descriptor, size_t size, bool isWritable)
{
    if (size == 0)
        return;
    void* data =
        mmap(nullptr, size, isWritable ? PROT_READ | PROT_WRITE : PROT_READ, MAP_SHARED, descriptor, 0);
    if (data == MAP_FAILED)
        return;
    data_ = static_cast<uchar*>(data);
    size_ = size;
}

Mapping::~Mapping()
{
    if (data_)
        munmap(data_, size_);
}

Mapping::Mapping(Mapping&& other) noexcept
    : data_(std::exchange(other.data_, nullptr)), size_(std::exchange(other.size_, 0))
{
}

Mapping& Mapping::operator=(Mapping&& other) noexcept
{
    std::swap(data_, other.data_);
    std::swap(size_, other.size_);
    return *this;
}

bool sendMessage(int socket, const QByteArray& bytes, int descriptor)
{
    quint32 length = quint32(bytes.size());
    iovec parts[] = {{&length, sizeof length}, {const_cast<char*>(bytes.constData()), size_t(bytes.size())}};
    alignas(cmsghdr) char control[CMSG_SPACE(sizeof(int))] = {};
    msghdr header{};
    header.msg_iov = parts;
    header.msg_iovlen = 2;
    if (descriptor >= 0) {
        header.msg_control = control;
        header.msg_controllen = sizeof control;
        cmsghdr* part = CMSG_FIRSTHDR(&header);
        part->cmsg_level = SOL_SOCKET;
        part->cmsg_type = SCM_RIGHTS;
        part->cmsg_len = CMSG_LEN(sizeof(int));
        std::memcpy(CMSG_DATA(part), &descriptor, sizeof descriptor);
    }
    size_t left = sizeof length + size_t(bytes.size());
    while (left > 0) {
        const ssize_t count = sendmsg(socket, &header, MSG_NOSIGNAL);
        if (count < 0 && errno == EINTR)
            continue;
        if (count <= 0)
            return false;
        left -= size_t(count);
        header.msg_control = nullptr;
        header.msg_controllen = 0;
        size_t sent = size_t(count);
        for (iovec& part : parts) {
            const size_t gone = std::min(sent, part.iov_len);
            part.iov_base = static_cast<char*>(part.iov_base) + gone;
            part.iov_len -= gone;
            sent -= gone;
        }
    }
    return true;
}

Received receiveMessage(int socket, QByteArray* bytes, Descriptor* descriptor, int milliseconds)
{
    quint32 length = 0;
    Received state =
        receiveBytes(socket, reinterpret_cast<char*>(&length), sizeof length, descriptor, milliseconds);
    if (state != Received::message)
        return state;
    if (length > kLongestMessage)
        return Received::end;
    bytes->resize(length);
    return receiveBytes(socket, bytes->data(), length, descriptor, milliseconds);
}

} // namespace halvern
