// SPDX-License-Identifier: MIT
#pragma once

#include "dialog/page/page_layout.h"

#include <QJsonObject>
#include <QList>
#include <QSizeF>
#include <QString>

#include <optional>

namespace halvern {

inline constexpr int kLongestLayoutName = 80;

enum class LayoutKind {
    single, ///< a photo a page
    grid,   ///< as many rows and columns as it says, as large as the paper lets them be
    size,   ///< photos of one size, as many as the paper takes
    cells,  ///< places that are fixed to each other
    pack,   ///< photos that keep their shapes, side by side with little waste
};

/// How photos are put on sheets. A value, and data: docs/layouts.md describes the file. Lengths are
/// millimetres.
struct Layout {
    QString id = {};   ///< what a command line and a preset call it
    QString name = {}; ///< for the user
    LayoutKind kind = LayoutKind::single;
    int rows = 1;
    int columns = 1;
    QSizeF photo = {};        ///< of size and pack: what each photo is printed in
    int most = 0;             ///< of size: on a sheet; 0: as many as it takes
    QList<QRectF> cells = {}; ///< of cells: from the top left corner of them all
    double gap = 0.0;         ///< between two photos
    bool turnsPhotos = false; ///< a quarter turn where that suits the place better
    bool isOwn = false;       ///< the user's

    // What choosing it sets, and the user may set otherwise.
    std::optional<Scaling> scaling = {};
    bool repeats = false;
    bool hasCutMarks = false;
    bool hasLine = false;
    double border = 0.0;
    double margin = 0.0;
    QString caption = {};

    bool operator==(const Layout&) const = default;
};

inline constexpr int kMostRows = 20;
inline constexpr double kLeastPhoto = 10.0;        // millimetres
inline constexpr double kMostPhoto = 2000.0;       // millimetres
inline constexpr QSizeF kUsualPhoto(100.0, 150.0); // millimetres
inline constexpr double kMostBorder = 50.0;        // millimetres
inline constexpr double kMostMargin = 200.0;       // millimetres
inline constexpr double kLeastPercent = 1.0;
inline constexpr double kMostPercent = 1000.0;
inline constexpr qsizetype kLongestCaption = 200;

/// What the user has set about the sheets. Lengths are millimetres.
struct SheetSettings {
    QString layout = {};  ///< an id; empty: a photo a page
    bool repeats = false; ///< each photo fills its own sheet
    QString caption = {}; ///< the pattern of the line under each photo; empty: none
    bool hasCutMarks = false;
    bool hasLine = false;               ///< a thin one around each photo
    double border = 0.0;                ///< white, within each photo's place
    double margin = 0.0;                ///< that stays free at the sheet's edges at least
    QSizeF photo = {};                  ///< of a photo a page: what it is printed in; empty: all there is
    double percent = 100.0;             ///< of its own size, where that is what is printed
    std::optional<QPointF> corner = {}; ///< of a photo a page: from the sheet's; nothing: in the middle

    bool operator==(const SheetSettings&) const = default;
};

/// What somebody has asked for about the sheets; nothing where nobody said. Lengths are millimetres.
struct SheetWishes {
    std::optional<Layout> layout = {};
    std::optional<bool> repeats = {};
    std::optional<QString> caption = {};
    std::optional<bool> hasCutMarks = {};
    std::optional<bool> hasLine = {};
    std::optional<double> border = {};
    std::optional<double> margin = {};
    std::optional<QSizeF> photo = {};   ///< of a photo a page
    std::optional<double> percent = {}; ///< of its own size
    std::optional<QPointF> corner = {};

    /// Whether they leave nothing of how those settings put photos on sheets.
    bool replace(const SheetSettings& settings) const
    {
        return layout || (photo && !settings.layout.isEmpty());
    }
};

/// The settings with what was asked for over them: a layout, or a size for a photo a page in the place of
/// one, replaces them all.
SheetSettings withWishes(const SheetSettings& before, const SheetWishes& wishes);

/// The scaling that goes with the wishes, where it would be this one without them.
Scaling scalingWith(Scaling before, const SheetWishes& wishes);

/// What choosing a layout makes of the settings.
SheetSettings withLayout(const SheetSettings& before, const Layout& layout);

/// The layout with what is set now as what it sets.
Layout keepingSettings(Layout layout, const SheetSettings& settings, Scaling scaling);

/// "3x4" rows by columns, or "90x130mm" for as many of that size as the paper takes. Nothing if it is
/// neither.
std::optional<Layout> layoutOfMeasures(const QString& id);

/// A layout or the sentence that says what is wrong with it.
struct ReadLayout {
    Layout layout;
    QString problem;
};

ReadLayout layoutFromJson(const QJsonObject& object, const QString& id);
QJsonObject toJson(const Layout& layout);

} // namespace halvern
