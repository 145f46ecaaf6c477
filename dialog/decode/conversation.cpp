// SPDX-License-Identifier: MIT
#include "dialog/decode/conversation.h"

#include "dialog/decode/camera_notes.h"
#include "dialog/decode/readers.h"

#include <algorithm>
#include <exception>
#include <functional>
#include <new>
#include <utility>

#include <fcntl.h>
#include <sys/mman.h>
#include <sys/stat.h>
#include <unistd.h>

namespace halvern {

namespace {

constexpr qsizetype kBandBytes = 4 * 1024 * 1024;
constexpr int kHalves = 2;
constexpr size_t kMostCopied = size_t(512) * 1024 * 1024;

/// The file's bytes: mapped, or copied from a file system that cannot do that. A file that shrinks while it
/// is mapped ends this process, and its photo is told to have made it fail.
class PhotoBytes {
public:
    explicit PhotoBytes(const Descriptor& file)
    {
        struct stat state {};

        if (fstat(file.number(), &state) != 0)
            throw Unreadable{PhotoFault::unreadable};
        if (state.st_size == 0)
            throw Unreadable{PhotoFault::empty};
        const auto size = size_t(state.st_size);
        mapping_ = Mapping(file.number(), size, false);
        if (mapping_.data()) {
            bytes_ = {mapping_.data(), size};
            return;
        }
        if (size > kMostCopied)
            throw Unreadable{PhotoFault::tooLarge};
        copy_.resize(qsizetype(size));
        if (pread(file.number(), copy_.data(), size, 0) != state.st_size)
            throw Unreadable{PhotoFault::unreadable};
        bytes_ = {reinterpret_cast<const uchar*>(copy_.constData()), size};
    }

    FileBytes bytes() const { return bytes_; }

private:
    Mapping mapping_;
    QByteArray copy_;
    FileBytes bytes_;
};

// Whatever goes wrong in a library has a name by now.
PhotoFault faultOf(const std::function<void()>& work)
{
    try {
        work();
        return PhotoFault::none;
    } catch (const Unreadable& reason) {
        return reason.fault;
    } catch (const std::bad_alloc&) {
        return PhotoFault::tooLarge;
    } catch (const std::length_error&) {
        return PhotoFault::tooLarge;
    } catch (const std::exception&) {
        return PhotoFault::damaged;
    }
}

class Conversation {
public:
    explicit Conversation(int socket) : socket_(socket) {}

    bool open()
    {
        QByteArray message;
        Descriptor file;
        OpenRequest request;
        if (receiveMessage(socket_, &message, &file, -1) != Received::message || !decode(message, request))
            return false;
        OpenAnswer answer;
        answer.fault = faultOf([&] {
            bytes_.emplace(file);
            const Metadata metadata = metadataOf(bytes_->bytes());
            reader_ = readerFor(bytes_->bytes(), request.suffix, metadata.notes);
            answer.details = metadata.details;
            answer.details.kind = reader_->kind();
            answer.isPdf = reader_->isPdf();
            answer.isCutOff = reader_->isCutOff();
            answer.pages = reader_->pages();
        });
        return sendMessage(socket_, encoded(answer)) && answer.fault == PhotoFault::none;
    }

    /// Answers about one picture. False once nobody asks any more.
    bool show()
    {
        // Empty ones are the last picture's halves that were free.
        QByteArray message = std::exchange(pending_, {});
        while (message.isEmpty()) {
            if (receiveMessage(socket_, &message, nullptr, -1) != Received::message)
                return false;
        }
        ReadRequest request;
        if (!decode(message, request))
            return false;
        std::unique_ptr<PictureSource> source;
        PictureAnswer answer;
        answer.fault = faultOf([&] {
            source = scaledDown(withGrayForMissing(reader_->open(request)), request.leastEdge);
            answer.picture = source->picture();
            answer.ownSize = source->ownSize();
            makeWindow(&answer);
        });
        const Descriptor window = std::move(window_);
        if (!sendMessage(socket_, encoded(answer), window.number()))
            return false;
        return answer.fault != PhotoFault::none || handOver(*source, answer.bandRows);
    }

private:
    void makeWindow(PictureAnswer* answer)
    {
        const qsizetype rowBytes = answer->picture.rowBytes();
        answer->bandRows =
            qint32(std::clamp<qsizetype>(kBandBytes / rowBytes, 1, answer->picture.size.height()));
        const qsizetype size = rowBytes * answer->bandRows * kHalves;
        window_ = Descriptor(memfd_create("pixels", MFD_CLOEXEC | MFD_ALLOW_SEALING));
        if (!window_.isOpen() || ftruncate(window_.number(), size) != 0 ||
            fcntl(window_.number(), F_ADD_SEALS, F_SEAL_SHRINK | F_SEAL_GROW) != 0)
            throw Unreadable{PhotoFault::tooLarge};
        pixels_ = Mapping(window_.number(), size_t(size), true);
        if (!pixels_.data())
            throw Unreadable{PhotoFault::tooLarge};
    }

    bool handOver(PictureSource& source, int bandRows)
    {
        const qsizetype rowBytes = source.picture().rowBytes();
        int left = source.picture().size.height();
        for (int half = 0; left > 0; half = (half + 1) % kHalves) {
            if (receiveMessage(socket_, &pending_, nullptr, -1) != Received::message)
                return false;
            if (!pending_.isEmpty())
                return true;
            BandAnswer band;
            band.fault = faultOf([&] {
                uchar* row = pixels_.data() + qsizetype(half) * bandRows * rowBytes;
                for (; band.rows < std::min(bandRows, left); ++band.rows, row += rowBytes) {
                    if (!source.readRow(row))
                        throw Unreadable{PhotoFault::damaged};
                }
                band.isDamaged = source.isDamaged();
            });
            left -= band.rows;
            if (!sendMessage(socket_, encoded(band)))
                return false;
            if (band.fault != PhotoFault::none)
                return true;
        }
        return true;
    }

    int socket_;
    std::optional<PhotoBytes> bytes_;
    std::unique_ptr<PhotoReader> reader_;
    Descriptor window_;
    Mapping pixels_;
    QByteArray pending_; // a question that came before the last one's answer was taken
};

} // namespace

void converse(const Descriptor& socket)
{
    Conversation conversation(socket.number());
    if (!conversation.open())
        return;
    while (conversation.show()) {
    }
}

} // namespace halvern
