// SPDX-License-Identifier: MIT
#include "printer/page_stream.h"
#include "tests/support/test.h"

#include <cstdio>

namespace halvern {
namespace {

struct FileCloser {
    void operator()(std::FILE* file) const { std::fclose(file); }
};

using File = std::unique_ptr<std::FILE, FileCloser>;

File fileWith(const std::string& bytes)
{
    File file(std::tmpfile());
    std::fwrite(bytes.data(), 1, bytes.size(), file.get());
    std::rewind(file.get());
    return file;
}

// Reads to the end of the stream or to its first fault, and answers the fault.
std::string faultOf(const std::string& bytes)
{
    const File file = fileWith(bytes);
    PageStreamReader in(fileno(file.get()));
    while (const auto item = in.next()) {
        if (std::holds_alternative<StreamEnd>(*item))
            return {};
        if (const auto* page = std::get_if<PageHeader>(&*item)) {
            std::vector<uint8_t> row(size_t{page->width} * 3);
            for (uint32_t y = 0; y < page->height; ++y) {
                if (!in.row(row))
                    return in.error();
            }
        }
    }
    return in.error();
}

std::string streamWithAPage()
{
    std::string bytes = "HALVERN-PAGES 1\nOPTION 3\na=bPAGE 27\n1 front picture 2 2 300 300";
    return bytes + std::string(12, 'x') + "END 0\n";
}

TEST(PageStreamTest, DocumentsOfAJobFollowOneAnother)
{
    for (const size_t broken : {size_t{0}, size_t{3}}) {
        const std::string both = streamWithAPage() + streamWithAPage();
        const File file = fileWith(both.substr(0, both.size() - broken));
        PageStreamReader in(fileno(file.get()));
        int pages = 0;
        std::vector<uint8_t> row(6);
        do {
            for (auto item = in.next(); item && !std::holds_alternative<StreamEnd>(*item); item = in.next()) {
                if (std::holds_alternative<PageHeader>(*item))
                    pages += in.row(row) && in.row(row) ? 1 : 0;
            }
        } while (in.error().empty() && in.nextStream());
        EXPECT_EQ(pages, 2);
        EXPECT_EQ(in.error().empty(), broken == 0) << in.error();
    }
}

TEST(PageStreamTest, AStreamThatIsCutOffAnywhereIsAFault)
{
    const std::string whole = streamWithAPage();
    ASSERT_EQ(faultOf(whole), "");
    for (size_t length = 0; length < whole.size(); ++length)
        EXPECT_NE(faultOf(whole.substr(0, length)), "") << length;
}

} // namespace
} // namespace halvern
