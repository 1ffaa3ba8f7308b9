// What a text's font, weight, colour and alignment are to the platform, and how its label is set.
#include "mac/hosting/AttributedText.h"
#include "mac/hosting/Fonts.h"
#include "mac/objc/Text.h"
#include "tests/gnustep/suites/ShownScene.h"

#include <array>
#include <string>
#include <utility>
#include <vector>

// NOLINTBEGIN(readability-identifier-naming): the platform's.
extern "C" {
extern const id NSFontAttributeName;
extern const id NSForegroundColorAttributeName;
extern const id NSParagraphStyleAttributeName;
}
// NOLINTEND(readability-identifier-naming)

namespace kestrune::gnustep {
namespace {

using testing::Pair;

ui::StyledText textOf(std::vector<ui::TextRun> runs) { return {std::move(runs), ui::Font::system(13)}; }

class HostedTextOnGNUstep : public ShownScene {
protected:
    static id attribute(const mac::Retained& text, id name, std::size_t place = 0) {
        return send(text.get(), "attribute:atIndex:effectiveRange:", name, mac::Unsigned{place},
                    static_cast<void*>(nullptr));
    }

    static std::pair<std::string, double> fontOf(const mac::Retained& text, std::size_t place) {
        const id font = attribute(text, NSFontAttributeName, place);
        return {mac::textOf(send(font, "fontName")), send<double>(font, "pointSize")};
    }

