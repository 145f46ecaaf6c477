// SPDX-License-Identifier: MIT
#pragma once

#include "platform/foundation/export.h"

#include <QString>
#include <QVariant>
#include <QVariantMap>

namespace HALVERN_EXPORT halvern {

/// What the settings answer. Zero is success.
inline constexpr int kPrintingOk = 0;
inline constexpr int kPrintingKeyNotFound = 1;
inline constexpr int kPrintingKeyLocked = 2;
inline constexpr int kPrintingGeneralError = 3;

/// The settings of one print job: PPD option keyword (or job attribute name) -> value, a string or a number.
/// Main thread only.
class PrintSettings {
public:
    virtual ~PrintSettings() = default;

    /// PMPrintSettingsGetValue: fills `value` and answers 0. If the key is absent it answers
    /// kPrintingKeyNotFound and makes `value` invalid.
    virtual int getValue(const QString& key, QVariant& value) const;

    /// PMPrintSettingsSetValue: stores `value` under `key`; an invalid value removes the key. A locked key
    /// refuses with kPrintingKeyLocked until it is set with `locked` again; an empty key refuses with
    /// kPrintingGeneralError.
    virtual int setValue(const QString& key, const QVariant& value, bool locked);

    /// All values, sorted by key.
    const QVariantMap& values() const { return values_; }

private:
    QVariantMap values_;
    QVariantMap locked_;
};

} // namespace halvern
