// SPDX-License-Identifier: MIT
#pragma once

#include "panels/features/features_panel.h"
#include "panels/features/features_tags.h"
#include "platform/toolkit/matrix.h"
#include "platform/toolkit/stepper.h"
#include "tests/support/test.h"

#include <condition_variable>
#include <mutex>

namespace halvern {

/// A PPD with the options of the Features panel as the printer's own has them: the names and widths of papers
/// are left to the catalogue, overspill and binding width to the host.
QByteArray featuresPpd();

QVariantMap sheetRecord(const QString& name, int dotsPerInch, uint tones = 0);
QVariantMap rollRecord(int width, int surface, int dotsPerInch, uint tones = 0);

/// Some records as a catalogue, under the keys that a printer would give them.
PaperCatalogue catalogueOf(const QList<QVariantMap>& records);

/// A printer of the test's making: what it writes into its PPD, and what it is sent. One at a time, shared by
/// all panels; any thread.
class TestPrinter {
    template <class Work> static auto locked(Work work)
    {
        const std::scoped_lock lock(mutex_);
        return work();
    }

public:
    static void reset();

    /// Sets an attribute; null takes it away.
    static void say(const char* attribute, const char* value);
    static std::optional<QString> attribute(const QString& keyword);

    /// The catalogue's bytes in the PPD.
    static void load(const QByteArray& archive)
    {
        locked([&] { archive_ = archive; });
    }

    static QByteArray loaded()
    {
        return locked([] { return archive_; });
    }

    /// The command jobs' commands, joined by commas.
    static void take(const QStringList& commands)
    {
        locked([&] { commands_.append(commands.join(u',')); });
    }

    static QStringList taken()
    {
        return locked([] { return commands_; });
    }

    /// Holds up the reading of attributes, but for the main thread's, until it is let go on.
    static void hold()
    {
        locked([] { isHolding_ = true; });
    }

    static void goOn();

    static bool isSomebodyHeld()
    {
        return locked([] { return held_ > 0; });
    }

private:
    static inline std::mutex mutex_;
    static inline std::condition_variable changed_;
    static inline QHash<QString, QString> attributes_;
    static inline QByteArray archive_;
    static inline QStringList commands_;
    static inline bool isHolding_ = false;
    static inline int held_ = 0;
};

/// The panel with that printer instead of one behind a server.
class FeaturesPanelWithPrinter : public RZFeaturesPDEHalvern {
public:
    std::optional<QString> ppdValueForAttribute(const QString& attribute) override
    {
        return TestPrinter::attribute(attribute);
    }

    std::optional<QByteArray> ppdSavedDataForAttribute(const QString&) override
    {
        return TestPrinter::loaded();
    }

    void sendPrinterCommands(const QStringList& commands) override { TestPrinter::take(commands); }

    // What the rules work on, for the tests to look at and to set.
    QVariant choice(const char* key) const { return storedChoice(q(key)); }

    bool isUnloading() const { return pdePluginDidUnload; }

    void store(const char* key, const char* value) { setChoice_forKey(q(value), q(key)); }
};

/// A panel on a host, with or without its view, as the dialog has it.
class FeaturesPanelTest : public testing::Test {
protected:
    void SetUp() override;
    void TearDown() override;

    /// Makes the host and the panel.
    void make(const QByteArray& ppd = featuresPpd());

    /// Loads the view and hands the panel a catalogue as the refresh does.
    void show(const PaperCatalogue& catalogue);
    void give(const PaperCatalogue& catalogue);

    QWidget* control(int tag) const { return panel->view_controlForTag(nullptr, tag); }

    QComboBox* menu(int tag) const { return qobject_cast<QComboBox*>(control(tag)); }

    QLineEdit* field(int tag) const { return qobject_cast<QLineEdit*>(control(tag)); }

    Matrix* surfaces() const { return qobject_cast<Matrix*>(control(features::kSurfaceTag)); }

    Stepper* stepper(int tag) const { return qobject_cast<Stepper*>(control(tag)); }

    /// What the user does: opens the menu and takes the item with the represented object.
    void choose(int tag, const char* value);

    QStringList titles(int tag) const;
    QStringList enabledTitles(int tag) const;
    QStringList enabledSurfaces() const;

    QString choice(const char* key) const { return panel->choice(key).toString(); }

    /// The values that the host was asked for this key, in order.
    QStringList asked(const char* key) const;

    std::shared_ptr<FakeHost> host;
    std::shared_ptr<FeaturesPanelWithPrinter> panel;
};

} // namespace halvern
