#include "panels/simple/cover_page_panel.h"
#include "tests/support/fake_host.h"
#include "tests/support/test.h"

namespace halvern {
namespace {

const QString kSheets = q("job-sheets");

// Counts writes, and fails or forgets on demand.
class WatchedSettings : public PrintSettings {
public:
    int getValue(const QString& key, QVariant& value) const override
    {
        if (unreadable) {
            value = QVariant();
            return kPrintingKeyNotFound;
        }
        return PrintSettings::getValue(key, value);
    }

    int setValue(const QString& key, const QVariant& value, bool locked) override
    {
        ++writes;
        unreadable = forgetsOnWrite;
        return refuses ? kPrintingKeyLocked : PrintSettings::setValue(key, value, locked);
    }

    int writes = 0;
    bool refuses = false;
    bool forgetsOnWrite = false;
    bool unreadable = false;
};

class CoverPagePanel : public testing::Test {
protected:
    CoverPagePanel()
    {
        useBuiltBundle();
        host->settings = settings;
    }

    void ask(const QString& sheets) { settings->PrintSettings::setValue(kSheets, sheets, false); }

    std::shared_ptr<WatchedSettings> settings = std::make_shared<WatchedSettings>();
    std::shared_ptr<FakeHost> host = std::make_shared<FakeHost>();
    LogCapture log;
};

TEST_F(CoverPagePanel, AsksForNoneWhenCreatedRestoredAndSaved)
{
    ask(q("standard"));
    const auto panel = makePanel<RZUnavailablePDEHalvern>(host);
    ASSERT_NE(panel, nullptr);
    EXPECT_EQ(panel->panelKind(), q("com.apple.print.pde.CoverPageKind")) << "the system's own";
    const auto nowNone = [this] { return settings->values().value(kSheets) == q("None"); };
    EXPECT_TRUE(nowNone());
    ask(q("classified"));
    EXPECT_TRUE(panel->restoreValuesAndReturnError(nullptr));
    EXPECT_TRUE(nowNone());
    ask(q("secret"));
    EXPECT_TRUE(panel->saveValuesAndReturnError(nullptr));
    EXPECT_TRUE(nowNone());
    EXPECT_EQ(settings->writes, 3);
    EXPECT_EQ(log.lines().join(u'|'),
              q("Print settings:job-sheets = standard|After change ... job-sheets = None|"
                "Print settings:job-sheets = classified|After change ... job-sheets = None|"
                "Print settings:job-sheets = secret|After change ... job-sheets = None"));
    EXPECT_EQ(settings->values().keys(), QStringList{kSheets}) << "nothing else is saved";
}

TEST_F(CoverPagePanel, LeavesSettingsAloneThatAskForNoCoverPage)
{
    const auto panel = makePanel<RZUnavailablePDEHalvern>(host);
    ask(q("None"));
    panel->restoreValuesAndReturnError(nullptr);
    panel->saveValuesAndReturnError(nullptr);
    host->settings.reset();
    EXPECT_TRUE(panel->saveValuesAndReturnError(nullptr));
    EXPECT_EQ(settings->writes, 0);
    EXPECT_EQ(log.lines(), QStringList());
}

TEST_F(CoverPagePanel, SaysWhatWentWrong)
{
    ask(q("standard"));
    settings->refuses = true;
    const auto panel = makePanel<RZUnavailablePDEHalvern>(host);
    EXPECT_EQ(log.count(q("error setting PMPrintSettings value for job-sheets")), 1);
    EXPECT_EQ(log.count(q("After change ... job-sheets = standard")), 1);
    settings->forgetsOnWrite = true;
    EXPECT_TRUE(panel->saveValuesAndReturnError(nullptr));
    EXPECT_EQ(log.count(q("error getting PMPrintSettings value for job-sheets")), 1);
    EXPECT_EQ(log.count(q("After change ... job-sheets = (null)")), 1);
}

TEST_F(CoverPagePanel, DoesNothingForAHostThatCannotCheckConstraints)
{
    class Legacy : public RZUnavailablePDEHalvern {
        ppd_file_t* getPPDOnTiger() override { return pdePluginCallbackObject->ppdFile(); }
    };

    ask(q("standard"));
    host->responds = false;
    const auto panel = makePanel<Legacy>(host);
    ASSERT_NE(panel, nullptr);
    panel->saveValuesAndReturnError(nullptr);
    EXPECT_EQ(settings->writes, 0);
}

} // namespace
} // namespace halvern
