// SPDX-License-Identifier: MIT
#include "tests/panels/features/features_fixture.h"

#include "platform/toolkit/control.h"

#include <QThread>

namespace halvern {

QByteArray featuresPpd()
{
    return ppdHeader() + ppdOption("PaperFeed", {"Sheet/Cut Sheet", "Roll"}) +
           ppdOption("PaperSurface", {"1/1 - Gloss", "2/2 - Satin", "3/3 - Matte", "4/4 - Thin Silk"}) +
           ppdOption("Resolution", {"300dpi/300 dpi", "360dpi/360 dpi", "610dpi/610 dpi", "720dpi/720 dpi"}) +
           ppdOption("PaperTone",
                     {"Standard", "Vivid", "Soft", "Warm", "Cool", "Sepia", "BlackWhite/Black and White",
                      "DeepBlack/Deep Black", "HighKey/High Key", "LowKey/Low Key"}) +
           ppdOption("TwoSided", {"None/Off", "LongEdge/Long Edge", "ShortEdge/Short Edge"}) +
           ppdOption("BindingMargin", {"None", "Top", "Bottom", "Left", "Right"});
}

QVariantMap sheetRecord(const QString& name, int dotsPerInch, uint tones)
{
    return {{q("paperName"), name},
            {q("paperResolution"), qint64(dotsPerInch) * 10},
            {q("paperTone"), quint64(tones)}};
}

QVariantMap rollRecord(int width, int surface, int dotsPerInch, uint tones)
{
    return {{q("paperWidth"), qint64(width)},
            {q("paperSurface"), qint64(surface)},
            {q("paperResolution"), qint64(dotsPerInch) * 10},
            {q("paperTone"), quint64(tones)}};
}

PaperCatalogue catalogueOf(const QList<QVariantMap>& records)
{
    PaperCatalogue catalogue;
    for (const QVariantMap& record : records) {
        const int dotsPerInch = record.value(q("paperResolution")).toInt() / 10;
        const QString name = record.value(q("paperName")).toString();
        catalogue.insert(name.isEmpty()
                             ? rollPaperKey(record.value(q("paperWidth")).toString(),
                                            record.value(q("paperSurface")).toString(), dotsPerInch)
                             : sheetPaperKey(name, dotsPerInch),
                         record);
    }
    return catalogue;
}

void TestPrinter::reset()
{
    goOn();
    locked([] {
        attributes_ = {{q("VLXDuplex"), q("True")}, {q("VLXExtraFeatures"), q("true")}};
        archive_.clear();
        commands_.clear();
    });
}

void TestPrinter::say(const char* attribute, const char* value)
{
    const std::scoped_lock lock(mutex_);
    if (value)
        attributes_.insert(QString::fromLatin1(attribute), q(value));
    else
        attributes_.remove(QString::fromLatin1(attribute));
}

std::optional<QString> TestPrinter::attribute(const QString& keyword)
{
    std::unique_lock lock(mutex_);
    if (QThread::currentThread() != qApp->thread() && isHolding_) {
        ++held_;
        changed_.wait(lock, [] { return !isHolding_; });
        --held_;
    }
    const auto found = attributes_.constFind(keyword);
    return found == attributes_.constEnd() ? std::nullopt : std::optional<QString>(*found);
}

void TestPrinter::goOn()
{
    locked([] { isHolding_ = false; });
    changed_.notify_all();
}

void FeaturesPanelTest::SetUp()
{
    useBuiltBundle();
    TestPrinter::reset();
}

void FeaturesPanelTest::TearDown()
{
    TestPrinter::goOn();
    const std::weak_ptr<FeaturesPanelWithPrinter> weak = panel;
    panel.reset();
    // What the panel has queued still holds it.
    EXPECT_TRUE(waitUntil([&] { return weak.expired(); }));
    drainMainQueue();
}

void FeaturesPanelTest::make(const QByteArray& ppd)
{
    host = std::make_shared<FakeHost>(ppd);
    panel = makePanel<FeaturesPanelWithPrinter>(host);
    ASSERT_TRUE(panel);
}

void FeaturesPanelTest::show(const PaperCatalogue& catalogue)
{
    if (!panel)
        make();
    ASSERT_TRUE(panel->panelView());
    give(catalogue);
}

void FeaturesPanelTest::give(const PaperCatalogue& catalogue)
{
    panel->setUnsortedPaper(std::make_shared<const PaperCatalogue>(catalogue));
    panel->updatePaperInfo(nullptr);
}

void FeaturesPanelTest::choose(int tag, const char* value)
{
    QComboBox* popup = menu(tag);
    const int index = control::indexOfItemWithRepresentedObject(popup, q(value));
    ASSERT_GE(index, 0) << value;
    popup->setCurrentIndex(index);
    Q_EMIT popup->activated(index);
}

QStringList FeaturesPanelTest::titles(int tag) const
{
    QStringList result;
    for (int i = 0; i < menu(tag)->count(); ++i)
        result.append(menu(tag)->itemText(i));
    return result;
}

QStringList FeaturesPanelTest::enabledTitles(int tag) const
{
    QStringList result;
    for (int i = 0; i < menu(tag)->count(); ++i) {
        if (control::isItemEnabled(menu(tag), i))
            result.append(menu(tag)->itemText(i));
    }
    return result;
}

QStringList FeaturesPanelTest::enabledSurfaces() const
{
    QStringList result;
    for (const QRadioButton* cell : surfaces()->cells()) {
        if (cell->isEnabledTo(surfaces()))
            result.append(cell->text());
    }
    return result;
}

QStringList FeaturesPanelTest::asked(const char* key) const
{
    QStringList values;
    for (const auto& question : host->asked) {
        if (question.first == QLatin1StringView(key))
            values.append(question.second.toString());
    }
    return values;
}

} // namespace halvern
