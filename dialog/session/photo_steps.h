// SPDX-License-Identifier: MIT
#pragma once

#include "dialog/session/page_setup.h"

#include <functional>
#include <memory>

namespace halvern {

class OptionChanges;
class PhotoLoader;

/// Changes of the photos and of their sheets, each as one step that undoing takes back with the last change
/// of the options: whichever came last. Main thread only.
class PhotoSteps {
public:
    enum class Kind {
        layout,
        size, ///< or place; such steps without another one between are one
        crop, ///< of all photos
        order,
        removal,
        choice, ///< which ones are printed
    };

    /// All outlive it.
    PhotoSteps(PhotoLoader& photos, PageSetup& page, OptionChanges& options);

    /// Does `change`, which changes the photos or the page's settings. False if it has changed nothing.
    bool take(Kind kind, const std::function<void()>& change);

private:
    struct Step;

    void undo(const Step& step);
    PageSettings pageBefore(const Step& step) const;
    std::vector<Photo> photosBefore(const Step& step) const;

    PhotoLoader& photos_;
    PageSetup& page_;
    OptionChanges& options_;
    std::weak_ptr<Step> last_; // as long as it can be undone
};

/// The list with the photos at these places before the one at `before`; its size: at the end.
std::vector<size_t> movedOrder(size_t count, std::vector<size_t> places, size_t before);

} // namespace halvern
