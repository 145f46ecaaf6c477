// SPDX-License-Identifier: MIT
#pragma once

#include "panels/backprint/backprint_panel.h"
#include "tests/support/test.h"

namespace halvern {

/// The real panel with its real layout in a window, both lines switched on, worked with the mouse and the
/// keyboard.
class BackprintWindow : public testing::Test {
protected:
    void SetUp() override;
    void TearDown() override;

    /// Makes a panel on the host and puts its view into the window.
    void open();

    /// Takes the panel away, as the dialog does before it closes.
    void close();

    template <class W = QWidget> W* find(int tag)
    {
        return qobject_cast<W*>(panel->view_controlForTag(nullptr, tag));
    }

    QLineEdit* line(int number) { return find<QLineEdit>(number); }

    /// The choice, or the settings' value, as text; "(none)" if there is none.
    QString stored(const char* key);
    QString saved(const char* key);

    void type(int number, const QString& text);
    void paste(int number, const QString& text);

    void endEditing(int number) { QTest::keyClick(line(number), Qt::Key_Return); }

    void click(int tag);

    BeepCounter beeps;
    LogCapture log;
    std::shared_ptr<FakeHost> host;
    std::shared_ptr<RZBackprintPDEHalvern> panel;
    std::unique_ptr<QWidget> window;
};

/// The PPD options of the panel, all off by default.
QByteArray backprintOptions();

} // namespace halvern
