// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace halvern {

/// What a photo's file tells of it, as its camera or its owner wrote it: texts are strangers' texts, cut to
/// kLongestDetail characters. What is not there is empty or 0.
struct PhotoDetails {
    QString kind;  ///< of file: "JPEG"
    QString taken; ///< "2024-05-06 12:13:14", without a time zone
    QString camera;
    QString lens;
    double exposure = 0.0;    ///< seconds
    double aperture = 0.0;    ///< the f-number
    double focalLength = 0.0; ///< millimetres
    int sensitivity = 0;      ///< ISO
    QString title;
    QString description;
    int rating = 0; ///< stars, 1 to 5

    bool operator==(const PhotoDetails&) const = default;
};

inline constexpr int kLongestDetail = 2000;

} // namespace halvern
