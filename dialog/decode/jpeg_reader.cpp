// SPDX-License-Identifier: MIT
#include "dialog/decode/jpeg_decoder.h"
#include "dialog/decode/readers.h"

namespace halvern {

namespace {

class JpegSource : public PictureSource {
public:
    JpegSource(FileBytes bytes, const CameraNotes& notes, int leastEdge) : decoder_(bytes)
    {
        if (!decoder_.header())
            throw Unreadable{PhotoFault::damaged};
        const JpegHeader& header = *decoder_.header();
        checkSize(header.size.width(), header.size.height());
        picture_.size = decoder_.sizeFor(leastEdge);
        picture_.fullSize = header.size;
        picture_.format = header.components == 4   ? PixelFormat::cmyk8
                          : header.components == 1 ? PixelFormat::gray8
                                                   : PixelFormat::rgb8;
        picture_.profile = header.profile;
        picture_.dotsPerInch = header.dotsPerInch;
        picture_.orientation = notes.orientation;
        picture_.colorTag = notes.colorTag;
        suitsPdf_ = header.suitsPdf;
    }

    bool readRow(uchar* row) override
    {
        if (!isStarted_ && !decoder_.start())
            return false;
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
    JpegReader(FileBytes bytes, const CameraNotes& notes) : bytes_(bytes), notes_(notes) {}

    QString kind() const override { return QStringLiteral("JPEG"); }

    std::unique_ptr<PictureSource> open(const ReadRequest& request) override
    {
        return std::make_unique<JpegSource>(bytes_, notes_, request.leastEdge);
    }

private:
    FileBytes bytes_;
    CameraNotes notes_;
};

} // namespace

std::unique_ptr<PhotoReader> makeJpegReader(FileBytes bytes, const CameraNotes& notes)
{
    return std::make_unique<JpegReader>(bytes, notes);
}

} // namespace halvern
