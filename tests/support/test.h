// SPDX-License-Identifier: MIT
#pragma once

/// What every test includes: the frameworks, the types that most tests name, and the helpers.

#include "tests/support/child_process.h"
#include "tests/support/fake_host.h"
#include "tests/support/files.h"
#include "tests/support/observers.h"
#include "tests/support/server_test.h"
#include "tests/support/text.h"

#include <QAbstractButton>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDir>
#include <QFileInfo>
#include <QImage>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTemporaryDir>
#include <QTest>
#include <QToolButton>
#include <QVBoxLayout>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <memory>
