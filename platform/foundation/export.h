// SPDX-License-Identifier: MIT
#pragma once

/// What the platform library gives to others. Its symbols are hidden by default; a header that is meant for
/// the rooms above says so once, at its namespace.
#ifdef Q_MOC_RUN // which reads no attributes of namespaces
#define HALVERN_EXPORT
#else
#define HALVERN_EXPORT [[gnu::visibility("default")]]
#endif
