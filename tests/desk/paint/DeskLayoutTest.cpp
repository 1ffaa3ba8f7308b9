#include "desk/paint/desk/DeskLayout.h"

#include "desk/paint/toolkit/RectMath.h"
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
        EXPECT_GE(layout.stage().minY(), layout.header().maxY());
        EXPECT_GE(layout.stage().minY(), layout.story().maxY());
        EXPECT_LE(layout.stage().maxY(), layout.footer().minY());
        for (std::size_t index = 0; index < displays.size(); ++index) {
            const DisplayPlace* const place = layout.place(index);
            ASSERT_NE(place, nullptr);
            EXPECT_TRUE(encloses(layout.stage(), place->housing, 1e-6));
            EXPECT_TRUE(encloses(place->housing, place->screen));
            EXPECT_FALSE(place->screen.isEmpty());
            EXPECT_EQ(place->scale, layout.scale());
            EXPECT_NEAR(place->screen.width(), displays[index].width() * layout.scale(), 1e-6);
            EXPECT_NEAR(place->screen.height(), displays[index].height() * layout.scale(), 1e-6);
        }
    }
}

TEST(DeskLayout, LeavesRoomBetweenTheHousingsAndBelowThemForCaptions) {
    RandomNumbers random{4};
    for (int round = 0; round < 500; ++round) {
        const std::vector<Rect> displays = randomDisplays(random);
        const DeskLayout layout{randomWindow(random), displays};
        for (std::size_t first = 0; first < displays.size(); ++first) {
            const DisplayPlace& place = *layout.place(first);
            Rect own = place.housing;
            own.size.height += place.captionRoom;
            for (std::size_t second = 0; second < displays.size(); ++second) {
                EXPECT_TRUE(second == first || !doOverlap(own, layout.place(second)->housing))
                    << round << ": " << first << " and " << second;
            }
        }
    }
}

TEST(DeskLayout, HasAHousingAsThickAsARealOne) {
    const std::vector<Rect> displays{{0, 0, 1512, 982}, {1512, -98, 1920, 1080}};
    const DeskLayout layout{{1440, 900}, displays};
    const DisplayPlace& place = *layout.place(0);
    EXPECT_NEAR(place.screen.minX() - place.housing.minX(), 11 * layout.scale(), 1e-9);
    EXPECT_NEAR(layout.place(1)->housing.minX() - place.housing.maxX(), 14 * layout.scale(), 1e-9);
}

TEST(DeskLayout, FillsTheStageInOneDirectionWhenDisplaysAreLarge) {
    const std::vector<Rect> displays{{0, 0, 3840, 2160}, {3840, 0, 3840, 2160}};
    const DeskLayout layout{{1440, 900}, displays};
    EXPECT_NEAR(layout.place(0)->housing.minX(), 48, 2);
    EXPECT_NEAR(layout.place(1)->housing.maxX(), 1440 - 48, 2);
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
            const Point window = layout.place(index)->toWindow(global);
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
            const Point back = layout.place(index)->toWindow(global);
            EXPECT_NEAR(back.x, window.x, 1e-6);
            EXPECT_NEAR(back.y, window.y, 1e-6);
        }
    }
}

TEST(DeskLayout, TakesAPlaceOnTheHousingAsTheNearestPointOfTheDisplay) {
    const std::vector<Rect> displays{{0, 0, 1512, 982}, {1512, -98, 1920, 1080}};
    const DeskLayout layout{{1440, 900}, displays};
    const DisplayPlace& right = *layout.place(1);
    const Point below = layout.toGlobal({right.screen.minX() + 50, right.housing.maxY() - 0.5});
    EXPECT_TRUE(displays[1].contains(below));
    EXPECT_EQ(below.y, std::nextafter(982.0, 0.0));
    const Point left = layout.toGlobal({right.housing.minX() + 0.5, right.screen.minY() + 50});
    EXPECT_TRUE(displays[1].contains(left));
    EXPECT_EQ(left.x, 1512);
}

// So that the hand can push.
TEST(DeskLayout, TakesAPlaceBelowAHousingAsAPointBelowTheDisplay) {
    const std::vector<Rect> displays{{0, 0, 1512, 982}, {1512, -98, 1920, 1080}};
    const DeskLayout layout{{1440, 900}, displays};
    const Rect housing = layout.place(1)->housing;
    double before = 981;
    for (double y = housing.maxY(); y < 900; y += 1) {
        const double global = layout.toGlobal({housing.minX() + 200, y}).y;
        EXPECT_GE(global, before);
        EXPECT_LE(global, before + 1.1 / layout.scale()) << "the hand does not jump";
        before = global;
    }
    EXPECT_GT(before, 982 + 200);
}

