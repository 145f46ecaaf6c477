// SPDX-License-Identifier: MIT
#include "dialog/photo/photo_decoder.h"

#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <cstring>

#include <fcntl.h>
#include <sys/mman.h>
#include <sys/stat.h>

namespace halvern {

namespace {

// Milliseconds without a sign of the decoder: more than its processor time takes on a busy computer.
constexpr int kPatience = 300'000;
constexpr int kHalves = 2; // of the window: one is filled while the other is read
constexpr int kSeals = F_SEAL_SHRINK | F_SEAL_GROW;

// What a descriptor says that a hostile decoder may have sent; it must not shrink while it is mapped.
bool isSealed(const Descriptor& window, qsizetype size)
{
    struct stat state {};

    const int seals = fcntl(window.number(), F_GET_SEALS);
    return window.isOpen() && seals >= 0 && (seals & kSeals) == kSeals &&
           fstat(window.number(), &state) == 0 && state.st_size >= size;
}

} // namespace

PhotoDecoder::PhotoDecoder(const QString& path)
    // A named pipe must not hold anybody up.
    : photo_(open(QFile::encodeName(path).constData(), O_RDONLY | O_CLOEXEC | O_NONBLOCK))
{
    struct stat state {};

    if (!photo_.isOpen() || fstat(photo_.number(), &state) != 0 || !S_ISREG(state.st_mode)) {
        file_.fault = PhotoFault::unreadable;
        return;
    }
    process_ = startDecoder();
    if (!process_.socket.isOpen()) {
        file_.fault = PhotoFault::noReader;
        return;
    }
    QByteArray answer;
    const QByteArray request = encoded(OpenRequest{QFileInfo(path).suffix().toLower()});
    const PhotoFault fault = ask(request, &answer, nullptr);
    if (fault != PhotoFault::none || !decode(answer, file_)) {
        file_ = {};
        file_.fault = fault != PhotoFault::none ? fault : PhotoFault::crashed;
    }
}

PhotoDecoder::~PhotoDecoder()
{
    process_.kill();
}

// Bands that were on their way when nobody wanted them any more come first.
Received PhotoDecoder::receiveAnswer(QByteArray* answer, Descriptor* descriptor)
{
    BandAnswer band;
    Received state = Received::message;
    for (int i = 0; i <= kHalves; ++i) {
        state = receiveMessage(process_.socket.number(), answer, descriptor, kPatience);
        const bool isBand = answer->size() == encoded(band).size() && decode(*answer, band);
        if (state != Received::message || !isBand)
            break;
    }
    return state;
}

PhotoFault PhotoDecoder::ask(const QByteArray& message, QByteArray* answer, Descriptor* descriptor)
{
    const int socket = process_.socket.number();
    const int given = photo_.isOpen() ? photo_.number() : -1;
    const bool isSent = sendMessage(socket, message, given);
    photo_.reset();
    switch (isSent ? receiveAnswer(answer, descriptor) : Received::end) {
    case Received::message:
        return PhotoFault::none;
    case Received::tooLate:
        process_.kill();
        return PhotoFault::stuck;
    case Received::end:
        break;
    }
    return PhotoFault::crashed;
}

const PictureAnswer& PhotoDecoder::begin(const ReadRequest& request)
{
    isDamaged_ = false;
    rowsLeft_ = bandsTaken_ = bandRow_ = bandRows_ = 0;
    QByteArray answer;
    Descriptor window;
    fault_ = file_.fault != PhotoFault::none ? file_.fault : ask(encoded(request), &answer, &window);
    if (fault_ == PhotoFault::none && !decode(answer, picture_))
        fault_ = PhotoFault::crashed;
    if (fault_ == PhotoFault::none)
        fault_ = picture_.fault;
    if (fault_ == PhotoFault::none) {
        const qsizetype size = picture_.picture.rowBytes() * picture_.bandRows * kHalves;
        window_ = isSealed(window, size) ? Mapping(window.number(), size_t(size), false) : Mapping();
        if (!window_.data())
            fault_ = PhotoFault::crashed;
    }
    if (fault_ != PhotoFault::none) {
        picture_ = {};
        picture_.fault = fault_;
        return picture_;
    }
    rowsLeft_ = picture_.picture.size.height();
    return picture_;
}

bool PhotoDecoder::isOver() const
{
    return !process_.socket.isOpen() || fault_ == PhotoFault::crashed || fault_ == PhotoFault::stuck;
}

bool PhotoDecoder::nextBand()
{
    // The first time both halves are free, then the one that has just been read.
    const int socket = process_.socket.number();
    for (int i = bandsTaken_ == 0 ? kHalves : 1; i > 0; --i)
        sendMessage(socket, {});
    QByteArray bytes;
    BandAnswer band;
    const Received state = receiveMessage(socket, &bytes, nullptr, kPatience);
    if (state != Received::message || !decode(bytes, band)) {
        process_.kill();
        fault_ = state == Received::tooLate ? PhotoFault::stuck : PhotoFault::crashed;
        return false;
    }
    fault_ = band.fault;
    isDamaged_ = band.isDamaged;
    if (fault_ == PhotoFault::none && (band.rows == 0 || band.rows > std::min(picture_.bandRows, rowsLeft_)))
        fault_ = PhotoFault::crashed;
    if (fault_ != PhotoFault::none)
        return false;
    ++bandsTaken_;
    bandRow_ = 0;
    bandRows_ = band.rows;
    return true;
}

int PhotoDecoder::read(uchar* rows, int count)
{
    const qsizetype rowBytes = picture_.picture.rowBytes();
    int done = 0;
    while (done < count && rowsLeft_ > 0 && fault_ == PhotoFault::none) {
        if (bandRow_ == bandRows_ && !nextBand())
            break;
        const int some = std::min(count - done, bandRows_ - bandRow_);
        const int half = (bandsTaken_ - 1) % kHalves;
        const uchar* from = window_.data() + (qsizetype(half) * picture_.bandRows + bandRow_) * rowBytes;
        std::memcpy(rows + done * rowBytes, from, size_t(some * rowBytes));
        bandRow_ += some;
        done += some;
        rowsLeft_ -= some;
    }
    return done;
}

} // namespace halvern
