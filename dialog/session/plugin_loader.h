// SPDX-License-Identifier: MIT
#pragma once

#include "dialog/session/panel_source.h"
#include "platform/plugin_api/principal_class.h"

#include <QCoreApplication>
#include <QMap>

namespace halvern {

/// Finds bundles by name and loads them. A bundle is loaded once and stays loaded, since its panels' last
/// references may drop on any thread at any time. Main thread only.
class PluginLoader : public PanelSource {
    Q_DECLARE_TR_FUNCTIONS(PluginLoader)

public:
    /// Looks in the folders of HALVERN_PLUGIN_PATH, then beside the program.
    PluginLoader();
    explicit PluginLoader(QStringList folders);
    ~PluginLoader() override;

    PanelList panels(const QString& bundleName, const std::shared_ptr<HostCallback>& host,
                     QString* problem) override;
    QString localized(const QString& bundleName, const QString& text) const override;

    /// A bundle's resources without its module; null if it cannot be had.
    std::shared_ptr<Bundle> resources(const QString& bundleName) const;

private:
    // A bundle and its root object.
    struct Loaded {
        std::shared_ptr<Bundle> bundle;
        std::unique_ptr<PrincipalClass> principal;
    };

    PrincipalClass* principalOf(const QString& bundleName, QString* problem);
    QString pathOf(const QString& bundleName) const;
    Loaded load(const QString& path, QString* problem);

    QStringList folders_;
    std::map<QString, Loaded> loaded_;
};

} // namespace halvern
