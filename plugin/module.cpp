// SPDX-License-Identifier: MIT
#include "plugin/plug_in.h"

#include <QObject>

namespace halvern {

/// What the dialog's loader finds in the module.
class TessarinModule : public QObject, public PlugInModule {
    Q_OBJECT
    Q_PLUGIN_METADATA(IID HalvernPlugInModule_iid)
    Q_INTERFACES(halvern::PlugInModule)

public:
    std::unique_ptr<PrincipalClass> makePrincipalObject() override
    {
        return std::make_unique<RZPDEPlugInHalvern>();
    }
};

} // namespace halvern

#include "module.moc"
