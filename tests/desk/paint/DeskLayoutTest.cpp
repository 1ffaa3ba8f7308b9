#include "desk/paint/DeskLayout.h"

#include "tests/base/UnusualNumbers.h"
#include "tests/desk/paint/PaintedPicture.h"

#include <gtest/gtest.h>

#include <cmath>
#include <random>
#include <vector>

namespace kestrune::desk {
namespace {

class RandomNumbers {
public:
    explicit RandomNumbers(std::uint32_t seed) : engine_(seed) {}

    double between(double minimum, double maximum) {
        return minimum + (maximum - minimum) * (static_cast<double>(engine_()) / 4294967296.0);
    }
    int below(int count) { return static_cast<int>(between(0, count)); }

private:
    std::mt19937 engine_;
};

// Displays that do not overlap: each is put beyond one edge of all those before it.
std::vector<Rect> randomDisplays(RandomNumbers& random) {
    std::vector<Rect> displays{{0, 0, random.between(300, 4000), random.between(300, 3000)}};
    Rect all = displays.front();
    const int count = 1 + random.below(7);
    while (static_cast<int>(displays.size()) < count) {
        const Size size{random.between(4, 4000), random.between(4, 3000)};
        Rect next{0, 0, size.width, size.height};
        switch (random.below(4)) {
        case 0:
            next.origin = {all.maxX(), random.between(all.minY(), all.maxY())};
            break;
        case 1:
            next.origin = {all.minX() - size.width, random.between(all.minY(), all.maxY())};
            break;
        case 2:
            next.origin = {random.between(all.minX(), all.maxX()), all.maxY()};
            break;
        default:
            next.origin = {random.between(all.minX(), all.maxX()), all.minY() - size.height};
            break;
        }
        displays.push_back(next);
        const Point corner{std::min(all.minX(), next.minX()), std::min(all.minY(), next.minY())};
        all = {corner.x, corner.y, std::max(all.maxX(), next.maxX()) - corner.x,
               std::max(all.maxY(), next.maxY()) - corner.y};
    }
    return displays;
}

Size randomWindow(RandomNumbers& random) { return {random.between(400, 2600), random.between(360, 1600)}; }

Point randomPointIn(const Rect& rect, RandomNumbers& random) {
    return {random.between(rect.minX(), rect.maxX()), random.between(rect.minY(), rect.maxY())};
}

TEST(DeskLayout, ShowsEveryDisplayToOneScaleBetweenHeaderAndFooter) {
    RandomNumbers random{1};
    for (int round = 0; round < 500; ++round) {
        const std::vector<Rect> displays = randomDisplays(random);
        const bool hasStory = random.below(2) == 0;
        const DeskLayout layout{randomWindow(random), displays, hasStory};
        EXPECT_GE(layout.content().minY(), layout.header().maxY());
        EXPECT_GE(layout.content().minY(), layout.story().maxY());
        EXPECT_LE(layout.content().maxY(), layout.footer().minY());
        for (std::size_t index = 0; index < displays.size(); ++index) {
            const DisplayPlace* const place = layout.place(index);
            ASSERT_NE(place, nullptr);
            EXPECT_TRUE(encloses(layout.content(), place->slot, 1e-6));
            EXPECT_TRUE(encloses(place->slot, place->frame, 0.5));
            EXPECT_TRUE(encloses(place->frame, place->screen));
            EXPECT_FALSE(place->screen.isEmpty());
            EXPECT_NEAR(place->slot.width(), displays[index].width() * layout.scale(), 1e-6);
            EXPECT_NEAR(place->slot.height(), displays[index].height() * layout.scale(), 1e-6);
        }
    }
}

TEST(DeskLayout, FillsTheContentInOneDirectionWhenDisplaysAreLarge) {
    const std::vector<Rect> displays{{0, 0, 3840, 2160}, {3840, 0, 3840, 2160}};
    const DeskLayout layout{{1440, 900}, displays};
    EXPECT_NEAR(layout.place(0)->slot.minX(), layout.content().minX(), 1e-9);
    EXPECT_NEAR(layout.place(1)->slot.maxX(), layout.content().maxX(), 1e-9);
}

TEST(DeskLayout, NeverEnlarges) {
    const std::vector<Rect> displays{{0, 0, 200, 100}};
    EXPECT_EQ((DeskLayout{{1440, 900}, displays}.scale()), 1);
}

TEST(DeskLayout, MapsAPointOfADisplayIntoItsScreenAndBack) {
    RandomNumbers random{2};
    for (int round = 0; round < 500; ++round) {
        const std::vector<Rect> displays = randomDisplays(random);
        const DeskLayout layout{randomWindow(random), displays};
        for (std::size_t index = 0; index < displays.size(); ++index) {
            const Point global = randomPointIn(displays[index], random);
            const Point window = layout.toWindow(global);
            EXPECT_TRUE(encloses(layout.place(index)->screen, {window.x, window.y, 0, 0}, 1e-9));
            const Point back = layout.toGlobal(window);
            EXPECT_NEAR(back.x, global.x, 1e-6);
            EXPECT_NEAR(back.y, global.y, 1e-6);
        }
    }
}

TEST(DeskLayout, MapsAPointOfAScreenToItsDisplayAndBack) {
    RandomNumbers random{3};
    for (int round = 0; round < 500; ++round) {
        const std::vector<Rect> displays = randomDisplays(random);
        const DeskLayout layout{randomWindow(random), displays};
        for (std::size_t index = 0; index < displays.size(); ++index) {
            const Point window = randomPointIn(layout.place(index)->screen, random);
            const Point global = layout.toGlobal(window);
            EXPECT_TRUE(displays[index].contains(global));
            const Point back = layout.toWindow(global);
            EXPECT_NEAR(back.x, window.x, 1e-6);
            EXPECT_NEAR(back.y, window.y, 1e-6);
        }
    }
}

TEST(DeskLayout, MapsPointsOutsideEveryDisplayThereAndBack) {
    const std::vector<Rect> displays{{0, 0, 1512, 982}, {1512, -98, 1920, 1080}};
    const DeskLayout layout{{1440, 900}, displays};
    for (const Point global : {Point{100, -50}, Point{-300, 500}, Point{700, 1200}, Point{4000, 2000}}) {
        const Point back = layout.toGlobal(layout.toWindow(global));
        EXPECT_NEAR(back.x, global.x, 1e-9);
        EXPECT_NEAR(back.y, global.y, 1e-9);
    }
}

TEST(DeskLayout, TakesAPointOnTheHousingAsTheNearestPointOfTheDisplay) {
    const std::vector<Rect> displays{{0, 0, 1512, 982}, {1512, -98, 1920, 1080}};
    const DeskLayout layout{{1440, 900}, displays};
    const DisplayPlace& right = *layout.place(1);
    const Point below = layout.toGlobal({right.screen.minX() + 50, right.slot.maxY() - 0.5});
    EXPECT_TRUE(displays[1].contains(below));
    EXPECT_EQ(below.y, std::nextafter(982.0, 0.0));
    const Point left = layout.toGlobal({right.slot.minX() + 0.5, right.screen.minY() + 50});
    EXPECT_TRUE(displays[1].contains(left));
    EXPECT_EQ(left.x, 1512);
}

TEST(DeskLayout, LeavesOutDisplaysThatCannotBeDrawn) {
    const std::vector<Rect> displays{{0, 0, 1512, 982},     {0, 0, 0, 100},     {NotANumber, 0, 100, 100},
                                     {0, 0, Infinity, 100}, {1e9, 0, 100, 100}, Rect::null()};
    const DeskLayout layout{{1440, 900}, displays};
    EXPECT_FALSE(layout.isEmpty());
    EXPECT_NE(layout.place(0), nullptr);
    for (std::size_t index = 1; index <= displays.size(); ++index) {
        EXPECT_EQ(layout.place(index), nullptr) << index;
    }
    EXPECT_EQ((DeskLayout{{1440, 900}, std::vector{displays[0]}}.place(0)->slot), layout.place(0)->slot);
}

TEST(DeskLayout, CountsANegativeSizeFromTheOtherEdge) {
    const std::vector<Rect> plain{{-100, -200, 600, 400}};
    const std::vector<Rect> turned{{500, 200, -600, -400}};
    const DeskLayout first{{1440, 900}, plain};
    const DeskLayout second{{1440, 900}, turned};
    EXPECT_EQ(first.place(0)->screen, second.place(0)->screen);
    EXPECT_EQ(first.toGlobal({720, 450}), second.toGlobal({720, 450}));
}

TEST(DeskLayout, IsEmptyWithoutDisplays) {
    const DeskLayout layout{{1440, 900}, {}};
    EXPECT_TRUE(layout.isEmpty());
    EXPECT_EQ(layout.place(0), nullptr);
    const Point back = layout.toGlobal(layout.toWindow({12, 34}));
    EXPECT_EQ(back, (Point{12, 34}));
}

TEST(DeskLayout, KeepsAStoryApartFromHeaderAndDisplays) {
    const DeskLayout layout{{1440, 900}, std::vector<Rect>{{0, 0, 1512, 982}}, true};
    EXPECT_GE(layout.story().minY(), layout.header().maxY());
    EXPECT_GT(layout.story().height(), 0);
    EXPECT_LE(layout.story().maxY(), layout.place(0)->slot.minY());
}

} // namespace
} // namespace kestrune::desk
