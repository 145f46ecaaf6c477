// SPDX-License-Identifier: MIT
#include "dialog/session/plugin_loader.h"
#include "tests/support/test.h"

namespace halvern {

TEST(ExamplePanel, BuiltAgainstTheInstalledHeadersItOffersItsChoiceToTheHost)
{
    PluginLoader loader({q(HALVERN_EXAMPLE_PLACE)});
    const auto host = std::make_shared<FakeHost>();
    QString problem;
    const PanelList panels = loader.panels(q("example.pde"), host, &problem);
    ASSERT_EQ(panels.size(), 1u) << qPrintable(problem);
    auto* box = qobject_cast<QAbstractButton*>(panels[0]->panelView());
    ASSERT_NE(box, nullptr);
    box->click();
    EXPECT_EQ(host->asked, (QList<QPair<QString, QVariant>>{
                               {q("Collate"), q("True")},
                           }));
}

} // namespace halvern
