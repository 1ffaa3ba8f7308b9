#include "ui/ControlMetrics.h"

#include <gtest/gtest.h>

namespace kestrune::ui {
namespace {

TEST(ControlMetrics, GiveSmallerControlsSmallerSwitches) {
    EXPECT_EQ(switchSize(ControlSize::mini), (Size{26, 15}));
    EXPECT_EQ(switchSize(ControlSize::small), (Size{32, 18}));
    EXPECT_EQ(switchSize(ControlSize::regular), (Size{38, 22}));
    EXPECT_EQ(switchSize(ControlSize::large), switchSize(ControlSize::regular));
}

} // namespace
} // namespace kestrune::ui
