// SPDX-License-Identifier: MIT
// What is chosen before the dialog opens, and offered by the printer, is what the untouched dialog prints on.
#include "dialog/session/plugin_loader.h"
#include "tests/support/real_dialog.h"

#include "platform/toolkit/control.h"

namespace halvern {
namespace {

constexpr int kWidthTag = 1;
constexpr int kFeedTag = 6;
constexpr int kNameTag = 7;

struct Case {
    OptionValues chosen;
    OptionValues printed;
};

const QList<Case>& cases()
{
    const OptionValue sheet{q("PaperFeed"), q("Sheet")};
    const OptionValue roll{q("PaperFeed"), q("Roll")};
    const OptionValue satin{q("PaperName"), q("Photo Satin A4")};
    const OptionValue wide{q("PaperWidth"), q("2032")};
    const OptionValue matte{q("PaperSurface"), q("3")};
    const OptionValue turned{q("TwoSided"), q("LongEdge")};
    const OptionValue gone{q("PaperName"), q("Gone")};
    static const QList<Case> all{
        {{sheet, satin, turned}, {sheet, satin, turned}}, // the printer has not reported yet
        {{sheet, satin, turned}, {sheet, satin, turned}},
        {{roll, wide, matte}, {roll, wide, matte}},
        {{sheet, gone}, {sheet, {q("PaperName"), q("Büttenpapier A4")}}},
    };
    return all;
}

} // namespace

TEST(ChosenPaper, IsPrintedOnIfThePrinterOffersIt)
{
    useBuiltBundle();
    PrivateCups server;
    ASSERT_TRUE(server.addQueue(q("Tessarin"))) << qPrintable(server.error());
    QTemporaryDir folder;
    const QString photo = makeTestPhoto(folder.filePath(q("photo.jpg")));
    PluginLoader panels({QFileInfo(q(HALVERN_TEST_BUNDLE)).path()});
    for (const auto& c : cases()) {
        SessionRequest request;
        request.printer = q("Tessarin");
        request.options = c.chosen;
        request.files = {photo};
        RealDialog user(request, panels);
        ASSERT_TRUE(user.isReady() && user.showPage("com.halvern.print.pde.features"));
        auto* names = qobject_cast<QComboBox*>(user.control(kNameTag));
        auto* widths = qobject_cast<QComboBox*>(user.control(kWidthTag));
        const auto* feeds = qobject_cast<QComboBox*>(user.control(kFeedTag));
        ASSERT_TRUE(waitUntil([&] { return names->count() > 0 && widths->count() > 0; }));
        drainMainQueue();
        for (const OptionValue& option : c.printed) {
            EXPECT_EQ(user.session.model()->value(option.key), option.value);
            EXPECT_TRUE(user.session.collectOptions().contains(option)) << qPrintable(option.key);
        }
        EXPECT_TRUE(control::isItemEnabled(feeds, 0) && control::isItemEnabled(feeds, 1));
    }
    // What the panels still read of the printer keeps them.
    EXPECT_TRUE(waitUntil([] { return QApplication::topLevelWidgets().isEmpty(); }));
}

} // namespace halvern
