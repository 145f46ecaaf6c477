// SPDX-License-Identifier: MIT
#include "dialog/page/layout_cells.h"

#include "platform/foundation/units.h"

#include <QCoreApplication>

#include <algorithm>
#include <cmath>
#include <numeric>

namespace halvern {

namespace {

struct LayoutCellsWords {
    Q_DECLARE_TR_FUNCTIONS(Layouts)
};

// PPDs count paper in whole points.
constexpr double kCellTolerance = 0.5 * kPointsPerMillimetre;

QString millimetres(double points)
{
    return QString::number(std::round(points / kPointsPerMillimetre));
}

QString tooLarge(const QSizeF& wanted, const QSizeF& there)
{
    return LayoutCellsWords::tr(
               "The layout takes %1 × %2 mm, and this paper has %3 × %4 mm to print on. Choose a larger "
               "paper, one without margins, or another layout.")
        .arg(millimetres(wanted.width()), millimetres(wanted.height()), millimetres(there.width()),
             millimetres(there.height()));
}

struct Table {
    int columns = 0;
    int rows = 0;

    int count() const { return columns * rows; }
};

Table tableOf(const QSizeF& cell, const QSizeF& area, double gap)
{
    const auto most = [&](double length, double all) {
        return int(std::clamp((all + gap + kCellTolerance) / (length + gap), 0.0, 1000.0));
    };
    return {most(cell.width(), area.width()), most(cell.height(), area.height())};
}

std::vector<QRectF> cellsOf(const Table& table, const QSizeF& cell, double gap, const QPointF& corner,
                            int most)
{
    std::vector<QRectF> cells;
    for (int i = 0; i < most; ++i)
        cells.push_back({corner + QPointF((i % table.columns) * (cell.width() + gap),
                                          (i / table.columns) * (cell.height() + gap)),
                         cell});
    return cells;
}

LayoutCells gridCells(const Layout& layout, const CellRoom& room)
{
    const double gap = layout.gap * kPointsPerMillimetre;
    const QSizeF cell((room.area.width() - (layout.columns - 1) * gap) / layout.columns,
                      (room.area.height() - (layout.rows - 1) * gap) / layout.rows);
    if (std::min(cell.width(), cell.height()) < kLeastPhoto * kPointsPerMillimetre)
        return {{},
                LayoutCellsWords::tr(
                    "So many photos would be smaller than %1 mm on this paper. Choose fewer rows or "
                    "columns, or a larger paper.")
                    .arg(kLeastPhoto)};
    const Table table{layout.columns, layout.rows};
    return {cellsOf(table, cell, gap, room.area.topLeft(), table.count()), {}};
}

LayoutCells sizeCells(const Layout& layout, const CellRoom& room)
{
    const double gap = layout.gap * kPointsPerMillimetre;
    QSizeF cell = layout.photo * kPointsPerMillimetre;
    Table table = tableOf(cell, room.area.size(), gap);
    const Table across = tableOf(cell.transposed(), room.area.size(), gap);
    const auto useful = [&](const Table& each) {
        return layout.most > 0 ? std::min(layout.most, each.count()) : each.count();
    };
    if (layout.turnsPhotos && useful(across) > useful(table)) {
        table = across;
        cell.transpose();
    }
    const int count = useful(table);
    if (count == 0)
        return {{}, tooLarge(layout.photo * kPointsPerMillimetre, room.area.size())};
    // As even as it can be: four and four, not five and three.
    const int rows = (count + table.columns - 1) / table.columns;
    table = {(count + rows - 1) / rows, rows};
    const QSizeF block(table.columns * (cell.width() + gap) - gap, table.rows * (cell.height() + gap) - gap);
    return {cellsOf(table, cell, gap, centredOn(room, block).topLeft(), count), {}};
}

LayoutCells fixedCells(const Layout& layout, const CellRoom& room)
{
    QRectF block;
    for (const QRectF& cell : layout.cells)
        block = block.united(cell);
    const QSizeF size = block.size() * kPointsPerMillimetre;
    if (size.width() > room.area.width() + kCellTolerance ||
        size.height() > room.area.height() + kCellTolerance)
        return {{}, tooLarge(size, room.area.size())};
    const QPointF corner = centredOn(room, size).topLeft();
    LayoutCells result;
    for (const QRectF& cell : layout.cells)
        result.cells.push_back({corner + (cell.topLeft() - block.topLeft()) * kPointsPerMillimetre,
                                cell.size() * kPointsPerMillimetre});
    return result;
}

/// Rows of photos, each as high as its highest, on pages of one width.
class Shelves {
public:
    Shelves(const QSizeF& area, double gap, double narrowest) : area_(area), gap_(gap), narrowest_(narrowest)
    {
    }

