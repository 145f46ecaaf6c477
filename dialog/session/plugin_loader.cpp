// SPDX-License-Identifier: MIT
#include "dialog/session/plugin_loader.h"

#include "dialog/session/bundle_trust.h"
#include "platform/foundation/bundle.h"
#include "platform/foundation/log.h"

#include <QDir>
#include <QFileInfo>
#include <QPluginLoader>

namespace halvern {

namespace {

QStringList usualFolders()
{
    QStringList folders =
        qEnvironmentVariable("HALVERN_PLUGIN_PATH").split(QLatin1Char(':'), Qt::SkipEmptyParts);
    const QString program = QCoreApplication::applicationDirPath();
    for (const char* relative : {"/../lib/halvern", "/../" HALVERN_LIBRARY_DIR "/halvern"})
        folders.append(program + QLatin1StringView(relative));
    return folders;
}

// The name comes out of a PPD, which comes from anywhere: it names a bundle, never a path.
bool isBundleName(const QString& name)
{
    return name.endsWith(QLatin1StringView(".pde")) && !name.contains(QLatin1Char('/')) &&
           !name.startsWith(QLatin1Char('.'));
}

} // namespace

PluginLoader::PluginLoader() : PluginLoader(usualFolders()) {}

PluginLoader::PluginLoader(QStringList folders) : folders_(std::move(folders)) {}

PluginLoader::~PluginLoader() = default;

PanelList PluginLoader::panels(const QString& bundleName, const std::shared_ptr<HostCallback>& host,
                               QString* problem)
{
    PrincipalClass* principal = principalOf(bundleName, problem);
    if (!principal)
        return {};
    std::optional<PanelList> list =
        principal->PDEPanelsForType_withHostInfo(QString::fromLatin1(kPrintDialogExtensionType), host);
    if (!list || list->empty()) {
        *problem =
            tr("The printer's own pages (%1) offer nothing for this printer. You can print without them.")
                .arg(bundleName);
        return {};
    }
    return std::move(*list);
}

PrincipalClass* PluginLoader::principalOf(const QString& bundleName, QString* problem)
{
    if (const auto found = loaded_.find(bundleName); found != loaded_.end())
        return found->second.principal.get();
    if (!isBundleName(bundleName)) {
        *problem =
            tr("The printer's description asks for the pages \"%1\", which is no name of a bundle. You can "
               "print without them.")
                .arg(bundleName);
        return nullptr;
    }
    if (const QString path = pathOf(bundleName); !path.isEmpty()) {
        Loaded loaded = load(path, problem);
        if (!loaded.principal)
            return nullptr;
        return loaded_.emplace(bundleName, std::move(loaded)).first->second.principal.get();
    }
    *problem = tr("The printer's own pages (%1) are not installed. You can print without them; install the "
                  "printer's "
                  "software to have them.")
                   .arg(bundleName);
    return nullptr;
}

PluginLoader::Loaded PluginLoader::load(const QString& path, QString* problem)
{
    const QString failed =
        tr("The printer's own pages (%1) cannot be loaded: %2. You can print without them; "
           "install the printer's software again to have them.")
            .arg(QFileInfo(path).fileName());
    if (const QString risk = bundleProblem(path); !risk.isEmpty()) {
        *problem = failed.arg(risk);
        logLine(*problem);
        return {};
    }
    QString why;
    const std::shared_ptr<Bundle> bundle = Bundle::load(path, &why);
    const std::optional<QString> module = bundle ? bundle->executablePath() : std::nullopt;
    if (!module) {
        *problem = failed.arg(why.isEmpty() ? tr("they name no module") : why);
        return {};
    }
    // The loader object may go; the module stays until the program ends.
    QPluginLoader loader(*module);
    auto* root = qobject_cast<PlugInModule*>(loader.instance());
    if (!root) {
        *problem = failed.arg(loader.isLoaded() ? tr("the module is of another kind") : loader.errorString());
        return {};
    }
    std::unique_ptr<PrincipalClass> principal = root->makePrincipalObject();
    if (!principal || !principal->initWithBundle(*bundle)) {
        *problem = failed.arg(tr("they belong to something else"));
        return {};
    }
    return {bundle, std::move(principal)};
}

QString PluginLoader::pathOf(const QString& bundleName) const
{
    for (const QString& folder : folders_) {
        const QString path = QDir(folder).filePath(bundleName);
        if (isBundleName(bundleName) && QFileInfo(path).isDir())
            return path;
    }
    return {};
}

std::shared_ptr<Bundle> PluginLoader::resources(const QString& bundleName) const
{
    const QString path = pathOf(bundleName);
    return path.isEmpty() ? nullptr : Bundle::load(path);
}

QString PluginLoader::localized(const QString& bundleName, const QString& text) const
{
    const auto found = loaded_.find(bundleName);
    return found == loaded_.end() ? text : found->second.bundle->localizedString(text);
}

} // namespace halvern
