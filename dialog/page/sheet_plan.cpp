// SPDX-License-Identifier: MIT
#include "dialog/page/sheet_plan.h"

#include "dialog/page/layout_cells.h"

#include <QCoreApplication>

#include <algorithm>
#include <array>
#include <cmath>
#include <utility>

namespace halvern {

namespace {

struct SheetPlanWords {
    Q_DECLARE_TR_FUNCTIONS(Layouts)
};

constexpr double kMarkDistance = 0.5;                         // millimetres, from the photo
constexpr double kMarkLength = kCutMarkReach - kMarkDistance; // and shorter where there is no room
constexpr double kCaptionShare = 0.1;                         // of a place's shorter edge
constexpr double kLeastCaption = 3.0;                         // millimetres
constexpr double kMostCaption = 6.0;                          // millimetres
constexpr double kPaperTolerance = 0.5; // millimetres, by which PPDs are wrong about a paper

double points(double millimetres)
{
    return millimetres * kPointsPerMillimetre;
}

/// A photo as often as it is printed.
struct Wanted {
    size_t photo;
    int number;
};

std::vector<Wanted> wantedPhotos(const std::vector<Photo>& photos, const std::vector<size_t>& chosen)
{
    std::vector<Wanted> wanted;
    int number = 0;
    for (const size_t place : chosen) {
        const PhotoPlacement placement = held(photos[place].placement);
        if (!placement.isIncluded)
            continue;
        ++number;
        wanted.insert(wanted.end(), size_t(placement.copies), {place, number});
    }
    return wanted;
}

// Each as often as it is printed.
size_t wantedCount(const std::vector<Photo>& photos, const std::vector<size_t>& chosen)
{
    size_t count = 0;
    for (const size_t place : chosen) {
        const PhotoPlacement placement = held(photos[place].placement);
        count += placement.isIncluded ? size_t(placement.copies) : 0;
    }
    return count;
}

// The sentence about too many; empty if they are not.
QString countProblem(size_t count)
{
    return count <= kMostPlaces
               ? QString()
               : SheetPlanWords::tr(
                     "These are %1 photos on all sheets, and a job takes %2. Choose fewer photos, or "
                     "fewer copies of each.")
                     .arg(count)
                     .arg(kMostPlaces);
}

/// Plans the sheets of one request.
class Planner {
public:
    Planner(const SheetRequest& request, const std::vector<Photo>& photos, std::vector<Wanted> wanted)
        : request_(request), photos_(photos), wanted_(std::move(wanted))
    {
    }

    SheetPlan plan()
    {
        // Turned or not, as much of it is left.
        if (roomOn(pageTurned(false)).area.isEmpty())
            return {{},
                    SheetPlanWords::tr(
                        "With margins of %1 mm nothing is left of this paper. Choose smaller margins, "
                        "or a larger paper.")
                        .arg(request_.settings.margin)};
        switch (request_.layout.kind) {
        case LayoutKind::single:
            for (size_t i = 0; i < wanted_.size() && plan_.problem.isEmpty(); ++i)
                addSingle(wanted_[i]);
            break;
        case LayoutKind::pack:
            addPacked();
            break;
        case LayoutKind::grid:
        case LayoutKind::size:
        case LayoutKind::cells:
            addCells();
            break;
        }
        if (!plan_.problem.isEmpty())
            plan_.sheets.clear();
        return std::move(plan_);
    }

private:
    QSizeF ownSize(size_t photo) const
    {
        return turnedSize(photos_[photo].ownSize, held(photos_[photo].placement).quarterTurns);
    }

    CellRoom roomOn(const PageLayout& page) const
    {
        const double margin = points(request_.settings.margin);
        if (margin <= 0.0)
            return {page.page, page.imageable};
        // Sides that have passed each other would be taken for a rectangle.
        if (2.0 * margin >= std::min(page.page.width(), page.page.height()))
            return {page.page, {}};
        const QRectF whole(QPointF(), page.page);
        return {page.page, page.imageable.intersected(whole.adjusted(margin, margin, -margin, -margin))};
    }

    PageLayout pageTurned(bool turned) const { return emptyPage(request_.paper, request_.imageable, turned); }

