// SPDX-License-Identifier: MIT
#include "dialog/decode/image_source.h"
#include "dialog/decode/readers.h"

#include <QBuffer>
#include <QImageReader>

namespace halvern {

namespace {

constexpr int kAllocationMegabytes = 2048;

class OtherReader : public PhotoReader {
public:
    OtherReader(FileBytes bytes, const QString& suffix)
    {
        bytes_.setRawData(reinterpret_cast<const char*>(bytes.data()), qsizetype(bytes.size()));
        buffer_.setBuffer(&bytes_);
        buffer_.open(QIODevice::ReadOnly);
        QImageReader::setAllocationLimit(kAllocationMegabytes);
        reader_.setDevice(&buffer_);
        reader_.setAutoTransform(true);
        reader_.setDecideFormatFromContent(true);
        // Formats without a beginning of their own are told by their name only.
        if (!reader_.canRead())
            reader_.setFormat(suffix.toLatin1());
        if (!reader_.canRead())
            throw Unreadable{PhotoFault::noPicture};
        kind_ = QString::fromLatin1(reader_.format()).toUpper();
    }

    QString kind() const override { return kind_; }

    std::unique_ptr<PictureSource> open(const ReadRequest&) override
    {
        if (const QSize size = reader_.size(); size.isValid())
            checkSize(size.width(), size.height());
        const QImage image = reader_.read();
        if (image.isNull())
            throw Unreadable{PhotoFault::damaged};
        buffer_.seek(0);
        reader_.setDevice(&buffer_);
        return std::make_unique<ImageSource>(image, isCutShort(image) || isGifCutShort());
    }

private:
    // The toolkit leaves what a bitmap file does not have black, and says nothing.
    bool isCutShort(const QImage& image) const
    {
        if (!bytes_.startsWith("BM") || bytes_.size() < 34 || bytes_.at(30) != 0)
            return false;
        const auto number = [this](qsizetype at, int count) {
            quint32 value = 0;
            for (int i = count - 1; i >= 0; --i)
                value = value << 8 | quint8(bytes_.at(at + i));
            return value;
        };
        const quint64 rowBits = quint64(image.width()) * number(28, 2);
        const quint64 wanted = number(10, 4) + (rowBits + 31) / 32 * 4 * quint64(image.height());
        return quint64(bytes_.size()) < wanted;
    }

    // The same of the first picture of a GIF file: it lies in blocks that say how long they are.
    bool isGifCutShort() const
    {
        constexpr qsizetype kHeader = 13;
        if (!bytes_.startsWith("GIF") || bytes_.size() < kHeader)
            return false;
        const auto byte = [this](qsizetype at) { return at < bytes_.size() ? int(uchar(bytes_[at])) : -1; };
        const auto palette = [&](qsizetype flags) {
            return byte(flags) & 0x80 ? qsizetype(3) << ((byte(flags) & 7) + 1) : 0;
        };
        const auto behindBlocks = [&](qsizetype at) {
            while (byte(at) > 0)
                at += 1 + byte(at);
            return at + 1;
        };
        qsizetype at = kHeader + palette(10);
        while (byte(at) == '!')
            at = behindBlocks(at + 2);
        if (byte(at) != ',')
            return true;
        return behindBlocks(at + 11 + palette(at + 9)) > bytes_.size();
    }

    QByteArray bytes_;
    QBuffer buffer_;
    QImageReader reader_;
    QString kind_;
};

} // namespace

std::unique_ptr<PhotoReader> makeOtherReader(FileBytes bytes, const QString& suffix)
{
    return std::make_unique<OtherReader>(bytes, suffix);
}

} // namespace halvern
