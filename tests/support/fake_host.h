// SPDX-License-Identifier: MIT
#pragma once

#include "platform/plugin_api/host_callback.h"
#include "platform/printing/page_format.h"
#include "platform/printing/ppd.h"
#include "platform/printing/print_settings.h"
#include "platform/printing/printer.h"
#include "tests/support/text.h"

#include <QList>
#include <QPair>
#include <QSet>

namespace halvern {

/// The start of a PPD that libcups accepts; options and attributes are appended to it.
QByteArray ppdHeader();

/// One PickOne option for a PPD: the first choice is the default. A choice may be "keyword/text".
QByteArray ppdOption(const QByteArray& keyword, const QList<QByteArray>& choices);

/// A PPD made of `text`.
ppd::File ppdOf(const QByteArray& text);

/// A host with a real PPD that records what it is asked. What it accepts it marks; what its PPD does not
/// list, it puts into its print settings.
class FakeHost : public HostCallback {
public:
    /// Opens a PPD made of `text` and marks its defaults. An empty text makes a host without a PPD.
    explicit FakeHost(const QByteArray& text = ppdHeader());

    ppd_file_t* ppdFile() override { return file_.get(); }

    bool respondsToWillChangePPDOptionKeyValue() const override { return responds; }

    bool willChangePPDOptionKeyValue_ppdChoice(const QString& key, const QVariant& choice) override;

    std::shared_ptr<PrintSettings> printSettings() override { return settings; }

    std::shared_ptr<PageFormat> pageFormat() override { return format; }

    std::shared_ptr<Printer> PMPrinter() override { return printer; }

    bool responds = true;
    QSet<QString> refusedKeys;
    QList<QPair<QString, QVariant>> asked;
    std::shared_ptr<PrintSettings> settings = std::make_shared<PrintSettings>();
    std::shared_ptr<PageFormat> format = std::make_shared<PageFormat>(
        PageRect{0, 0, 842, 595}, PageRect{9, 9, 833, 586}, PageOrientation::portrait);
    std::shared_ptr<Printer> printer = std::make_shared<Printer>(q("Tessarin"), q("halvern://virtual/test"));

private:
    ppd::File file_;
};

} // namespace halvern
