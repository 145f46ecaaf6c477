// SPDX-License-Identifier: MIT
#include "platform/printing/print_settings.h"

namespace halvern {

int PrintSettings::getValue(const QString& key, QVariant& value) const
{
    const auto found = values_.constFind(key);
    if (found == values_.constEnd()) {
        value = QVariant();
        return kPrintingKeyNotFound;
    }
    value = *found;
    return kPrintingOk;
}

int PrintSettings::setValue(const QString& key, const QVariant& value, bool locked)
{
    if (key.isEmpty())
        return kPrintingGeneralError;
    if (!locked && locked_.contains(key))
        return kPrintingKeyLocked;
    if (locked)
        locked_.insert(key, true);
    if (value.isValid())
        values_.insert(key, value);
    else
        values_.remove(key);
    return kPrintingOk;
}

} // namespace halvern
