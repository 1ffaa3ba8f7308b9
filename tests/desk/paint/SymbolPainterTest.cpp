#include "desk/paint/mac/SymbolPainter.h"

#include "tests/desk/paint/PaintedCanvas.h"

#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <string>

namespace kestrune::desk {
namespace {

const std::array SymbolNames{std::string("dock.rectangle"), std::string("2.circle.fill"),
                             std::string("checkmark.circle.fill"), std::string("circle.dashed"),
                             std::string("plus")};

ui::StyledSymbol symbol(const std::string& name, double size, ui::FontWeight weight = ui::FontWeight::regular,
                        ui::ImageScale scale = ui::ImageScale::medium) {
    return {name, ui::Font::system(size, weight), scale, ui::Color::primary};
}

PaintedCanvas paintedIn(const Rect& frame, const ui::StyledSymbol& shown, const Color& color) {
    return {{200, 160},
            [&](const Canvas& canvas) { paintSymbol(canvas.context, shown, frame, color); },
            false,
            2};
}

TEST(SymbolPainter, FillsTheMeasuredSizeInTheMiddleOfTheFrame) {
    const Rect frame{10, 10, 180, 140};
    for (const std::string& name : SymbolNames) {
        for (const double size : {10.0, 13.0, 26.0, 44.0}) {
            for (const auto weight :
                 {ui::FontWeight::ultraLight, ui::FontWeight::regular, ui::FontWeight::black}) {
                for (const auto scale : {ui::ImageScale::small, ui::ImageScale::large}) {
                    const ui::StyledSymbol shown = symbol(name, size, weight, scale);
                    const Size measured = symbolSize(shown);
                    const auto ink = paintedIn(frame, shown, rgb(0x000000)).ink();
                    ASSERT_TRUE(ink) << name;
                    EXPECT_NEAR(ink->width(), measured.width, 1.1) << name << size;
                    EXPECT_NEAR(ink->height(), measured.height, 1.1) << name << size;
                    EXPECT_NEAR(ink->minX() + ink->width() / 2, 100, 0.6) << name << size;
                    EXPECT_NEAR(ink->minY() + ink->height() / 2, 80, 0.6) << name << size;
                }
            }
        }
    }
}

TEST(SymbolPainter, GrowsWithFontAndScale) {
    for (const std::string& name : SymbolNames) {
        const double usual = symbolSize(symbol(name, 13)).width;
        EXPECT_NEAR(symbolSize(symbol(name, 26)).width, 2 * usual, 1e-9);
        const auto weight = ui::FontWeight::regular;
        EXPECT_LT(symbolSize(symbol(name, 13, weight, ui::ImageScale::small)).width, usual);
        EXPECT_GT(symbolSize(symbol(name, 13, weight, ui::ImageScale::large)).width, usual);
    }
}

TEST(SymbolPainter, PaintsNothingForANameThatThereIsNoSymbolFor) {
    const ui::StyledSymbol unknown = symbol("no.such.symbol", 44);
    EXPECT_EQ(symbolSize(unknown), Size());
    EXPECT_FALSE(paintedIn({10, 10, 180, 140}, unknown, rgb(0x000000)).ink());
}

TEST(SymbolPainter, LeavesTheSignOnADiscOpenToWhatIsBehind) {
    const Rect frame{50, 30, 100, 100};
    for (const char* const name : {"2.circle.fill", "checkmark.circle.fill"}) {
        const PaintedCanvas painted = paintedIn(frame, symbol(name, 80), rgb(0x28CD41));
        int green = 0;
        int white = 0;
        for (int x = 70; x < 130; ++x) {
            for (int y = 50; y < 110; ++y) {
                const Pixel pixel = painted.at({static_cast<double>(x), static_cast<double>(y)});
                green += isNear(pixel, 0x28, 0xCD, 0x41, 3) ? 1 : 0;
                white += isNear(pixel, 255, 255, 255, 3) ? 1 : 0;
            }
        }
        EXPECT_GT(green, 1500) << name;
        EXPECT_GT(white, 200) << name;
    }
}

TEST(SymbolPainter, DrawsHeavierLinesForHeavierFonts) {
    const Rect frame{50, 30, 100, 100};
    const auto darkness = [&](const std::string& name, ui::FontWeight weight) {
        const PaintedCanvas painted = paintedIn(frame, symbol(name, 60, weight), rgb(0x000000));
        int sum = 0;
        for (int x = 0; x < 200; ++x) {
            for (int y = 0; y < 160; ++y) {
                sum += 255 - painted.at({static_cast<double>(x), static_cast<double>(y)}).red;
            }
        }
        return sum;
    };
    for (const char* const name : {"dock.rectangle", "circle.dashed"}) {
        EXPECT_LT(darkness(name, ui::FontWeight::light), darkness(name, ui::FontWeight::regular)) << name;
        EXPECT_LT(darkness(name, ui::FontWeight::regular), darkness(name, ui::FontWeight::bold)) << name;
    }
}

} // namespace
} // namespace kestrune::desk
