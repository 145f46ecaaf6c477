// SPDX-License-Identifier: MIT
#include "tests/panel_base/test_panel.h"

namespace halvern {

class PpdAccessTest : public testing::Test {
protected:
    PpdAccessTest() { useBuiltBundle(); }

    std::optional<QByteArray> decoded(const QByteArray& attributes)
    {
        host = std::make_shared<FakeHost>(ppdHeader() + attributes);
        panel = makePanel<TestPanel>(host);
        return panel->ppdSavedDataForAttribute_forPPD(q("X"), host->ppdFile());
    }

    std::shared_ptr<FakeHost> host;
    std::shared_ptr<TestPanel> panel;
};

TEST_F(PpdAccessTest, JoinsThePiecesOfAnAttributeRun)
{
    EXPECT_EQ(decoded("*X00000: \"QUJD\"\n*X00001: \"REVG\"\n"), QByteArray("ABCDEF"));
    EXPECT_EQ(decoded("*X00000: \"QUJD\"\n*X00001: \"\"\n*X00002: \"REVG\"\n"), QByteArray("ABC"));
    EXPECT_EQ(decoded("*X00001: \"REVG\"\n"), std::nullopt);
    EXPECT_EQ(decoded("*X00000: \"!!!!\"\n"), std::nullopt);
}

TEST_F(PpdAccessTest, CountsThePiecesInHexadecimal)
{
    QByteArray run;
    for (int i = 0; i < 11; ++i)
        run += QByteArray("*X") + QByteArray::number(i, 16).rightJustified(5, '0') + ": \"QUJD\"\n";
    EXPECT_EQ(decoded(run + "*X00010: \"REVG\"\n"), QByteArray("ABC").repeated(11));
}

TEST_F(PpdAccessTest, FindsDefaultsUnderThePpdsOptionOrUnderTheKeywordWithDefaultAtItsEnd)
{
    decoded(ppdOption("A", {"first", "second"}) + "*BDefault: \"2.50\"\n*DefaultC: wrong\n");
    EXPECT_EQ(panel->defaultValueForOptionKey(q("A")), q("first"));
    EXPECT_EQ(panel->defaultValueForOptionKey(q("B")), q("2.50"));
    EXPECT_EQ(panel->defaultValueForOptionKey(q("C")), std::nullopt);
    EXPECT_EQ(panel->defaultValueForOptionKey(std::nullopt), std::nullopt);
    ppd::mark(host->ppdFile(), q("A"), q("second"));
    EXPECT_EQ(panel->cupsOptionValueForKey(q("A")), q("second"));
    EXPECT_EQ(panel->cupsValueForAttribute_forPPD(q("bdefault"), host->ppdFile()), q("2.50"));
    EXPECT_EQ(panel->cupsValueForAttribute_forPPD(q("BDefault"), nullptr), std::nullopt);
}

TEST_F(PpdAccessTest, KeepsTheDeviceUriOnceItIsKnown)
{
    decoded({});
    const auto printer = std::exchange(host->printer, nullptr);
    EXPECT_EQ(panel->printerDeviceURI(), q("null://"));
    EXPECT_EQ(panel->destinationName(), std::nullopt);
    host->printer = printer;
    EXPECT_EQ(panel->printerDeviceURI(), q("halvern://virtual/test"));
    host->printer = std::make_shared<Printer>(q("Other"), q("ipp://elsewhere"));
    EXPECT_EQ(panel->printerDeviceURI(), q("halvern://virtual/test"));
    EXPECT_EQ(panel->destinationName(), q("Other"));
}

} // namespace halvern
