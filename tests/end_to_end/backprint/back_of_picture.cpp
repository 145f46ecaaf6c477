// SPDX-License-Identifier: MIT
#include "tests/end_to_end/backprint/back_of_picture.h"

namespace halvern {
namespace {

// Not the resolution that the printer takes by itself: an option that gets lost on the way shows.
constexpr double kDpi = 360.0;
constexpr QSize kBackPage(1440, 2160);

// Line `row` lies in a band of 6 mm, the first one 8 mm below the sheet's edge.
int inkInRow(const QImage& page, int row)
{
    const auto pixels = [](double millimetres) { return int(millimetres / 25.4 * kDpi); };
    int ink = 0;
    for (int y = pixels(8 + 6 * row); y < pixels(8 + 6 * (row + 1)); ++y) {
        for (int x = 0; x < page.width(); ++x)
            ink += qGray(page.pixel(x, y)) < 160 ? 1 : 0;
    }
    return ink;
}

// The Tessarin's PPD without the options of the Backprint page.
bool writePlainPpd(const QString& path)
{
    QFile whole(q(HALVERN_TESSARIN_PPD));
    QFile plain(path);
    if (!whole.open(QIODevice::ReadOnly) || !plain.open(QIODevice::WriteOnly))
        return false;
    bool inGroup = false;
    while (!whole.atEnd()) {
        const QByteArray text = whole.readLine();
        inGroup = inGroup || text.startsWith("*OpenGroup: HalvernBackprint");
        if (!inGroup && !text.contains("EnableCVP"))
            plain.write(text);
        inGroup = inGroup && !text.startsWith("*CloseGroup");
    }
    return true;
}

} // namespace

void BackOfPicture::SetUpTestSuite()
{
    // The user's own settings stay as they are, and have no say here.
    qputenv("HOME", folder.path().toUtf8());
    qputenv("XDG_CONFIG_HOME", folder.path().toUtf8());
    ServerTest::SetUpTestSuite();
    ASSERT_TRUE(server->addQueue(q("Tessarin"), {}, {}, {q("--default")})) << qPrintable(server->error());
    const QString plain = folder.filePath(q("plain.ppd"));
    ASSERT_TRUE(writePlainPpd(plain) && server->addQueue(q("Plain"), plain)) << qPrintable(server->error());
    makeTestPhoto(photo());
}

std::optional<QString> BackOfPicture::received(int job, const char* key)
{
    const auto options = server->receivedOptions(job);
    const auto found = options ? options->find(q(key)) : decltype(options->end())();
    return options && found != options->end() ? std::optional(found->second) : std::nullopt;
}

QStringList BackOfPicture::receivedLines(int job)
{
    QStringList lines;
    for (const char* const key : {"CVP1", "CVP2"}) {
        const bool isOn = received(job, QByteArray("Enable") + key) == q("True");
        QString line = received(job, key).value_or(QString());
        line.replace(QChar(0x2264), u',').replace(QChar(0x00E6), u'\'');
        if (isOn && !line.isEmpty())
            lines.append(line);
    }
    return lines;
}

void BackOfPicture::expectBack(int job, const QStringList& lines)
{
    EXPECT_EQ(receivedLines(job), lines);
    EXPECT_TRUE(QFileInfo::exists(server->jobFile(job, q("page-1.png"))));
    const QString file = server->jobFile(job, q("page-1-back.png"));
    ASSERT_EQ(QFileInfo::exists(file), !lines.isEmpty());
    if (lines.isEmpty())
        return;
    const QImage back(file);
    ASSERT_EQ(back.size(), kBackPage);
    for (int row = 0; row < 3; ++row)
        EXPECT_EQ(inkInRow(back, row) > 100, row < lines.size()) << "row " << row;
}

QString longestLine()
{
    QString line;
    while (line.size() < 119)
        line += line.size() % 2 ? u'\'' : u',';
    return line + u'\\';
}

QString longestLineStored()
{
    QString line = longestLine() + u' ';
    return line.replace(u',', QChar(0x2264)).replace(u'\'', QChar(0x00E6));
}

} // namespace halvern
