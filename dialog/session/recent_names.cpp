// SPDX-License-Identifier: MIT
#include "dialog/session/recent_names.h"

#include "platform/foundation/user_defaults.h"

namespace halvern {

RecentNames::RecentNames(QString key, qsizetype most)
    : key_(std::move(key)),
      most_(most),
      names_(UserDefaults::standardUserDefaults().objectForKey(key_).toStringList().mid(0, most))
{
}

void RecentNames::use(const QString& name)
{
    if (name.isEmpty() || (!names_.isEmpty() && names_.front() == name))
        return;
    UserDefaults::standardUserDefaults().changeGlobal([&](QVariantMap& values) {
        // Another dialog may have used others since.
        names_ = values.value(key_).toStringList();
        names_.removeAll(name);
        names_.prepend(name);
        names_ = names_.mid(0, most_);
        values.insert(key_, names_);
    });
}

} // namespace halvern