    static mac::Integer alignmentOf(ui::TextAlignment alignment) {
        ui::StyledText text = textOf({{"text"}});
        text.alignment = alignment;
        return send<mac::Integer>(attribute(mac::attributedText(text), NSParagraphStyleAttributeName),
                                  "alignment");
    }
};

// NSFontWeight, of which GNUstep's fonts show only a part.
TEST_F(HostedTextOnGNUstep, HasThePlatformsNumberForEveryWeight) {
    EXPECT_EQ(mac::platformWeight(ui::FontWeight::ultraLight), -0.8);
    EXPECT_EQ(mac::platformWeight(ui::FontWeight::thin), -0.6);
    EXPECT_EQ(mac::platformWeight(ui::FontWeight::light), -0.4);
    EXPECT_EQ(mac::platformWeight(ui::FontWeight::regular), 0);
    EXPECT_EQ(mac::platformWeight(ui::FontWeight::medium), 0.23);
    EXPECT_EQ(mac::platformWeight(ui::FontWeight::semibold), 0.3);
    EXPECT_EQ(mac::platformWeight(ui::FontWeight::bold), 0.4);
    EXPECT_EQ(mac::platformWeight(ui::FontWeight::heavy), 0.56);
    EXPECT_EQ(mac::platformWeight(ui::FontWeight::black), 0.62);
}

TEST_F(HostedTextOnGNUstep, SetsEachRunInItsWeightAndTheSizeOfTheText) {
    const mac::Retained text = mac::attributedText(
        {{{"Keep", ui::FontWeight::bold}, {" it", ui::FontWeight::light}}, ui::Font::system(17)});
    EXPECT_EQ(mac::textOf(send(text.get(), "string")), "Keep it");
    EXPECT_THAT(fontOf(text, 0), Pair("Inter-Bold", 17));
    EXPECT_THAT(fontOf(text, 3), Pair("Inter-Bold", 17));
    EXPECT_THAT(fontOf(text, 4), Pair("Inter-Light", 17));
}

// Of which this program has one kind, and a Mac the other.
TEST_F(HostedTextOnGNUstep, HasThePlatformsNumberForEveryAlignmentOnEitherProcessor) {
    using enum ui::TextAlignment;
    using Numbers = mac::AlignmentNumbers;
    const auto numbers = [](Numbers kind) {
        return std::array{mac::platformAlignment(leading, kind), mac::platformAlignment(center, kind),
                          mac::platformAlignment(trailing, kind)};
    };
    EXPECT_THAT(numbers(Numbers::ofApplesProcessors), testing::ElementsAre(0, 1, 2));
    EXPECT_THAT(numbers(Numbers::ofOthers), testing::ElementsAre(0, 2, 1));
}

TEST_F(HostedTextOnGNUstep, AlignsParagraphsAsTheTextIs) {
    constexpr mac::Integer Left = 0;
    constexpr mac::Integer Right = 1; // on this processor
    constexpr mac::Integer Center = 2;
    EXPECT_EQ(alignmentOf(ui::TextAlignment::leading), Left);
    EXPECT_EQ(alignmentOf(ui::TextAlignment::center), Center);
    EXPECT_EQ(alignmentOf(ui::TextAlignment::trailing), Right);
}

TEST_F(HostedTextOnGNUstep, ColoursEachRunLessOpaquelyWhereItIsSaid) {
    ui::StyledText white = textOf({{"one"}, {"two"}});
    white.color = ui::Color::white;
    const mac::Retained text = mac::attributedText(white, 0.5);
    for (const std::size_t place : {0U, 3U}) {
        const id color = attribute(text, NSForegroundColorAttributeName, place);
        EXPECT_DOUBLE_EQ(send<double>(color, "alphaComponent"), 0.5);
        EXPECT_DOUBLE_EQ(send<double>(send(color, "colorUsingColorSpaceName:",
                                           mac::nsString("NSCalibratedRGBColorSpace").get()),
                                      "redComponent"),
                         1);
    }
}

TEST_F(HostedTextOnGNUstep, ShowsALabelThatNobodyCanEditOrSelect) {
    const id label = show(ui::TextElement{{20, 30, 100, 16}, textOf({{"text"}})});
    EXPECT_EQ(mac::textOf(send(label, "stringValue")), "text");
    EXPECT_EQ(send<BOOL>(label, "isEditable"), 0);
    EXPECT_EQ(send<BOOL>(label, "isSelectable"), 0);
}

TEST_F(HostedTextOnGNUstep, ShowsALabelWithoutBezelAndBackground) {
    const id label = show(ui::TextElement{{20, 30, 100, 16}, textOf({{"text"}})});
    EXPECT_EQ(send<BOOL>(label, "isBezeled"), 0);
    EXPECT_EQ(send<BOOL>(label, "drawsBackground"), 0);
    EXPECT_NE(send<BOOL>(send(label, "cell"), "wraps"), 0);
}

// A field keeps its text 2 points away from its left and right edges.
TEST_F(HostedTextOnGNUstep, ShowsALabelWhoseTextLiesInItsFrame) {
    EXPECT_EQ(send<Rect>(show(ui::TextElement{{20, 30, 100, 16}, textOf({{"text"}})}), "frame"),
              Rect(18, 30, 104, 16));
    EXPECT_EQ(send<Rect>(show(ui::TextElement{{25, 40, 90, 32}, textOf({{"text"}})}), "frame"),
              Rect(23, 40, 94, 32));
}

TEST_F(HostedTextOnGNUstep, LeavesALabelAloneWhoseElementIsTheSame) {
    const ui::TextElement element{{20, 30, 100, 16}, textOf({{"text"}})};
    const id label = show(element);
    send<void>(label, "setStringValue:", mac::nsString("somebody else's").get());
    send<void>(label, "setFrame:", Rect(1, 2, 3, 4));
    EXPECT_EQ(show(element), label);
    EXPECT_EQ(mac::textOf(send(label, "stringValue")), "somebody else's");
    EXPECT_EQ(send<Rect>(label, "frame"), Rect(1, 2, 3, 4));
}

TEST_F(HostedTextOnGNUstep, ShowsAnotherTextInTheSameLabel) {
    const id label = show(ui::TextElement{{20, 30, 100, 16}, textOf({{"text"}})});
    EXPECT_EQ(show(ui::TextElement{{20, 30, 100, 16}, textOf({{"other"}})}), label);
    EXPECT_EQ(mac::textOf(send(label, "stringValue")), "other");
}

} // namespace
} // namespace kestrune::gnustep
