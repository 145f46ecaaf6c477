// SPDX-License-Identifier: MIT
#include "dialog/decode/image_source.h"
#include "dialog/decode/packed_data.h"
#include "dialog/decode/readers.h"
#include "platform/foundation/units.h"

#include <poppler-qt6.h>

#include <algorithm>
#include <cmath>
#include <numeric>
#include <optional>

namespace halvern {

namespace {

constexpr double kMostPreviewResolution = 300.0;
constexpr qsizetype kEndRange = 1024;
constexpr double kMostDrawn = 200e6; // pixels of a page, which stand in memory as a whole

class PdfReader : public PhotoReader {
public:
    explicit PdfReader(FileBytes bytes)
        : bytes_(
              QByteArray::fromRawData(reinterpret_cast<const char*>(bytes.data()), qsizetype(bytes.size())))
    {
        Poppler::setDebugErrorFunction([](const QString&, const QVariant&) {}, {});
        document_ = Poppler::Document::loadFromData(bytes_);
        if (!document_)
            throw Unreadable{PhotoFault::damaged};
        if (document_->isLocked())
            throw Unreadable{PhotoFault::locked};
        if (document_->numPages() < 1)
            throw Unreadable{PhotoFault::damaged};
        document_->setRenderHint(Poppler::Document::Antialiasing);
        document_->setRenderHint(Poppler::Document::TextAntialiasing);
    }

    QString kind() const override { return QStringLiteral("PDF"); }

    QList<qint32> pages() const override
    {
        QList<qint32> pages(document_->numPages());
        std::iota(pages.begin(), pages.end(), 0);
        return pages;
    }

    bool isPdf() const override { return true; }

    // What is missing at the end is invisible in the pages that are left.
    bool isCutOff() const override
    {
        return !bytes_.last(std::min(bytes_.size(), kEndRange)).contains("%%EOF");
    }

    std::unique_ptr<PictureSource> open(const ReadRequest& request) override
    {
        const std::unique_ptr<Poppler::Page> page = document_->page(request.page);
        if (!page)
            throw Unreadable{PhotoFault::damaged};
        const QSizeF size = page->pageSizeF();
        const double longer = std::max(size.width(), size.height());
        if (!(size.width() > 0.0 && size.height() > 0.0 && longer < 1e6))
            throw Unreadable{PhotoFault::damaged};
        const double fitting = request.leastEdge * kPointsPerInch / longer;
        const double wanted =
            request.resolution > 0 ? request.resolution : std::clamp(fitting, 1.0, kMostPreviewResolution);
        // A sheet that hangs on a wall is not looked at from as near as a photo in the hand.
        const double most = kPointsPerInch * std::sqrt(kMostDrawn / (size.width() * size.height()));
        const double resolution = std::min(wanted, most);
        const QImage image = page->renderToImage(resolution, resolution);
        if (image.isNull())
            throw Unreadable{PhotoFault::tooLarge};
        return std::make_unique<ImageSource>(image, isCutOff() || isDamaged(), size);
    }

private:
    // Which page a stream is for is not looked up.
    bool isDamaged()
    {
        if (!isDamaged_)
            isDamaged_ =
                hasDamagedStream({reinterpret_cast<const uchar*>(bytes_.constData()), size_t(bytes_.size())});
        return *isDamaged_;
    }

    QByteArray bytes_;
    std::unique_ptr<Poppler::Document> document_;
    std::optional<bool> isDamaged_;
};

} // namespace

std::unique_ptr<PhotoReader> makePdfReader(FileBytes bytes)
{
    return std::make_unique<PdfReader>(bytes);
}

} // namespace halvern
