#pragma once

#include "dialog/ppd_model.h"

#include <QFile>
#include <QTemporaryDir>

namespace halvern {

/// A model on the Tessarin's own PPD.
inline std::unique_ptr<PpdModel> tessarinModel()
{
    ppd::File file = ppd::open(QStringLiteral(HALVERN_TESSARIN_PPD));
    return file ? std::make_unique<PpdModel>(std::move(file)) : nullptr;
}

/// A model on a PPD with this text.
inline std::unique_ptr<PpdModel> modelOf(const QByteArray& text)
{
    const QTemporaryDir folder;
    QFile file(folder.filePath(QStringLiteral("test.ppd")));
    if (!file.open(QIODevice::WriteOnly) || file.write(text) != text.size())
        return nullptr;
    file.close();
    ppd::File opened = ppd::open(file.fileName());
    return opened ? std::make_unique<PpdModel>(std::move(opened)) : nullptr;
}

/// The change's key and choice as "KEY=CHOICE", for comparing.
inline QStringList asTexts(const QList<SideChange>& changes)
{
    QStringList texts;
    for (const SideChange& change : changes)
        texts.append(change.key + QLatin1Char('=') + change.choice);
    return texts;
}

} // namespace halvern