    // Only what is not just the printer's own area is rounded: that is the printer's business.
    QRectF inDots(const QRectF& rect) const
    {
        const double dot = kPointsPerInch / std::max(request_.resolution, 1);
        const auto rounded = [&](double at) { return std::round(at / dot) * dot; };
        return {QPointF(rounded(rect.left()), rounded(rect.top())),
                QPointF(rounded(rect.right()), rounded(rect.bottom()))};
    }

    void addSingle(const Wanted& wanted)
    {
        const PageLayout own = layOut({request_.paper, request_.imageable, photos_[wanted.photo].ownSize,
                                       request_.scaling, request_.turn, photos_[wanted.photo].placement});
        Sheet sheet;
        sheet.page = pageTurned(own.turned);
        const CellRoom room = roomOn(sheet.page);
        QRectF cell = room.area;
        if (!request_.settings.photo.isEmpty()) {
            QSizeF size = request_.settings.photo * kPointsPerMillimetre;
            if (areAcross(size, ownSize(wanted.photo)))
                size.transpose();
            cell = centredOn(room, size);
            if (request_.settings.corner)
                cell.moveTopLeft(*request_.settings.corner * kPointsPerMillimetre);
            plan_.problem = outsideProblem(cell, room.area);
            cell = inDots(cell);
        }
        add(sheet, wanted, cell, 0);
        finish(std::move(sheet));
    }

    static QString outsideProblem(const QRectF& cell, const QRectF& area)
    {
        const double spare = points(kPaperTolerance);
        if (area.adjusted(-spare, -spare, spare, spare).contains(cell))
            return {};
        const auto millimetres = [](double length) {
            return QString::number(length / kPointsPerMillimetre, 'f', 1);
        };
        return SheetPlanWords::tr(
                   "A photo of %1 × %2 mm at %3, %4 mm is not all on what can be printed of this page: "
                   "%5 × %6 mm at %7, %8 mm. Choose a smaller size, another place, or another paper.")
            .arg(millimetres(cell.width()), millimetres(cell.height()), millimetres(cell.left()),
                 millimetres(cell.top()), millimetres(area.width()), millimetres(area.height()),
                 millimetres(area.left()), millimetres(area.top()));
    }

    // The photo with its border and its caption goes into the cell.
    void add(Sheet& sheet, const Wanted& wanted, const QRectF& cell, int layoutsTurns)
    {
        const SheetSettings& settings = request_.settings;
        PlacedPhoto placed;
        placed.photo = wanted.photo;
        placed.number = wanted.number;
        placed.cell = cell;
        placed.layout = sheet.page;
        const double shorter = std::min(cell.width(), cell.height());
        const double text =
            settings.caption.isEmpty()
                ? 0.0
                : std::clamp(shorter * kCaptionShare, points(kLeastCaption), points(kMostCaption));
        const double border = std::min(points(settings.border), (shorter - text) / 3.0);
        QRectF frame = layoutsTurns == 0 ? cell.adjusted(0.0, 0.0, 0.0, -text) : cell.adjusted(text, 0, 0, 0);
        placed.layout.frame = frame.adjusted(border, border, -border, -border);
        layInFrame(placed.layout, {photos_[wanted.photo].ownSize, request_.scaling, settings.percent / 100.0,
                                   layoutsTurns, photos_[wanted.photo].placement});
        placed.outline = placed.layout.visible().adjusted(-border, -border, border, border);
        if (text > 0.0)
            placed.caption = captionBeside(placed.outline, cell, text, layoutsTurns);
        sheet.usedLength = std::max(sheet.usedLength, cell.bottom());
        sheet.photos.push_back(placed);
    }

    // Under the photo as one reads it: a photo that the layout has turned stands on the page's left.
    static QRectF captionBeside(const QRectF& outline, const QRectF& cell, double text, int layoutsTurns)
    {
        if (layoutsTurns == 0)
            return {cell.left(), outline.bottom(), cell.width(), text};
        return {outline.left() - text, cell.top(), text, cell.height()};
    }

    int turnsFor(size_t photo, const QRectF& cell) const
    {
        return request_.layout.turnsPhotos && areAcross(cell.size(), ownSize(photo)) ? 1 : 0;
    }

