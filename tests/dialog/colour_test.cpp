// SPDX-License-Identifier: MIT
// Conversions against those of Little CMS's own tool, with the profiles of Debian's packages.
#include "dialog/page/colour_transform.h"
#include "dialog/page/screen_colours.h"
#include "dialog/photo/exif_notes.h"
#include "tests/support/test.h"

#include <QProcess>

#include <cmath>

namespace halvern {
namespace {

const QString kFolder = q("/usr/share/color/icc/");

QByteArray profileBytes(const char* name)
{
    QFile file(kFolder + q(name));
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << name << ": scripts/install-packages installs it";
    return file.readAll();
}

// Patches in steps of a quarter, channel by channel.
std::vector<uchar> patches(int channels)
{
    const int count = channels == 1 ? 5 : channels == 3 ? 125 : 625;
    std::vector<uchar> numbers;
    for (int i = 0; i < count; ++i) {
        for (int c = 0, rest = i; c < channels; ++c, rest /= 5)
            numbers.push_back(uchar(std::lround(rest % 5 * 63.75)));
    }
    return numbers;
}

// The tool counts inks in per cent.
double unitOf(int channels)
{
    return channels == 4 ? 100.0 / 255.0 : 1.0;
}

std::vector<double> byTool(const std::vector<uchar>& numbers, int from, int to, const char* source,
                           const char* target, int intent, bool compensates, const QStringList& more = {})
{
    QByteArray lines;
    for (size_t i = 0; i < numbers.size(); ++i) {
        lines += QByteArray::number(numbers[i] * unitOf(from), 'f', 6);
        lines += (i + 1) % size_t(from) == 0 ? '\n' : ' ';
    }
    QStringList arguments{
        q("-n"), q("-i"), kFolder + q(source), q("-o"), kFolder + q(target), q("-t%1").arg(intent)};
    if (compensates)
        arguments.append(q("-b"));
    arguments += more;
    QProcess tool;
    tool.start(q("transicc"), arguments);
    tool.write(lines);
    tool.closeWriteChannel();
    EXPECT_TRUE(tool.waitForFinished()) << "liblcms2-utils has transicc";
    std::vector<double> answers;
    for (const QByteArray& word : tool.readAllStandardOutput().simplified().split(' ')) {
        if (!word.isEmpty())
            answers.push_back(std::round(std::clamp(word.toDouble() / unitOf(to), 0.0, 255.0)));
    }
    return answers;
}

} // namespace

TEST(Colour, ConvertsAsLittleCmsDoes)
{
    const struct {
        const char* source;
        PixelFormat format;
        const char* target;
        int channels;
    } cases[] = {
        {"colord/AdobeRGB1998.icc", PixelFormat::rgb8, "colord/sRGB.icc", 3},
        {"colord/ProPhotoRGB.icc", PixelFormat::rgb8, "colord/SMPTE-C-RGB.icc", 3},
        {"colord/sRGB.icc", PixelFormat::rgb8, "ghostscript/default_cmyk.icc", 4},
        {"ghostscript/default_cmyk.icc", PixelFormat::cmyk8, "colord/sRGB.icc", 3},
        {"Gray.icc", PixelFormat::gray8, "colord/AdobeRGB1998.icc", 3},
        {"Gray.icc", PixelFormat::gray8, "ghostscript/default_gray.icc", 1},
    };

    for (const auto& c : cases) {
        for (int intent = 0; intent < 4; ++intent) {
            for (const bool compensates : {false, true}) {
                SCOPED_TRACE(testing::Message()
                             << c.source << " to " << c.target << ", " << intent << compensates);
                StoredPicture picture;
                picture.format = c.format;
                picture.profile = profileBytes(c.source);
                const ColourTransform colours(picture,
                                              {profileBytes(c.target), ColourIntent(intent), compensates});
                ASSERT_EQ(colours.channels(), c.channels);
                const std::vector<uchar> before = patches(channelsOf(c.format));
                const auto pixels = qsizetype(before.size()) / channelsOf(c.format);
                std::vector<uchar> after(size_t(pixels * c.channels));
                colours.convertOnAllCores(before.data(), after.data(), pixels);
                const std::vector<double> wanted =
                    byTool(before, channelsOf(c.format), c.channels, c.source, c.target, intent, compensates);
                ASSERT_EQ(wanted.size(), after.size());
                double worst = 0.0;
                for (size_t i = 0; i < after.size(); ++i)
                    worst = std::max(worst, std::abs(after[i] - wanted[i]));
                EXPECT_LE(worst, 1.0);
            }
        }
    }
}

TEST(Colour, AProofIsWhatLittleCmsShows)
{
    const QByteArray monitor = profileBytes("colord/WideGamutRGB.icc");
    const std::vector<uchar> before = patches(3);
    QImage picture(int(before.size() / 3), 1, QImage::Format_RGB32);
    for (int x = 0; x < picture.width(); ++x)
        picture.setPixel(x, 0,
                         qRgb(before[size_t(x) * 3], before[size_t(x) * 3 + 1], before[size_t(x) * 3 + 2]));
    for (const char* printer : {"ghostscript/default_cmyk.icc", "colord/AdobeRGB1998.icc"}) {
        for (const bool showsPaper : {false, true}) {
            ASSERT_TRUE(canProof(profileBytes(printer)));
            const ColourPlan plan{profileBytes(printer), ColourIntent::relative, true};
            const ScreenTransform screen({monitor, plan, showsPaper, false});
            const QImage shown = screen.converted(picture);
            const std::vector<double> wanted =
                byTool(before, 3, 3, "colord/sRGB.icc", "colord/WideGamutRGB.icc", 1, true,
                       {q("-p") + kFolder + q(printer), showsPaper ? q("-m3") : q("-m1")});
            ASSERT_EQ(wanted.size(), before.size());
            double worst = 0.0;
            for (int x = 0; x < picture.width(); ++x) {
                const QRgb pixel = shown.pixel(x, 0);
                int channel = 0;
                for (const int number : {qRed(pixel), qGreen(pixel), qBlue(pixel)})
                    worst = std::max(worst, std::abs(number - wanted[size_t(3 * x + channel++)]));
            }
            EXPECT_LE(worst, 2.0) << printer << showsPaper;
            const bool hasTint = screen.paper() != QColor(Qt::white);
            EXPECT_EQ(hasTint, showsPaper && q(printer).contains(q("cmyk")))
                << screen.paper().name().toStdString();
            const QImage marked = ScreenTransform({monitor, plan, showsPaper, true}).converted(picture);
            EXPECT_EQ(marked.pixel(62, 0), shown.pixel(62, 0)) << "a middle gray can be printed";
            const bool isMarked = marked.pixel(20, 0) == qRgb(255, 0, 204);
            EXPECT_EQ(isMarked, q(printer).contains(q("cmyk"))) << "the purest green cannot, by inks";
        }
    }
    EXPECT_FALSE(canProof("no profile"));
    EXPECT_FALSE(isScreenProfile(profileBytes("ghostscript/default_cmyk.icc")));
    EXPECT_EQ(ScreenTransform({}).converted(picture), picture);
}

TEST(Colour, ACamerasNoteCountsWhereThereIsNoProfile)
{
    const QByteArray exif = QByteArray::fromHex("49492a0008000000" // the header
                                                "0200"
                                                "120103000100000006000000" // a quarter turn
                                                "698704000100000026000000" // more notes at 0x26
                                                "00000000"
                                                "0200"
                                                "01a0030001000000ffff0000" // uncalibrated
                                                "05a004000100000044000000" // and why at 0x44
                                                "00000000"
                                                "0100"
                                                "010002000400000052303300" // R03
                                                "00000000");
    const ExifNotes notes = readExifNotes(exif);
    EXPECT_EQ(notes.orientation.quarterTurns, 1);
    ASSERT_EQ(notes.colorTag, ColorTag::adobeRgb);
    for (qsizetype length = 0; length < exif.size(); ++length)
        readExifNotes(exif.first(length));
    StoredPicture picture;
    EXPECT_TRUE(ColourTransform(picture, {}).changesNothing());
    picture.colorTag = notes.colorTag;
    const std::array<uchar, 3> before{200, 100, 50};
    std::array<uchar, 3> after{};
    ColourTransform(picture, {}).convert(before.data(), after.data(), 1);
    EXPECT_NEAR(after[0], 227, 1);
    picture.profile = profileBytes("colord/sRGB.icc");
    EXPECT_TRUE(ColourTransform(picture, {}).changesNothing()) << "what the file itself says wins";
}

} // namespace halvern
