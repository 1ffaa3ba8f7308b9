#include "ui/View.h"

#include <memory>

namespace kestrune::ui {

namespace {

class AutomaticButtonStyle final : public ButtonStyle {
public:
    Kind kind() const override { return Kind::bordered; }
    View makeBody(const Configuration& configuration) const override { return configuration.label; }
};

class LinkButtonStyle final : public ButtonStyle {
public:
    Kind kind() const override { return Kind::link; }
    View makeBody(const Configuration& configuration) const override {
        return configuration.label.foregroundStyle(Color::link);
    }
};

} // namespace

std::shared_ptr<const ButtonStyle> ButtonStyle::automatic() {
    return std::make_shared<const AutomaticButtonStyle>();
}

std::shared_ptr<const ButtonStyle> ButtonStyle::link() { return std::make_shared<const LinkButtonStyle>(); }

} // namespace kestrune::ui
