// SPDX-License-Identifier: MIT
#pragma once

#include <QList>
#include <QString>
#include <QWidget>

#include <gtest/gtest.h>

namespace halvern {

/// Fails a test that leaves a window behind, and a suite that leaves a process behind: a child of this
/// program, or any process that has its home from it, as a server that a script started. Such a process is
/// ended.
class LeftoverListener : public testing::EmptyTestEventListener {
public:
    explicit LeftoverListener(const QString& home) : home_(home) {}

    void OnTestStart(const testing::TestInfo& test) override;
    void OnTestEnd(const testing::TestInfo& test) override;
    void OnTestSuiteEnd(const testing::TestSuite& suite) override;

private:
    QString home_;
    QWidgetList before_;
};

} // namespace halvern
