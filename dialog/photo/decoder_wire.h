// SPDX-License-Identifier: MIT
#pragma once

#include "dialog/photo/photo_details.h"
#include "dialog/photo/photo_fault.h"
#include "dialog/photo/stored_picture.h"

#include <QByteArray>
#include <QList>
#include <QSizeF>

#include <optional>

/// What the dialog and halvern-decode say to each other about one file. The dialog opens a conversation with
/// OpenRequest and the file's descriptor, and gets an OpenAnswer. Then, any number of times: ReadRequest,
/// PictureAnswer with the descriptor of a window of shared memory, and, for each of the dialog's empty
/// messages, a BandAnswer: rows in one half of the window, the first half first. The next ReadRequest may
/// come before all rows have.
namespace halvern {

/// The most pixels that a picture may have.
inline constexpr qint64 kMostPixels = 400'000'000;

struct OpenRequest {
    QString suffix; ///< of the file's name
};

struct OpenAnswer {
    PhotoFault fault = PhotoFault::none;
    bool isPdf = false;
    bool isCutOff = false; ///< pages, or the file's end, are missing
    QList<qint32> pages;   ///< as ReadRequest names them
    PhotoDetails details;
};

struct ReadRequest {
    qint32 page = 0;
    qint32 leastEdge = 0;  ///< of the longer edge when scaling down; 0: never
    qint32 resolution = 0; ///< of a document's page; 0: as many as `leastEdge` needs
};

struct PictureAnswer {
    PhotoFault fault = PhotoFault::none;
    StoredPicture picture;
    QSizeF ownSize{0.0, 0.0}; ///< of a document's page, points
    qint32 bandRows = 0;      ///< that half of the window holds
};

struct BandAnswer {
    PhotoFault fault = PhotoFault::none;
    bool isDamaged = false; ///< so far
    qint32 rows = 0;
};

QByteArray encoded(const OpenRequest& message);
QByteArray encoded(const OpenAnswer& message);
QByteArray encoded(const ReadRequest& message);
QByteArray encoded(const PictureAnswer& message);
QByteArray encoded(const BandAnswer& message);

/// False if the bytes are no such message, or say what cannot be.
bool decode(const QByteArray& bytes, OpenRequest& message);
bool decode(const QByteArray& bytes, OpenAnswer& message);
bool decode(const QByteArray& bytes, ReadRequest& message);
bool decode(const QByteArray& bytes, PictureAnswer& message);
bool decode(const QByteArray& bytes, BandAnswer& message);

/// An open file descriptor, closed at the end. A value that can be moved.
class Descriptor {
public:
    Descriptor() = default;

    explicit Descriptor(int number) : number_(number) {}

    ~Descriptor() { reset(); }

    Descriptor(Descriptor&& other) noexcept : number_(other.release()) {}

    Descriptor& operator=(Descriptor&& other) noexcept;

    bool isOpen() const { return number_ >= 0; }

    int number() const { return number_; }

    int release();
    void reset();

private:
    int number_ = -1;
};

/// Memory that is mapped, unmapped at the end.
class Mapping {
public:
    Mapping() = default;
    /// Maps a descriptor; empty if that fails.
    Mapping(int descriptor, size_t size, bool isWritable);
    ~Mapping();
    Mapping(Mapping&& other) noexcept;
    Mapping& operator=(Mapping&& other) noexcept;

    uchar* data() const { return data_; }

    size_t size() const { return size_; }

private:
    uchar* data_ = nullptr;
    size_t size_ = 0;
};

/// Sends one message, and a descriptor with it unless that is -1. False if nobody is there to take it.
bool sendMessage(int socket, const QByteArray& bytes, int descriptor = -1);

enum class Received { message, end, tooLate };

/// Waits for one message, `milliseconds` at most without a byte of it; -1: without limit.
Received receiveMessage(int socket, QByteArray* bytes, Descriptor* descriptor, int milliseconds);

} // namespace halvern
