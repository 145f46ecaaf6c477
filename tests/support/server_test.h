// SPDX-License-Identifier: MIT
#pragma once

#include "tests/support/private_cups.h"
#include "tests/support/text.h"

#include <gtest/gtest.h>

#include <memory>

namespace halvern {

/// One private server for all tests of a suite, which add queues of their own.
class ServerTest : public testing::Test {
protected:
    static void SetUpTestSuite() { server = std::make_unique<PrivateCups>(); }

    static void TearDownTestSuite() { server.reset(); }

    /// Adds a queue whose printer has the faults of the query (printer/README.md).
    static void addQueue(const char* name, const char* faults = "", const QStringList& more = {})
    {
        const QString uri = q("halvern://virtual/x?") + QLatin1StringView(faults);
        ASSERT_TRUE(server->addQueue(QLatin1StringView(name), QString(), uri, more))
            << server->error().toStdString();
    }

    static inline std::unique_ptr<PrivateCups> server;
};

} // namespace halvern
