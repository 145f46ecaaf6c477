// SPDX-License-Identifier: MIT
#include "dialog/decode/jpeg_decoder.h"
#include "dialog/decode/readers.h"

namespace halvern {

namespace {

class JpegSource : public PictureSource {
public:
    JpegSource(FileBytes bytes, int leastEdge) : decoder_(bytes)
    {
        if (!decoder_.header())
            throw Unreadable{decoder_.fault()};
        const JpegHeader& header = *decoder_.header();
        checkSize(header.size.width(), header.size.height());
        picture_.size = decoder_.sizeFor(leastEdge);
        picture_.fullSize = header.size;
        picture_.format = header.components == 4   ? PixelFormat::cmyk8
                          : header.components == 1 ? PixelFormat::gray8
                                                   : PixelFormat::rgb8;
        picture_.profile = header.profile;
        picture_.dotsPerInch = header.dotsPerInch;
        picture_.orientation = header.notes.orientation;
        picture_.colorTag = header.notes.colorTag;
    }

    bool readRow(uchar* row) override
    {
        if (!isStarted_ && !decoder_.start())
            throw Unreadable{decoder_.fault()};
        isStarted_ = true;
        return decoder_.readRow(row);
    }

    bool isDamaged() const override { return decoder_.isDamaged(); }

private:
    JpegDecoder decoder_;
    bool isStarted_ = false;
};

class JpegReader : public PhotoReader {
public:
    explicit JpegReader(FileBytes bytes) : bytes_(bytes) {}

    QString kind() const override { return QStringLiteral("JPEG"); }

    std::unique_ptr<PictureSource> open(const ReadRequest& request) override
    {
        return std::make_unique<JpegSource>(bytes_, request.leastEdge);
    }

private:
    FileBytes bytes_;
};

} // namespace

std::unique_ptr<PhotoReader> makeJpegReader(FileBytes bytes)
{
    return std::make_unique<JpegReader>(bytes);
}

} // namespace halvern
