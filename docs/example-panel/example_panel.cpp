// SPDX-License-Identifier: MIT
// A maker's bundle with one panel: a check box for the PPD's option "Collate".
#include "platform/foundation/bundle.h"
#include "platform/plugin_api/host_callback.h"
#include "platform/plugin_api/principal_class.h"
#include "platform/printing/print_settings.h"

#include <QCheckBox>
#include <QPointer>

namespace {

using namespace halvern;

const QString kKey = QStringLiteral("Collate");

class CollatePanel : public Panel, public std::enable_shared_from_this<CollatePanel> {
public:
    explicit CollatePanel(std::shared_ptr<HostCallback> host) : host_(std::move(host)) {}

    // The last reference may drop on any thread; a widget goes back to the main one.
    ~CollatePanel() override
    {
        if (box_)
            box_->deleteLater();
    }

    QWidget* panelView() override
    {
        if (!box_) {
            box_ = new QCheckBox(QStringLiteral("Collate the copies"));
            // The box may live a little longer than its panel.
            QObject::connect(box_, &QCheckBox::clicked, box_, [weak = weak_from_this()](bool on) {
                if (const std::shared_ptr<CollatePanel> self = weak.lock())
                    self->choose(on);
            });
        }
        show();
        return box_;
    }

    std::optional<QString> panelName() override { return QStringLiteral("Example"); }

    std::optional<QString> panelKind() override { return QStringLiteral("org.example.print.pde.collate"); }

    QMap<QString, QString> summaryInfo() override
    {
        return {{QStringLiteral("Collated"), isOn_ ? QStringLiteral("Yes") : QStringLiteral("No")}};
    }

    void willShow() override { show(); }

    bool shouldHide() override { return true; }

    void printWindowWillClose(bool) override {}

    bool saveValuesAndReturnError(PanelError*) override
    {
        const std::shared_ptr<PrintSettings> settings = host_->printSettings();
        return !settings || settings->setValue(kKey, choice(), false) == kPrintingOk;
    }

    bool restoreValuesAndReturnError(PanelError*) override
    {
        QVariant saved;
        const std::shared_ptr<PrintSettings> settings = host_->printSettings();
        if (settings && settings->getValue(kKey, saved) == kPrintingOk)
            isOn_ = saved.toString() == QLatin1String("True");
        show();
        return true;
    }

    void PPDOptionKeyValueDidChange_ppdChoice(const std::optional<QString>& key,
                                              const QVariant& value) override
    {
        if (key == kKey)
            isOn_ = value.toString() == QLatin1String("True");
        show();
    }

    bool shouldShowHelp() override { return true; }

    QStringList supportedPPDOptionKeys() override { return {kKey}; }

private:
    QString choice() const { return isOn_ ? QStringLiteral("True") : QStringLiteral("False"); }

    // The dialog may say no, because the choice clashes with another: the box then goes back.
    void choose(bool on)
    {
        if (host_->willChangePPDOptionKeyValue_ppdChoice(kKey, on ? "True" : "False"))
            isOn_ = on;
        show();
    }

    void show()
    {
        if (box_)
            box_->setChecked(isOn_);
    }

    std::shared_ptr<HostCallback> host_;
    QPointer<QCheckBox> box_;
    bool isOn_ = false;
};

class ExamplePlugIn : public PrincipalClass {
public:
    bool initWithBundle(const Bundle& bundle) override
    {
        return bundle.bundleIdentifier() == QStringLiteral("org.example.print.pde");
    }

    std::optional<PanelList> PDEPanelsForType_withHostInfo(const QString& type,
                                                           const std::shared_ptr<HostCallback>& host) override
    {
        if (type != QLatin1String(kPrintDialogExtensionType))
            return std::nullopt;
        return PanelList{std::make_shared<CollatePanel>(host)};
    }
};

class ExampleModule : public QObject, public PlugInModule {
    Q_OBJECT
    Q_PLUGIN_METADATA(IID HalvernPlugInModule_iid)
    Q_INTERFACES(halvern::PlugInModule)

public:
    std::unique_ptr<PrincipalClass> makePrincipalObject() override
    {
        return std::make_unique<ExamplePlugIn>();
    }
};

} // namespace

#include "example_panel.moc"
