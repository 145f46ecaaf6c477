// SPDX-License-Identifier: MIT
#include "platform/foundation/list_text.h"

#include <QCoreApplication>

namespace halvern {

QString listText(const QStringList& texts)
{
    return texts.join(QCoreApplication::translate("Lists", ", "));
}

} // namespace halvern