TEST(DeskLayout, HasNoPointOfADisplayBesideTheScreensAndTheStage) {
    const std::vector<Rect> displays{{0, 0, 1512, 982}, {1512, -98, 1920, 1080}};
    const DeskLayout layout{{1440, 900}, displays};
    const DisplayPlace& right = *layout.place(1);
    const auto point = layout.pointAt(right.toWindow(Point{2000, 500}));
    ASSERT_TRUE(point);
    EXPECT_NEAR(point->x, 2000, 1e-9);
    EXPECT_NEAR(point->y, 500, 1e-9);
    EXPECT_FALSE(layout.pointAt({right.housing.minX() + 1, right.screen.minY() + 50}));
    EXPECT_FALSE(layout.pointAt({right.screen.minX() + 50, right.housing.maxY() + 20}));

    const DeskLayout zoomed{{1440, 900}, displays, false, Rect{2400, 400, 0, 0}};
    const Rect stage = zoomed.stage();
    EXPECT_TRUE(zoomed.pointAt({720, stage.minY() + 1}));
    EXPECT_TRUE(zoomed.place(1)->screen.contains({720, stage.minY() - 1}));
    EXPECT_FALSE(zoomed.pointAt({720, stage.minY() - 1}));
}

TEST(DeskLayout, ShowsAPartInTheMiddleAtNoMoreThanItsSize) {
    const std::vector<Rect> displays{{0, 0, 1512, 982}, {1512, -98, 1920, 1080}};
    const DeskLayout small{{1440, 900}, displays, false, Rect{2300, 400, 200, 100}};
    EXPECT_EQ(small.scale(), 1);
    const Point middle = centerOf(small.stage());
    EXPECT_NEAR(small.place(1)->toWindow(Point{2400, 450}).x, middle.x, 40);
    EXPECT_NEAR(small.place(1)->toWindow(Point{2400, 450}).y, middle.y, 40);
    // Whole points are whole pixels.
    EXPECT_EQ(small.place(1)->screen.minX(), std::round(small.place(1)->screen.minX()));
    EXPECT_EQ(small.place(0)->screen.minY(), std::round(small.place(0)->screen.minY()));

    const DeskLayout wide{{1440, 900}, displays, false, Rect{600, 300, 2200, 200}};
    EXPECT_LT(wide.scale(), 0.7);
    EXPECT_GT(wide.scale(), 0.5);
    EXPECT_TRUE(wide.pointAt(wide.place(0)->toWindow(Point{600, 300})));
    EXPECT_TRUE(wide.pointAt(wide.place(1)->toWindow(Point{2799, 499})));
}

TEST(DeskLayout, ShowsNothingBesideTheDisplaysThatCanBeAvoided) {
    const std::vector<Rect> displays{{0, 0, 1512, 982}, {1512, -98, 1920, 1080}};
    const DeskLayout corner{{1440, 900}, displays, false, Rect{0, 0, 0, 0}};
    const Rect stage = corner.stage();
    EXPECT_NEAR(corner.place(0)->screen.minX(), stage.minX(), 50);
    EXPECT_LT(corner.place(1)->screen.minY(), stage.minY() + 60);
    const DeskLayout everything{{1440, 900}, displays, false, Rect{-9000, -9000, 20000, 20000}};
    const DeskLayout all{{1440, 900}, displays};
    EXPECT_NEAR(everything.scale(), all.scale(), 0.02);
}

TEST(DeskLayout, FollowsThePointerOnlyNearTheEdgeOfTheStage) {
    const std::vector<Rect> displays{{0, 0, 1512, 982}, {1512, -98, 1920, 1080}};
    const auto zoomedTo = [&](Point center) {
        return DeskLayout{{1440, 900}, displays, false, Rect{center.x, center.y, 0, 0}};
    };
    Point center{1700, 400};
    const DeskLayout layout = zoomedTo(center);
    const Rect stage = layout.stage();
    EXPECT_NEAR(layout.centerFor(centerOf(stage)).x, center.x, 1e-6);
    EXPECT_NEAR(layout.centerFor(centerOf(stage)).y, center.y, 1e-6);
    EXPECT_GT(layout.centerFor({stage.maxX() - 5, 450}).x, center.x + 5);
    EXPECT_LT(layout.centerFor({stage.minX() + 5, 450}).x, center.x - 5);
    EXPECT_GT(layout.centerFor({720, stage.maxY() - 5}).y, center.y + 5);
    EXPECT_LT(layout.centerFor({720, stage.minY() + 5}).y, center.y - 5);
    // It goes across the gap between the displays and stops at the end of the last.
    for (int step = 0; step < 400; ++step) {
        center = zoomedTo(center).centerFor({stage.maxX() - 1, 450});
    }
    EXPECT_LT(zoomedTo(center).place(1)->housing.maxX(), stage.maxX());
    EXPECT_GT(zoomedTo(center).place(1)->housing.maxX(), stage.maxX() - 60);
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
    EXPECT_EQ((DeskLayout{{1440, 900}, std::vector{displays[0]}}.place(0)->screen), layout.place(0)->screen);
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
    EXPECT_EQ(layout.toGlobal({12, 34}), (Point{12, 34}));
    EXPECT_FALSE(layout.pointAt({12, 34}));
}

TEST(DeskLayout, KeepsAStoryApartFromHeaderAndDisplays) {
    const DeskLayout layout{{1440, 900}, std::vector<Rect>{{0, 0, 1512, 982}}, true};
    EXPECT_GE(layout.story().minY(), layout.header().maxY());
    EXPECT_GT(layout.story().height(), 0);
    EXPECT_LE(layout.story().maxY(), layout.place(0)->housing.minY());
}

} // namespace
} // namespace kestrune::desk
