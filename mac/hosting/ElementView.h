// Native views that show the elements of a scene.
#pragma once

#include "mac/objc/Retained.h"
#include "ui/Scene.h"

#include <memory>
#include <optional>
#include <utility>
#include <variant>

namespace kestrune::mac {

class ElementView {
public:
    virtual ~ElementView() = default;

    ElementView(const ElementView&) = delete;
    ElementView& operator=(const ElementView&) = delete;

    id view() const { return view_.get(); }

    // Whether the user can press it and the keyboard can focus it.
    virtual bool isControl() const { return false; }

    // Whether the view can go on as that element: one of the same kind and, for a control, what the user
    // takes for the same one.
    virtual bool canShow(const ui::Element& element) const = 0;

    // Sets what differs from the element before.
    virtual void show(const ui::Element& element) = 0;

protected:
    explicit ElementView(Retained view) : view_(std::move(view)) {}

private:
    Retained view_;
};

// A view for one kind of element.
template <typename Shown>
class ViewOf : public ElementView {
public:
    bool canShow(const ui::Element& element) const override {
        const auto* const candidate = std::get_if<Shown>(&element);
        return candidate != nullptr && (!shown_ || isSame(*shown_, *candidate));
    }

    void show(const ui::Element& element) final {
        const auto& next = std::get<Shown>(element);
        update(next);
        shown_ = next;
    }

protected:
    using ElementView::ElementView;

    virtual bool isSame(const Shown& /*before*/, const Shown& /*next*/) const { return true; }
    virtual void update(const Shown& next) = 0;

    // Of the element before.
    template <typename Value>
    bool differs(const Shown& next, Value Shown::*member) const {
        return !shown_ || !((*shown_).*member == next.*member);
    }

    // Absent until the first one is shown.
    const std::optional<Shown>& shown() const { return shown_; }

private:
    std::optional<Shown> shown_;
};

// A view that shows the element. A control sends `pressButton:` or `flipSwitch:` to `target`, which it does
// not retain, and its tag is the element's action.
std::unique_ptr<ElementView> makeElementView(const ui::Element& element, id target);

} // namespace kestrune::mac
