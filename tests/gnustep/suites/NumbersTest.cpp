// The numbers that the platform is handed for what the seam has names for. Whatever else reads them here,
// reads them by the same names.
//
// Source: NSWindow.h, NSGraphics.h, NSCell.h, NSStringDrawing.h.
#include "mac/hosting/AttributedText.h"
#include "platform/StatusBar.h"
#include "platform/Window.h"

#include <gtest/gtest.h>

namespace kestrune::gnustep {
namespace {

TEST(NumbersOfThePlatform, AreThoseOfItsHeaders) {
    EXPECT_EQ(static_cast<int>(WindowCollectionBehavior::canJoinAllSpaces), 1 << 0);
    EXPECT_EQ(static_cast<int>(WindowCollectionBehavior::fullScreenAuxiliary), 1 << 8);
    EXPECT_EQ(static_cast<int>(WindowLevel::floating), 3);
    EXPECT_EQ(static_cast<int>(BackingStoreType::buffered), 2);
    EXPECT_EQ(static_cast<int>(WindowStyleMask::titled), 1 << 0);
    EXPECT_EQ(static_cast<int>(WindowStyleMask::closable), 1 << 1);
    EXPECT_EQ(static_cast<int>(WindowStyleMask::miniaturizable), 1 << 2);
    EXPECT_EQ(static_cast<int>(WindowStyleMask::resizable), 1 << 3);
    EXPECT_EQ(static_cast<int>(ImageScaling::proportionallyDown), 0);
    EXPECT_EQ(static_cast<int>(ImageScaling::axesIndependently), 1);
    EXPECT_EQ(static_cast<int>(ImageScaling::none), 2);
    EXPECT_EQ(static_cast<int>(ImageScaling::proportionallyUpOrDown), 3);
    EXPECT_EQ(mac::TextLayoutOptions, (1 << 0) | (1 << 1));
}

} // namespace
} // namespace kestrune::gnustep