    // How much paper is photo: what there is of it with the photos whole.
    double printedArea(const std::vector<QRectF>& cells) const
    {
        double area = 0.0;
        for (size_t i = 0; i < wanted_.size(); ++i) {
            const QRectF& cell = cells[request_.settings.repeats ? 0 : i % cells.size()];
            const QSizeF own = turnedSize(ownSize(wanted_[i].photo), turnsFor(wanted_[i].photo, cell));
            const QSizeF size = own.scaled(cell.size(), Qt::KeepAspectRatio);
            area += size.width() * size.height();
        }
        return area;
    }

    // The upright page, unless the other one is better.
    bool isBetterTurned(const LayoutCells& upright, const LayoutCells& turned) const
    {
        if (request_.turn != PageTurn::automatic)
            return request_.turn == PageTurn::landscape;
        if (upright.cells.empty() || turned.cells.empty())
            return upright.cells.empty() && !turned.cells.empty();
        if (upright.cells.size() != turned.cells.size())
            return turned.cells.size() > upright.cells.size();
        return printedArea(turned.cells) > printedArea(upright.cells) * 1.001;
    }

    void addCells()
    {
        const LayoutCells choices[] = {layoutCells(request_.layout, roomOn(pageTurned(false))),
                                       layoutCells(request_.layout, roomOn(pageTurned(true)))};
        const bool turned = isBetterTurned(choices[0], choices[1]);
        const std::vector<QRectF>& cells = choices[turned ? 1 : 0].cells;
        plan_.problem = choices[turned ? 1 : 0].problem;
        if (cells.empty())
            return;
        const bool repeats = request_.settings.repeats;
        const size_t each = cells.size();
        const size_t count = repeats ? wanted_.size() * each : wanted_.size();
        plan_.problem = countProblem(count);
        for (size_t first = 0; first < count && plan_.problem.isEmpty(); first += each) {
            Sheet sheet;
            sheet.page = pageTurned(turned);
            for (size_t i = first; i < std::min(first + each, count); ++i) {
                const Wanted& wanted = wanted_[repeats ? i / each : i];
                const QRectF cell = inDots(cells[i - first]);
                add(sheet, wanted, cell, turnsFor(wanted.photo, cell));
            }
            finish(std::move(sheet));
        }
    }

    void addPacked()
    {
        const PageLayout page = pageTurned(request_.turn == PageTurn::landscape);
        const QSizeF box = request_.layout.photo * kPointsPerMillimetre;
        std::vector<QSizeF> sizes;
        for (const Wanted& wanted : wanted_) {
            const QSizeF own = ownSize(wanted.photo);
            const QSizeF room = areAcross(box, own) ? box.transposed() : box;
            sizes.push_back(request_.scaling == Scaling::fill ? room : own.scaled(room, Qt::KeepAspectRatio));
        }
        const std::vector<PackedPhoto> places =
            packed(sizes, roomOn(page), points(request_.layout.gap), request_.layout.turnsPhotos);
        if (places.empty() && !wanted_.empty()) {
            Layout one = request_.layout;
            one.kind = LayoutKind::size;
            plan_.problem = layoutCells(one, roomOn(page)).problem;
            if (plan_.problem.isEmpty())
                plan_.problem =
                    SheetPlanWords::tr("Not every photo fits on this paper. Choose a smaller size.");
            return;
        }
        size_t sheets = 0;
        for (const PackedPhoto& place : places)
            sheets = std::max(sheets, place.sheet + 1);
        std::vector<Sheet> planned(sheets);
        for (size_t i = 0; i < places.size(); ++i) {
            Sheet& sheet = planned[places[i].sheet];
            if (sheet.photos.empty())
                sheet.page = page;
            add(sheet, wanted_[i], inDots({places[i].corner, places[i].size}), places[i].isTurned ? 1 : 0);
        }
        for (Sheet& sheet : planned)
            finish(std::move(sheet));
    }

    void finish(Sheet sheet)
    {
        sheet.hasLine = request_.settings.hasLine;
        if (request_.settings.hasCutMarks)
            addCutMarks(sheet);
        plan_.sheets.push_back(std::move(sheet));
    }

    // Where each place has a size, that is what is cut out. Elsewhere it is the photo, with its caption.
    QRectF cutRect(const PlacedPhoto& placed) const
    {
        const LayoutKind kind = request_.layout.kind;
        const bool hasSize = kind == LayoutKind::size || kind == LayoutKind::cells;
        return hasSize ? placed.cell : placed.outline.united(placed.caption);
    }

