// SPDX-License-Identifier: MIT
#pragma once

// libcups marks its PPD calls as deprecated and has no successor for PPD queues. This is the one place that
// says that we know; sources that call them include this header instead of <cups/ppd.h>.
#pragma GCC diagnostic ignored "-Wdeprecated-declarations"
#include <cups/cups.h>
#include <cups/ppd.h>
