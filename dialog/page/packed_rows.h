// SPDX-License-Identifier: MIT
#pragma once

#include "dialog/page/pdf_file.h"

#include <memory>

namespace halvern {

/// Packs a picture's rows without loss into the page that a PDF file has begun, as they come. One thread at a
/// time.
class PackedRows {
public:
    /// `file` outlives it.
    explicit PackedRows(PdfFile& file);
    ~PackedRows();
    PackedRows(const PackedRows&) = delete;
    PackedRows& operator=(const PackedRows&) = delete;

    /// False if they could not be written.
    bool add(const uchar* rows, qsizetype bytes);

    /// To be called behind the last row. False if it could not be written.
    bool finish();

private:
    struct State;

    bool pack(int flush);

    PdfFile& file_;
    std::unique_ptr<State> state_;
};

} // namespace halvern
