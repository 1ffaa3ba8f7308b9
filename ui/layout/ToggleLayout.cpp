#include "ui/View.h"
#include "ui/layout/Node.h"
#include "ui/layout/TextContent.h"

#include <functional>
#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace kestrune::ui {

namespace {

constexpr double LabelGap = 8;

class SwitchItem final : public LeafItem {
public:
    SwitchItem(ToggleElement element, const Size& size, std::function<void(bool)> set)
        : element_(std::move(element)), size_(size), set_(std::move(set)) {}

private:
    Size measure(const ProposedSize& /*proposal*/) override { return size_; }

    void show(const Rect& frame, Rendering& rendering) override {
        element_.frame = frame;
        element_.action = rendering.switches.size();
        rendering.switches.push_back(std::move(set_));
        rendering.scene.elements.emplace_back(std::move(element_));
    }

    ToggleElement element_;
    Size size_;
    std::function<void(bool)> set_;
};

struct SwitchNode final : Node {
    SwitchNode(std::string_view titleKey, bool state, std::function<void(bool)> whenFlipped)
        : key(titleKey), isOn(state), set(std::move(whenFlipped)) {}

    LayoutItemPointer resolve(const Environment& environment, LayoutPass& pass) const override {
        // In a grouped form the system's switches are small.
        const ControlSize size = environment.controlSize.value_or(
            environment.isInGroupedForm ? ControlSize::small : ControlSize::regular);
        ToggleElement element;
        element.title = controlTitle(key, pass.context);
        element.size = size;
        element.isOn = isOn;
        return std::make_unique<SwitchItem>(std::move(element), pass.context.measurer.measureSwitch(size),
                                            set);
    }

    std::string key;
    bool isOn;
    std::function<void(bool)> set;
};

struct ToggleNode final : Node {
    ToggleNode(std::string_view titleKey, bool isOn, std::function<void(bool)> set)
        : label(Text(titleKey).accessibilityHidden()),
          control(std::make_shared<SwitchNode>(titleKey, isOn, std::move(set))) {}

    LayoutItemPointer resolve(const Environment& environment, LayoutPass& pass) const override {
        std::vector<View> row;
        row.push_back(label);
        if (environment.isInGroupedForm) {
            row.push_back(Spacer(LabelGap));
        }
        row.push_back(control);
        return ui::resolve(HStack({.spacing = environment.isInGroupedForm ? 0 : LabelGap}, std::move(row)),
                           environment, pass);
    }

    View label; // whose text the switch reads out itself
    View control;
};

} // namespace

View Toggle(std::string_view titleKey, bool isOn, std::function<void(bool)> set) {
    return View(std::make_shared<ToggleNode>(titleKey, isOn, std::move(set)));
}

} // namespace kestrune::ui