    // At each corner of what is cut out, outwards, where no photo is in the way.
    void addCutMarks(Sheet& sheet) const
    {
        std::vector<QRectF> cuts;
        for (const PlacedPhoto& placed : sheet.photos)
            cuts.push_back(cutRect(placed));
        std::ranges::sort(cuts, {}, &QRectF::top);
        double highest = 0.0;
        for (const QRectF& cut : cuts)
            highest = std::max(highest, cut.height());
        for (const QRectF& cut : cuts) {
            const std::vector<QRectF> near = nearTo(cut, cuts, highest);
            const std::array<std::pair<QPointF, QPointF>, 4> corners{
                std::pair{cut.topLeft(), QPointF(-1.0, -1.0)},
                {cut.topRight(), QPointF(1.0, -1.0)},
                {cut.bottomLeft(), QPointF(-1.0, 1.0)},
                {cut.bottomRight(), QPointF(1.0, 1.0)}};
            for (const auto& [corner, away] : corners) {
                addMark(sheet, near, corner, {away.x(), 0.0});
                addMark(sheet, near, corner, {0.0, away.y()});
            }
        }
    }

    // Those that a mark of this one can meet. They are sorted by their tops.
    static std::vector<QRectF> nearTo(const QRectF& cut, const std::vector<QRectF>& cuts, double highest)
    {
        const double reach = points(kCutMarkReach);
        const QRectF marked = cut.adjusted(-reach, -reach, reach, reach);
        std::vector<QRectF> near;
        auto other = std::ranges::lower_bound(cuts, marked.top() - highest, {}, &QRectF::top);
        for (; other != cuts.end() && other->top() <= marked.bottom(); ++other) {
            if (other->intersects(marked))
                near.push_back(*other);
        }
        return near;
    }

    static void addMark(Sheet& sheet, const std::vector<QRectF>& others, const QPointF& corner,
                        const QPointF& direction)
    {
        for (const double share : {1.0, 0.5, 0.25}) {
            const QPointF from = corner + direction * points(kMarkDistance);
            const QPointF to = from + direction * (points(kMarkLength) * share);
            const double near = points(kMarkDistance) / 2.0;
            const QRectF room =
                QRectF(from, to).normalized().adjusted(-near / 2.0, -near / 2.0, near / 2.0, near / 2.0);
            const bool isFree =
                std::ranges::none_of(others, [&](const QRectF& other) { return other.intersects(room); });
            if (isFree && sheet.page.imageable.contains(from) && sheet.page.imageable.contains(to)) {
                sheet.cutMarks.push_back({from, to});
                return;
            }
        }
    }

    const SheetRequest& request_;
    const std::vector<Photo>& photos_;
    std::vector<Wanted> wanted_;
    SheetPlan plan_;
};

} // namespace

size_t SheetPlan::photoCount() const
{
    size_t count = 0;
    for (const Sheet& sheet : sheets)
        count += sheet.photos.size();
    return count;
}

SheetPlan planSheets(const SheetRequest& request, const std::vector<Photo>& photos,
                     const std::vector<size_t>& chosen)
{
    const size_t count = wantedCount(photos, chosen);
    if (count == 0 && !chosen.empty())
        return {{}, SheetPlanWords::tr("All photos are left out. Include at least one of them.")};
    if (const QString problem = countProblem(count); !problem.isEmpty())
        return {{}, problem};
    return Planner(request, photos, wantedPhotos(photos, chosen)).plan();
}

SheetPlan withChosenSheets(SheetPlan plan, const PageChoice& choice)
{
    if (!plan.problem.isEmpty())
        return plan;
    if (choice.parity == PageParity::odd || choice.parity == PageParity::even) {
        std::vector<Sheet> chosen;
        for (size_t i = choice.parity == PageParity::odd ? 0 : 1; i < plan.sheets.size(); i += 2)
            chosen.push_back(std::move(plan.sheets[i]));
        if (chosen.empty() && !plan.sheets.empty())
            plan.problem =
                SheetPlanWords::tr("There is one sheet only, and none with an even number. Choose all "
                                   "sheets, or more photos.");
        plan.sheets = std::move(chosen);
    }
    if (choice.isReversed)
        std::ranges::reverse(plan.sheets);
    return plan;
}

} // namespace halvern
