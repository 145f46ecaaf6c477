// SPDX-License-Identifier: MIT
#pragma once

#include "platform/printing/access.h"

#include <optional>

/// The desktop's keyring (org.freedesktop.secrets on the session bus), if there is one and it is unlocked:
/// the one place where a password of the user's is kept beyond the session. Each call waits for the bus, some
/// seconds at most; any thread but the main one.
namespace halvern::secret_store {

/// Whether a password could be kept.
bool isThere();

/// The login that was kept for the place; nothing if there is none.
std::optional<cups::Login> find(const cups::Place& place);

/// Keeps it, in the place of what is kept. False if that fails; then what was kept still is.
bool keep(const cups::Place& place, const cups::Login& login);

} // namespace halvern::secret_store
