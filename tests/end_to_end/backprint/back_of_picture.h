// SPDX-License-Identifier: MIT
#pragma once

#include "dialog/server/saved_options.h"
#include "tests/support/test.h"

namespace halvern {

/// One print server with the virtual printer "Tessarin", and "Plain", which has no Backprint options, for all
/// tests of a suite; and a photo to print.
class BackOfPicture : public ServerTest {
protected:
    static void SetUpTestSuite();

    static OptionValue resolution() { return {q("Resolution"), q("360dpi")}; }

    static QString photo() { return folder.filePath(q("photo.png")); }

    /// What the printer's filter received for the option; nothing if it received none.
    static std::optional<QString> received(int job, const char* key);

    /// The lines that the printer was told to print, as they are read.
    static QStringList receivedLines(int job);

    /// Expects that the printer was told these lines, and put text where they belong and nowhere else;
    /// without lines, that it put out no back at all.
    static void expectBack(int job, const QStringList& lines);

    inline static QTemporaryDir folder;
};

/// 119 commas and apostrophes and a backslash, as typed. What is stored has 121 characters and 300 bytes.
QString longestLine();
QString longestLineStored();

} // namespace halvern
