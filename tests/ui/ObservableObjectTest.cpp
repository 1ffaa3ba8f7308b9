#include "ui/ObservableObject.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <optional>
#include <string>
#include <vector>

namespace kestrune::ui {

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

struct Model : ObservableObject {
    Published<int> step{*this, 1};
    Published<std::string> name{*this, "a"};
};

class AnObservableObject : public testing::Test {
protected:
    std::function<void()> recording(std::string name) {
        return [this, name = std::move(name)] { told.push_back(name); };
    }

    std::unique_ptr<Model> model = std::make_unique<Model>();
    std::vector<std::string> told;
};

} // namespace

TEST_F(AnObservableObject, TellsItsObserversBeforeAPropertyChanges) {
    std::vector<int> seen;
    const Observation observation = model->observe([&] { seen.push_back(model->step); });
    model->step = 2;
    EXPECT_THAT(seen, ElementsAre(1));
    EXPECT_EQ(model->step, 2);
}

TEST_F(AnObservableObject, TellsThemAlsoWhenTheValueIsTheSame) {
    const Observation observation = model->observe(recording("change"));
    model->step = 1;
    model->name = "a";
    EXPECT_THAT(told, ElementsAre("change", "change"));
    EXPECT_EQ(model->name.value(), "a");
}

TEST_F(AnObservableObject, TellsThemInTheOrderOfTheirRegistration) {
    const Observation first = model->observe(recording("first"));
    const Observation second = model->observe(recording("second"));
    const Observation third = model->observe(recording("third"));
    model->willChange();
    EXPECT_THAT(told, ElementsAre("first", "second", "third"));
}

TEST_F(AnObservableObject, TellsNobodyWhoseObservationHasEnded) {
    std::optional<Observation> first = model->observe(recording("first"));
    const Observation second = model->observe(recording("second"));
    first.reset();
    model->willChange();
    EXPECT_THAT(told, ElementsAre("second"));
}

TEST_F(AnObservableObject, TellsAnObserverUntilItsLastObservationEnds) {
    std::optional<Observation> first = model->observe(recording("change"));
    std::optional<Observation> copy = first;
    first.reset();
    model->willChange();
    copy = Observation();
    model->willChange();
    EXPECT_THAT(told, ElementsAre("change"));
}

TEST_F(AnObservableObject, TellsAnObserverThatIsAddedMeanwhileTheNextTime) {
    std::vector<Observation> added;
    const Observation first = model->observe([&] {
        told.emplace_back("first");
        added.push_back(model->observe(recording("added")));
    });
    model->willChange();
    EXPECT_THAT(told, ElementsAre("first"));
    told.clear();
    model->willChange();
    EXPECT_THAT(told, ElementsAre("first", "added"));
}

TEST_F(AnObservableObject, LetsAnObserverEndTheObservationsOfOthers) {
    std::optional<Observation> before = model->observe(recording("before"));
    std::optional<Observation> after;
    const Observation ending = model->observe([&] {
        told.emplace_back("ending");
        before.reset();
        after.reset();
    });
    after = model->observe(recording("after"));
    const Observation last = model->observe(recording("last"));
    model->willChange();
    EXPECT_THAT(told, ElementsAre("before", "ending", "last"));
    model->willChange();
    EXPECT_THAT(told, ElementsAre("before", "ending", "last", "ending", "last"));
}

TEST_F(AnObservableObject, ForgetsNobodyWhenAnObserverIsExchangedMeanwhile) {
    std::optional<Observation> exchanged = model->observe(recording("before"));
    const Observation exchanging = model->observe([&] {
        told.emplace_back("exchanging");
        exchanged.reset();
        exchanged = model->observe(recording("added"));
    });
    const Observation last = model->observe(recording("last"));
    model->willChange();
    EXPECT_THAT(told, ElementsAre("before", "exchanging", "last"));
}

TEST_F(AnObservableObject, LetsAnObserverEndItsOwnObservation) {
    // Longer than a string keeps in itself, so that a tool finds a use after its end.
    const std::string name = "an observer that is called once and never again";
    std::optional<Observation> own;
    own = model->observe([&, name] {
        own.reset();
        model->willChange();
        told.push_back(name);
    });
    model->willChange();
    model->willChange();
    EXPECT_THAT(told, ElementsAre(name));
}

TEST_F(AnObservableObject, LetsAnObserverChangeItAgain) {
    int changes = 0;
    const Observation first = model->observe([&] {
        told.emplace_back("first");
        if (++changes < 3) {
            model->name = "b";
        }
    });
    const Observation second = model->observe(recording("second"));
    model->step = 2;
    EXPECT_THAT(told, ElementsAre("first", "first", "first", "second", "second", "second"));
    EXPECT_EQ(model->step, 2);
    EXPECT_EQ(model->name.value(), "b");
}

TEST_F(AnObservableObject, LetsAnObserverLetGoOfIt) {
    const Observation first = model->observe([&] { model.reset(); });
    const Observation second = model->observe(recording("second"));
    model->willChange();
    EXPECT_EQ(model, nullptr);
    EXPECT_THAT(told, ElementsAre("second"));
}

TEST_F(AnObservableObject, MayEndBeforeItsObservations) {
    const Observation observation = model->observe(recording("change"));
    model.reset();
    EXPECT_THAT(told, IsEmpty());
}

} // namespace kestrune::ui