    // Highest first. False if it is larger than a page.
    bool put(PackedPhoto& photo)
    {
        if (photo.size.width() > area_.width() + kCellTolerance ||
            photo.size.height() > area_.height() + kCellTolerance)
            return false;
        auto shelf =
            std::ranges::find_if(open_, [&](const Shelf& each) { return hasRoom(each, photo.size.width()); });
        if (shelf == open_.end()) {
            if (top_ > 0.0 && top_ + photo.size.height() > area_.height() + kCellTolerance) {
                ++sheet_;
                top_ = 0.0;
            }
            shelf = open_.insert(open_.end(), {sheet_, top_, 0.0});
            top_ += photo.size.height() + gap_;
        }
        place(photo, *shelf);
        // Thousands of full ones would be looked through for each photo.
        if (!hasRoom(*shelf, narrowest_))
            open_.erase(shelf);
        return true;
    }

    double length() const { return double(sheet_) * area_.height() + top_; }

private:
    struct Shelf {
        size_t sheet;
        double top;
        double used;
    };

    bool hasRoom(const Shelf& shelf, double width) const
    {
        return shelf.used + width <= area_.width() + kCellTolerance;
    }

    void place(PackedPhoto& photo, Shelf& shelf) const
    {
        photo.sheet = shelf.sheet;
        photo.corner = {shelf.used, shelf.top};
        shelf.used += photo.size.width() + gap_;
    }

    QSizeF area_;
    double gap_;
    double narrowest_; // of all that come
    std::vector<Shelf> open_;
    size_t sheet_ = 0;
    double top_ = 0.0;
};

// In one way to turn them; nothing if one does not fit.
std::optional<double> packInto(std::vector<PackedPhoto>& photos, const QSizeF& area, double gap)
{
    std::vector<size_t> order(photos.size());
    std::iota(order.begin(), order.end(), size_t(0));
    std::ranges::stable_sort(order, std::greater(), [&](size_t i) { return photos[i].size.height(); });
    double narrowest = area.width();
    for (const PackedPhoto& photo : photos)
        narrowest = std::min(narrowest, photo.size.width());
    Shelves shelves(area, gap, narrowest);
    for (const size_t i : order) {
        if (!shelves.put(photos[i]))
            return std::nullopt;
    }
    return shelves.length();
}

void turn(PackedPhoto& photo)
{
    photo.size.transpose();
    photo.isTurned = !photo.isTurned;
}

} // namespace

QRectF centredOn(const CellRoom& room, const QSizeF& size)
{
    QRectF rect(QPointF(), size);
    rect.moveCenter(QRectF(QPointF(), room.page).center());
    const auto into = [](double at, double length, double least, double most) {
        return length > most - least ? (least + most - length) / 2.0 : std::clamp(at, least, most - length);
    };
    rect.moveLeft(into(rect.left(), rect.width(), room.area.left(), room.area.right()));
    rect.moveTop(into(rect.top(), rect.height(), room.area.top(), room.area.bottom()));
    return rect;
}

LayoutCells layoutCells(const Layout& layout, const CellRoom& room)
{
    switch (layout.kind) {
    case LayoutKind::grid:
        return gridCells(layout, room);
    case LayoutKind::size:
        return sizeCells(layout, room);
    case LayoutKind::cells:
        return fixedCells(layout, room);
    case LayoutKind::single:
    case LayoutKind::pack:
        break;
    }
    return {{room.area}, {}};
}

std::vector<PackedPhoto> packed(const std::vector<QSizeF>& sizes, const CellRoom& room, double gap,
                                bool mayTurn)
{
    std::vector<PackedPhoto> best;
    std::optional<double> least;
    const auto consider = [&](auto shouldTurn) {
        std::vector<PackedPhoto> photos;
        for (const QSizeF& size : sizes) {
            photos.push_back({size});
            if (shouldTurn(size))
                turn(photos.back());
        }
        const std::optional<double> length = packInto(photos, room.area.size(), gap);
        if (length && (!least || *length < *least - kCellTolerance)) {
            least = length;
            best = std::move(photos);
        }
    };
    const double width = room.area.width() + kCellTolerance;
    consider([](const QSizeF&) { return false; });
    if (mayTurn) {
        consider([&](const QSizeF& size) { return size.height() > size.width() && size.height() <= width; });
        consider([](const QSizeF& size) { return size.width() > size.height(); });
        consider([&](const QSizeF& size) { return size.width() > width; });
    }
    for (PackedPhoto& photo : best)
        photo.corner += room.area.topLeft();
    return best;
}

} // namespace halvern
