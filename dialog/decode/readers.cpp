// SPDX-License-Identifier: MIT
#include "dialog/decode/readers.h"

#include <algorithm>
#include <string_view>

namespace halvern {

namespace {

using namespace std::string_view_literals;

constexpr size_t kPdfSignatureRange = 1024;

bool hasAt(FileBytes bytes, size_t offset, std::string_view wanted)
{
    return bytes.size() >= offset + wanted.size() &&
           std::equal(wanted.begin(), wanted.end(), bytes.begin() + std::ptrdiff_t(offset),
                      [](char a, uchar b) { return uchar(a) == b; });
}

bool hasOneOf(FileBytes bytes, size_t offset, std::initializer_list<std::string_view> wanted)
{
    return std::any_of(wanted.begin(), wanted.end(),
                       [&](std::string_view text) { return hasAt(bytes, offset, text); });
}

bool isTiff(FileBytes bytes)
{
    return hasOneOf(bytes, 0, {"II*\0"sv, "MM\0*"sv, "II+\0"sv, "MM\0+"sv});
}

// Many cameras' files are TIFF files whose only whole picture is one that needs developing.
bool isCameraRaw(FileBytes bytes, const QString& suffix)
{
    static const QStringList kSuffixes{
        QStringLiteral("arw"), QStringLiteral("dng"), QStringLiteral("nef"), QStringLiteral("nrw"),
        QStringLiteral("pef"), QStringLiteral("srw"), QStringLiteral("3fr"), QStringLiteral("erf"),
        QStringLiteral("kdc"), QStringLiteral("dcr"), QStringLiteral("iiq"), QStringLiteral("mos"),
        QStringLiteral("sr2"), QStringLiteral("rwl"), QStringLiteral("cr2"), QStringLiteral("fff")};
    return hasOneOf(bytes, 0,
                    {"FUJIFILMCCD-RAW"sv, "IIRO"sv, "IIRS"sv, "MMOR"sv, "IIU\0"sv, "FOVb"sv, "\0MRM"sv}) ||
           hasAt(bytes, 8, "CR\x02"sv) || hasAt(bytes, 6, "HEAPCCDR"sv) || hasAt(bytes, 4, "ftypcrx "sv) ||
           (isTiff(bytes) && kSuffixes.contains(suffix));
}

bool isPdf(FileBytes bytes)
{
    const FileBytes start = bytes.first(std::min(bytes.size(), kPdfSignatureRange));
    const std::string_view text(reinterpret_cast<const char*>(start.data()), start.size());
    return text.find("%PDF-") != std::string_view::npos;
}

} // namespace

bool isHeif(FileBytes bytes)
{
    return hasAt(bytes, 4, "ftyp"sv) && hasOneOf(bytes, 8,
                                                 {"heic"sv, "heix"sv, "heim"sv, "heis"sv, "hevc"sv, "mif1"sv,
                                                  "msf1"sv, "avif"sv, "avis"sv, "mif2"sv, "miaf"sv});
}

std::unique_ptr<PhotoReader> readerFor(FileBytes bytes, const QString& suffix, const ExifNotes& notes)
{
    if (isCameraRaw(bytes, suffix))
        throw Unreadable{PhotoFault::cameraRaw};
    if (hasAt(bytes, 0, "\xFF\xD8\xFF"sv))
        return makeJpegReader(bytes);
    if (hasAt(bytes, 0, "\x89PNG\r\n\x1A\n"sv))
        return makePngReader(bytes, notes);
    if (isTiff(bytes))
        return makeTiffReader(bytes, notes);
    if (hasAt(bytes, 0, "RIFF"sv) && hasAt(bytes, 8, "WEBP"sv))
        return makeWebpReader(bytes, notes);
    if (isHeif(bytes))
        return makeHeifReader(bytes, notes);
    if (isPdf(bytes))
        return makePdfReader(bytes);
    return makeOtherReader(bytes, suffix);
}

} // namespace halvern
