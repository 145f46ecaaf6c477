#pragma once

/// What every test includes: the frameworks, the types that most tests name, and the helpers.

#include "tests/support/child_process.h"
#include "tests/support/files.h"
#include "tests/support/observers.h"
#include "tests/support/text.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <memory>
