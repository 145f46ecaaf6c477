// SPDX-License-Identifier: MIT
#pragma once

#include <QImage>
#include <QMap>
#include <QString>

/// What the printer's colour adjustments and its sharpening look like on a screen: an approximation, for the
/// preview. Pure functions, any thread.
namespace halvern::adjust {

/// The seven values in the printer's units: -100 to 100, 0 changes nothing; gamma above 0, 1 changes nothing.
/// A number beyond that is held to it.
struct ColorAdjustments {
    double brightness = 0.0;
    double contrast = 0.0;
    double saturation = 0.0;
    double gamma = 1.0;
    double red = 0.0;
    double green = 0.0;
    double blue = 0.0;

    bool operator==(const ColorAdjustments&) const = default;
};

/// How far from an edge the sharpening reaches, in pixels of the image (0 to 10, cut to whole ones), and how
/// strong it is (0 to 5). Either at 0 changes nothing; a number beyond that is held to it.
struct Sharpening {
    double radius = 0.0;
    double intensity = 0.0;

    bool operator==(const Sharpening&) const = default;
};

/// The values that PPD choices stand for (keyword -> choice): the number that each choice starts with, 0 if
/// there is none; an absent choice changes nothing. Without "True" for the toggle nothing is changed at all.
ColorAdjustments colorAdjustments(const QMap<QString, QString>& choices);
Sharpening sharpening(const QMap<QString, QString>& choices);

/// The picture with the adjustments applied. `srgb` holds sRGB values; the result has its size, resolution
/// and transparency. Answers `srgb` itself if nothing changes, a null image for a null one.
QImage adjusted(const QImage& srgb, const ColorAdjustments& adjustments);

/// The picture in shades of gray that are as light as its colours. As above.
QImage grayed(const QImage& srgb);

/// The picture sharpened by an unsharp mask of its brightness; colours keep their hue. The cost grows with
/// the radius. As above, the result may be `image` itself.
QImage sharpened(const QImage& image, const Sharpening& sharpening);

} // namespace halvern::adjust
