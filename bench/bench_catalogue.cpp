// SPDX-License-Identifier: MIT
// bench-catalogue COUNT: from the bytes of an archive with COUNT papers to the filled menus of the Features
// panel.
//
// Prints the time to read the archive (which the panel does in the background) and the time to index it, fill
// the menus and run the rules (which the main thread does), for the first catalogue and for one that replaces
// it.

#include "panels/features/features_panel.h"
#include "panels/features/features_tags.h"
#include "platform/foundation/archive/keyed_unarchiver.h"
#include "platform/foundation/bundle.h"
#include "platform/plugin_api/host_callback.h"
#include "platform/printing/page_format.h"
#include "platform/printing/ppd.h"
#include "platform/printing/print_settings.h"
#include "platform/printing/printer.h"
#include "printer/papers/catalogue_archive.h"

#include <QApplication>
#include <QComboBox>
#include <QElapsedTimer>

#include <cstdio>

using namespace halvern;

namespace {

class BenchHost : public HostCallback {
public:
    BenchHost() : file_(ppd::open(QStringLiteral(HALVERN_BENCH_PPD)))
    {
        if (file_)
            ppd::markDefaults(file_.get());
    }

    ppd_file_t* ppdFile() override { return file_.get(); }

    bool respondsToWillChangePPDOptionKeyValue() const override { return true; }

    bool willChangePPDOptionKeyValue_ppdChoice(const QString& key, const QVariant& choice) override
    {
        if (!ppd::mark(file_.get(), key, choice.toString()))
            settings_->setValue(key, choice, false);
        return true;
    }

    std::shared_ptr<PrintSettings> printSettings() override { return settings_; }

    std::shared_ptr<PageFormat> pageFormat() override { return format_; }

    std::shared_ptr<Printer> PMPrinter() override { return nullptr; }

private:
    ppd::File file_;
    std::shared_ptr<PrintSettings> settings_ = std::make_shared<PrintSettings>();
    std::shared_ptr<PageFormat> format_ = std::make_shared<PageFormat>();
};

/// The panel without a server: the printer has its abilities, and reported just now.
class BenchPanel : public RZFeaturesPDEHalvern {
public:
    std::optional<QString> ppdValueForAttribute(const QString& attribute) override
    {
        if (attribute == QLatin1StringView("VLXTimeStamp"))
            return QStringLiteral("99999999999");
        return QStringLiteral("True");
    }

    std::optional<QByteArray> ppdSavedDataForAttribute(const QString&) override { return std::nullopt; }

    void sendPrinterCommands(const QStringList&) override {}
};

// Half of the papers are sheets with four resolutions each, half are rolls with four surfaces of four.
QVariantMap catalogue(int count, const QString& make)
{
    QVariantMap papers;
    for (int i = 0; i < count / 2; ++i) {
        const int dotsPerInch = 300 + 310 * (i % 4);
        QVariantMap record{{QStringLiteral("paperResolution"), qint64(dotsPerInch) * 10},
                           {QStringLiteral("paperTone"), quint64(i % 256)}};
        const QString name = QStringLiteral("%1 %2").arg(make).arg(i / 4);
        const int width = 500 + i / 16;
        const int surface = 1 + i / 4 % 4;
        QVariantMap roll = record;
        record.insert(QStringLiteral("paperName"), name);
        roll.insert(QStringLiteral("paperWidth"), qint64(width));
        roll.insert(QStringLiteral("paperSurface"), qint64(surface));
        papers.insert(sheetPaperKey(name, dotsPerInch), record);
        papers.insert(rollPaperKey(QString::number(width), QString::number(surface), dotsPerInch), roll);
    }
    return papers;
}

double millisecondsSince(const QElapsedTimer& timer)
{
    return double(timer.nsecsElapsed()) / 1e6;
}

bool measure(BenchPanel& panel, const QByteArray& archive, const char* what)
{
    QElapsedTimer timer;
    timer.start();
    auto root = KeyedUnarchiver::unarchiveDictionary(archive).root;
    const double decoded = millisecondsSince(timer);
    if (!root)
        return false;
    const qsizetype papers = root->size();
    panel.setUnsortedPaper(std::make_shared<const PaperCatalogue>(*std::move(root)));
    timer.start();
    panel.updatePaperInfo(nullptr);
    const double shown = millisecondsSince(timer);
    const auto count = [&](int tag) {
        const auto* menu = qobject_cast<QComboBox*>(panel.view_controlForTag(nullptr, tag));
        return menu ? menu->count() : 0;
    };
    std::printf("%7lld papers, %-11s read %8.1f ms  menus %8.1f ms  (%d names, %d widths)\n",
                (long long)papers, what, decoded, shown, count(features::kNameTag),
                count(features::kWidthTag));
    return count(features::kNameTag) > 0 && count(features::kWidthTag) > 0;
}

} // namespace

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    const int count = argc == 2 ? std::atoi(argv[1]) : 0;
    QString why;
    Bundle::setMainBundle(Bundle::load(QStringLiteral(HALVERN_BENCH_BUNDLE), &why));
    const auto panel = makePanel<BenchPanel>(std::make_shared<BenchHost>());
    if (count < 2 || !panel || !panel->panelView()) {
        std::fprintf(stderr, "usage: bench-catalogue COUNT (at least 2); needs the built bundle. %s\n",
                     qPrintable(why));
        return 2;
    }
    const bool filled =
        measure(*panel, archiveOfCatalogue(catalogue(count, QStringLiteral("Gloss"))), "first") &&
        measure(*panel, archiveOfCatalogue(catalogue(count, QStringLiteral("Matte"))), "replacement");
    return filled ? 0 : 1;
}
