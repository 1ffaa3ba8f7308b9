#include "mac/hosting/SceneView.h"

#include "mac/objc/Collections.h"
#include "mac/objc/Lifetime.h"
#include "mac/objc/NewObject.h"
#include "mac/vocabulary/Vocabulary.h"

#include <utility>

namespace kestrune::mac {

void SceneView::show(const ui::Scene& scene) {
    Views next;
    std::size_t place = 0;
    bool isArranged = scene.elements.size() == views_.size();
    for (const ui::Element& element : scene.elements) {
        std::unique_ptr<ElementView> view = takeViewFor(element, place);
        if (view) {
            view->show(element);
        } else {
            view = makeElementView(element, view_);
            isArranged = false;
        }
        next.push_back(std::move(view));
    }
    const Views removed = std::exchange(views_, std::move(next));
    if (!isArranged) {
        keepRemoved(removed);
        arrangeSubviews();
        connectKeyViews();
    }
}

// The next one that can; what comes before it is in the place of nothing any more. What is no control does
// not take the place of one behind it.
std::unique_ptr<ElementView> SceneView::takeViewFor(const ui::Element& element, std::size_t& place) {
    const bool wantsControl = std::holds_alternative<ui::ButtonElement>(element) ||
                              std::holds_alternative<ui::ToggleElement>(element);
    for (std::size_t candidate = place; candidate < views_.size(); ++candidate) {
        if (views_[candidate]->canShow(element)) {
            place = candidate + 1;
            return std::move(views_[candidate]);
        }
        if (views_[candidate]->isControl() && !wantsControl) {
            break;
        }
    }
    return nullptr;
}

// The user may be pressing one of them.
void SceneView::keepRemoved(const Views& views) {
    for (const auto& view : views) {
        if (view) {
            keepForThisTurn(view->view());
        }
    }
}

// Views are in front of each other, and read out, in the order of the elements. Those that stay are not taken
// out on the way, so the focus stays where it is.
void SceneView::arrangeSubviews() const {
    const Retained list = newObject(foundation.mutableArray);
    for (const auto& view : views_) {
        append(list, view->view());
    }
    appKit.view.setSubviews(view_, list.get());
}

void SceneView::connectKeyViews() const {
    id latest = view_;
    for (const auto& view : views_) {
        if (view->isControl()) {
            appKit.view.setNextKeyView(latest, view->view());
            latest = view->view();
        }
    }
    appKit.view.setNextKeyView(latest, view_);
}

} // namespace kestrune::mac
