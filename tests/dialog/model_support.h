// SPDX-License-Identifier: MIT
#pragma once

#include "dialog/options/ppd_model.h"
#include "tests/support/test.h"

namespace halvern {

/// A model on the Tessarin's own PPD.
inline std::unique_ptr<PpdModel> tessarinModel()
{
    ppd::File file = ppd::open(q(HALVERN_TESSARIN_PPD));
    return file ? std::make_unique<PpdModel>(std::move(file)) : nullptr;
}

/// A model on a PPD with this text.
inline std::unique_ptr<PpdModel> modelOf(const QByteArray& text)
{
    return std::make_unique<PpdModel>(ppdOf(text));
}

/// The change's key and choice as "KEY=CHOICE", for comparing.
inline QStringList asTexts(const QList<SideChange>& changes)
{
    QStringList texts;
    for (const SideChange& change : changes)
        texts.append(change.key + u'=' + change.choice);
    return texts;
}

} // namespace halvern
