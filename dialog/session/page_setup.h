// SPDX-License-Identifier: MIT
#pragma once

#include "dialog/page/colour_plan.h"
#include "dialog/page/layout_library.h"
#include "dialog/page/page_choice.h"
#include "dialog/page/sheet_plan.h"

#include <QString>

#include <memory>

namespace halvern {

class PageFormat;
class PpdModel;
struct PageWishes;
struct SessionRequest;

/// What the user sets beside the printer's options.
struct PageSettings {
    Scaling scaling = Scaling::fit;
    PageTurn turn = PageTurn::automatic;
    int copies = 1;
    bool isCollated = true;
    PageChoice pages = {};
    QString title = {};     ///< of the job; empty: the first photo's name
    int scalePercent = 100; ///< by which another program enlarges its pages

    SheetSettings sheets = {};
    ColourSettings colours = {};

    bool operator==(const PageSettings&) const = default;
};

/// The word for it in options of a job: "fit", "fill" or "none"; and back, nothing for another word.
QString scalingWord(Scaling scaling);
std::optional<Scaling> scalingOf(const QString& word);

/// How photos are laid on the printer's sheet: what the user set, applied to a printer. Main thread only.
class PageSetup {
public:
    explicit PageSetup(const SessionRequest& request);

    const PageSettings& settings() const { return settings_; }

    void set(const PageSettings& settings) { settings_ = settings; }

    /// Takes what was given as options of a job. Only the first time: what the user sets afterwards is not
    /// taken back by the next printer.
    void takeWishes(const PageWishes& wishes);

    /// Chooses the same photos once only those at the places `left` of `count` are there.
    void keepChoice(const std::vector<size_t>& left, size_t count);

    /// The photos on sheets of the model's current size, without a model on A4 to its edges; never null. It
    /// is made again only when something is different.
    std::shared_ptr<const SheetPlan> plan(const std::vector<Photo>& photos, const std::vector<size_t>& chosen,
                                          const PpdModel* model) const;

    /// A photo alone on such a sheet.
    PageLayout layout(const Photo& photo, const PpdModel* model) const;

    /// The layouts that can be chosen.
    LayoutLibrary& layouts() { return layouts_; }

    const LayoutLibrary& layouts() const { return layouts_; }

    /// The sheet alone, as whoever is going to fill it looks at it, without a model A4 to its edges.
    PageLayout sheet(const PpdModel* model) const;

    /// The sheet as panels ask for it, turned as `first` is; null: by what the user set alone.
    std::shared_ptr<PageFormat> format(const PpdModel& model, const Sheet* first) const;

private:
    // All that a plan depends on.
    struct PlannedPhoto {
        QSizeF ownSize;
        PhotoPlacement placement;

        bool operator==(const PlannedPhoto&) const = default;
    };

    struct PlanKey {
        SheetRequest request;
        PageChoice pages;
        std::vector<size_t> chosen;
        std::vector<PlannedPhoto> photos;

        bool operator==(const PlanKey&) const = default;
    };

    SheetRequest requestFor(const Layout& layout, const PpdModel* model) const;

    LayoutLibrary layouts_;
    PageSettings settings_;
    bool hasTakenWishes_ = false;
    mutable std::optional<PlanKey> planned_;
    mutable std::shared_ptr<const SheetPlan> plan_;
};

} // namespace halvern
