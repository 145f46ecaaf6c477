// SPDX-License-Identifier: MIT
#include "platform/toolkit/layout_loader.h"

#include "platform/foundation/bundle.h"
#include "platform/toolkit/decimal_slider.h"
#include "platform/toolkit/matrix.h"
#include "platform/toolkit/stepper.h"

#include <QFile>
#include <QUiLoader>

namespace halvern {

namespace {

class Loader : public QUiLoader {
public:
    using QUiLoader::QUiLoader;

    QWidget* createWidget(const QString& className, QWidget* parent, const QString& name) override
    {
        QWidget* widget = createOwnWidget(className, parent);
        if (!widget)
            return QUiLoader::createWidget(className, parent, name);
        widget->setObjectName(name);
        return widget;
    }

private:
    static QWidget* createOwnWidget(const QString& className, QWidget* parent)
    {
        if (className == QLatin1String("DecimalSlider"))
            return new DecimalSlider(parent);
        if (className == QLatin1String("Matrix"))
            return new Matrix(parent);
        if (className == QLatin1String("Stepper"))
            return new Stepper(parent);
        return nullptr;
    }
};

} // namespace

std::unique_ptr<QWidget> loadLayout(const Bundle& bundle, const QString& name, QString* why)
{
    const auto path = bundle.pathForResource(name + QStringLiteral(".ui"));
    QFile file(path.value_or(QString()));
    if (!path || !file.open(QIODevice::ReadOnly)) {
        if (why)
            *why = QStringLiteral("no layout file %1.ui in %2").arg(name, bundle.bundlePath());
        return nullptr;
    }
    Loader loader;
    loader.clearPluginPaths();
    loader.setLanguageChangeEnabled(false);
    std::unique_ptr<QWidget> view(loader.load(&file));
    if (!view && why)
        *why = loader.errorString();
    return view;
}

} // namespace halvern
