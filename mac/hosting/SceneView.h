// The native view of a scene, with one view in it for each element.
#pragma once

#include "mac/hosting/ElementView.h"
#include "mac/objc/Retained.h"
#include "ui/Scene.h"

#include <memory>
#include <vector>

namespace kestrune::mac {

class SceneView {
public:
    // Shows nothing yet. `view` is borrowed and outlives it. It has its origin at its top left corner, and is
    // what the controls send their actions to.
    explicit SceneView(id view) : view_(view) {}

    id view() const { return view_; }

    // Views go on as the elements that follow theirs as far as they can, and are left alone where nothing
    // differs: a control that is pressed or has the focus stays what it is.
    void show(const ui::Scene& scene);

private:
    using Views = std::vector<std::unique_ptr<ElementView>>;

    std::unique_ptr<ElementView> takeViewFor(const ui::Element& element, std::size_t& place);
    static void keepRemoved(const Views& views);
    void arrangeSubviews() const;
    void connectKeyViews() const;

    id view_;
    Views views_;
};

} // namespace kestrune::mac
