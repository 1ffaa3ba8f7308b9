#include "ui/hosting/ViewHost.h"

#include "tests/ui/LayoutFixture.h"

#include <memory>

namespace kestrune::ui {

namespace {

struct Counter : ObservableObject {
    Published<int> count{*this, 0};
};

class AViewHost : public LayoutFixture {
protected:
    AViewHost() {
        create([this] { return VerbatimText(std::to_string(model->count)); });
    }

    void create(std::function<View()> body) {
        host = std::make_unique<ViewHost>(RootView{std::move(body), model}, context, [this] { ++scheduled; });
        scheduled = 0;
    }

    std::string shown() const { return std::get<TextElement>(host->scene().elements.at(0)).text.string(); }

    std::shared_ptr<Counter> model = std::make_shared<Counter>();
    int scheduled = 0;
    std::unique_ptr<ViewHost> host;
};

} // namespace

TEST_F(AViewHost, HasASceneFromTheStart) {
    EXPECT_EQ(shown(), "0");
    EXPECT_EQ(host->scene().size, (Size{7, 16}));
}

TEST_F(AViewHost, AsksToBeRenderedWhenItsModelChangesAndDoesNotRenderAtOnce) {
    model->count = 1;
    EXPECT_EQ(scheduled, 1);
    EXPECT_EQ(shown(), "0");
}

TEST_F(AViewHost, AsksOnceHoweverOftenItsModelChanges) {
    model->count = 1;
    model->count = 2;
    EXPECT_EQ(scheduled, 1);
    EXPECT_TRUE(host->render());
    EXPECT_EQ(shown(), "2");
}

TEST_F(AViewHost, AsksAgainAfterItWasRendered) {
    model->count = 1;
    host->render();
    model->count = 2;
    EXPECT_EQ(scheduled, 2);
}

TEST_F(AViewHost, KnowsWhetherItLooksDifferent) {
    model->count = 0;
    EXPECT_FALSE(host->render());
    model->count = 1;
    EXPECT_TRUE(host->render());
    EXPECT_FALSE(host->render());
}

TEST_F(AViewHost, LosesNoChangeThatIsMadeWhileItIsRendered) {
    create([this] {
        const int before = model->count;
        if (before == 1) {
            model->count = 2;
        }
        return VerbatimText(std::to_string(before));
    });
    model->count = 1;
    host->render();
    EXPECT_EQ(shown(), "1");
    EXPECT_EQ(scheduled, 2);
    host->render();
    EXPECT_EQ(shown(), "2");
    EXPECT_EQ(scheduled, 2);
}

TEST_F(AViewHost, LosesNoChangeThatIsMadeForItsFirstScene) {
    int asked = 0;
    const ViewHost early({[this] {
                              model->count = 1;
                              return Text("a");
                          },
                          model},
                         context, [&asked] { ++asked; });
    EXPECT_EQ(asked, 1);
}

TEST_F(AViewHost, NeedsNoModel) {
    ViewHost still({[] { return Text("a"); }, nullptr}, context, [] {});
    EXPECT_EQ(still.scene().size, (Size{7, 16}));
    EXPECT_FALSE(still.render());
}

TEST_F(AViewHost, LooksAtItsModelNoLongerThanItLives) {
    host.reset();
    model->count = 1;
    EXPECT_EQ(scheduled, 0);
}

TEST_F(AViewHost, RunsTheActionOfAButton) {
    create([this] { return Button("Count", [this] { model->count = model->count + 1; }); });
    host->press(0);
    EXPECT_EQ(model->count, 1);
    EXPECT_EQ(scheduled, 1);
}

TEST_F(AViewHost, TellsASwitchItsNewState) {
    create([this] {
        return Toggle("One", model->count == 1, [this](bool isOn) { model->count = isOn ? 1 : 0; });
    });
    host->flip(0, true);
    EXPECT_EQ(model->count, 1);
    EXPECT_TRUE(host->render());
    host->flip(0, false);
    EXPECT_EQ(model->count, 0);
}

TEST_F(AViewHost, IgnoresANumberThatNoControlHas) {
    int ran = 0;
    create([&ran] {
        return HStack({}, {Button("a", [&ran] { ++ran; }), Toggle("b", true, [&ran](bool) { ++ran; })});
    });
    host->press(1);
    host->flip(1, false);
    EXPECT_EQ(ran, 0);
}

TEST_F(AViewHost, IgnoresAControlThatDoesNothing) {
    create([] { return HStack({}, {Button("a", nullptr), Toggle("b", true, nullptr)}); });
    host->press(0);
    host->flip(0, false);
    EXPECT_EQ(scheduled, 0);
}

TEST_F(AViewHost, RunsTheActionsOfTheLatestRendering) {
    std::vector<int> pressed;
    create(
        [&] { return Button("a", [&pressed, count = model->count.value()] { pressed.push_back(count); }); });
    model->count = 1;
    EXPECT_FALSE(host->render());
    host->press(0);
    EXPECT_EQ(pressed, std::vector<int>{1});
}

TEST_F(AViewHost, KeepsAnActionAliveThatRendersIt) {
    std::string told;
    create([&, name = std::make_shared<std::string>("alive")] {
        return Button("a", [&, name] {
            model->count = 1;
            host->render();
            told = *name;
        });
    });
    host->press(0);
    EXPECT_EQ(told, "alive");
}

TEST_F(AViewHost, KeepsAnActionAliveThatEndsIt) {
    std::string told;
    const auto ending = [&](const std::shared_ptr<std::string>& name) {
        host.reset();
        told = *name;
    };
    create([&, name = std::make_shared<std::string>("pressed")] {
        return Button("a", [&, name] { ending(name); });
    });
    host->press(0);
    EXPECT_EQ(told, "pressed");
    EXPECT_EQ(host, nullptr);

    create([&, name = std::make_shared<std::string>("flipped")] {
        return Toggle("a", true, [&, name](bool) { ending(name); });
    });
    host->flip(0, false);
    EXPECT_EQ(told, "flipped");
    EXPECT_EQ(host, nullptr);
}

} // namespace kestrune::ui
