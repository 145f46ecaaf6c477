// SPDX-License-Identifier: MIT
#pragma once

#include "panel_base/base_panel.h"
#include "platform/plugin_api/host_callback.h"
#include "tests/support/test.h"

namespace halvern {

class DecimalSlider;

/// A panel with options A, B, C and so on at tags 1, 2, 3, and a toggle T at 0x200 + 1; its view is set by
/// the test.
class TestPanel : public KSTRVLBasePDEHalvern {
public:
    std::optional<QString> ppdOptionKeyForTag(int tag) override;

    std::optional<QString> nibName() override { return layout; }

    bool isControlSupportedForTag(int tag) override { return !unsupportedTags.contains(tag); }

    void updateUI() override;

    void enableCustom() override { ++customCalls; }

    QVariant ppdChoiceForTag(int tag) override;
    int tagForStringValue(const QVariant& value) override;

    using KSTRVLBasePDEHalvern::pdeBundle;
    using KSTRVLBasePDEHalvern::pdePluginDidUnload;
    using KSTRVLBasePDEHalvern::pdeUnloadSemaphore;
    using KSTRVLBasePDEHalvern::ppd;
    using KSTRVLBasePDEHalvern::storedChoice;

    QString stored(const char* key) const { return storedChoice(q(key)).toString(); }

    static constexpr int kOptions = 10;
    std::optional<QString> layout;
    QSet<int> unsupportedTags;
    int refreshes = 0;
    int customCalls = 0;
};

/// Adds a control to a view in the test's hand. The view owns it.
template <class W> W* addControl(QWidget* view, int tag)
{
    auto* made = new W(view);
    made->setProperty("tag", tag);
    return made;
}

DecimalSlider* addSlider(QWidget* view, int tag, double minimum, double maximum, double step = 1.0);

} // namespace halvern
