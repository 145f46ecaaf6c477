#pragma once

#include "panels/features/features_panel.h"
#include "panels/features/features_tags.h"
#include "tests/support/fake_host.h"
#include "tests/support/observers.h"

#include <QComboBox>
#include <QHash>
#include <QLineEdit>

#include <gtest/gtest.h>

namespace halvern {

class Matrix;
class Stepper;

/// A PPD with the options of the Features panel as the printer's own has them: the names and widths of papers
/// are left to the catalogue, overspill and binding width to the host.
QByteArray featuresPpd();

QVariantMap sheetRecord(const QString& name, int dotsPerInch, uint tones = 0);
QVariantMap rollRecord(int width, int surface, int dotsPerInch, uint tones = 0);

/// Some records as a catalogue, under the keys that a printer would give them.
PaperCatalogue catalogueOf(const QList<QVariantMap>& records);

/// The panel with a printer of the test's making instead of one behind a server.
class FeaturesPanelWithPrinter : public RZFeaturesPDEHalvern {
public:
    std::optional<QString> ppdValueForAttribute(const QString& attribute) override;

    /// The printer's attributes, the same for all panels of a test.
    static QHash<QString, QString>& attributes();

    // What the rules work on, for the tests to look at and to set.
    QVariant choice(const char* key) const { return storedChoice(QString::fromLatin1(key)); }

    void store(const char* key, const char* value)
    {
        setChoice_forKey(QString::fromUtf8(value), QString::fromLatin1(key));
    }
};

/// A panel on a host, with or without its view, as the dialog has it.
class FeaturesPanelTest : public testing::Test {
protected:
    void SetUp() override;
    void TearDown() override;

    /// Makes the host and the panel; attributes set before are the printer's.
    void make(const QByteArray& ppd = featuresPpd());

    /// Loads the view and hands the panel a catalogue as the refresh does.
    void show(const PaperCatalogue& catalogue);
    void give(const PaperCatalogue& catalogue);

    QComboBox* menu(int tag) const;
    Matrix* surfaces() const;
    QLineEdit* field(int tag) const;
    Stepper* stepper(int tag) const;
    QWidget* control(int tag) const;

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
