// What a symbol, a shape and whatever a button draws itself look like: which picture, where, in which colour.
#include "mac/hosting/ElementViews.h"
#include "mac/hosting/PlatformMeasurer.h"
#include "mac/hosting/Symbols.h"
#include "mac/objc/RuntimeClass.h"
#include "tests/contract/SeenColors.h"
#include "tests/gnustep/harness/Objects.h"
#include "tests/gnustep/harness/ShownWindows.h"
#include "tests/gnustep/standins/appkit/Symbols.h"
#include "tests/gnustep/suites/ShownScene.h"

#include <cmath>
#include <utility>

namespace kestrune::gnustep {
namespace {

using contract::Like;
using contract::over;

constexpr Rect ButtonFrame(20, 30, 60, 40);

ui::StyledSymbol symbolOf(ui::Color color) {
    return {"checkmark.circle.fill", ui::Font::system(10), ui::ImageScale::medium, color};
}

ui::ButtonElement buttonThatDraws(const ui::Drawing& drawing) {
    ui::ButtonElement element;
    element.frame = ButtonFrame;
    element.kind = ui::ButtonElement::Kind::custom;
    element.title = "button";
    element.body = {drawing};
    return element;
}

contract::SeenColor colorOf(const char* name) {
    const id color = send(send(classObject("NSColor"), name),
                          "colorUsingColorSpaceName:", objectFor(std::string("NSDeviceRGBColorSpace")));
    const auto part = [color](const char* which) {
        return static_cast<int>(std::lround(send<double>(color, which) * 255));
    };
    return {part("redComponent"), part("greenComponent"), part("blueComponent")};
}

class HostedPicturesOnGNUstep : public ShownScene {
protected:
    ViewPicture pictureOf(const ui::Drawing& drawing) { return ViewPicture(show(buttonThatDraws(drawing))); }

    // What the ring is drawn around.
    static ViewPicture maskOf(id button) {
        const auto draw = [button] {
            send<void>(send(classObject("NSColor"), "whiteColor"), "set");
            send<void>(classObject("NSBezierPath"), "fillRect:", send<Rect>(button, "bounds"));
            send<void>(send(classObject("NSColor"), "blackColor"), "set");
            send<void>(button, "drawFocusRingMask");
        };
        return {button, draw};
    }
};

TEST_F(HostedPicturesOnGNUstep, ShowASymbolInItsFontScaleAndTint) {
    for (const auto& [scale, number] :
         {std::pair(ui::ImageScale::small, 1), std::pair(ui::ImageScale::medium, 2),
          std::pair(ui::ImageScale::large, 3)}) {
        const id view = show(ui::SymbolElement{
            {20, 30, 40, 40},
            {"circle.dashed", ui::Font::system(17, ui::FontWeight::bold), scale, ui::Color::green}});
        const auto shown = symbolIn(send(view, "image"));
        ASSERT_TRUE(shown);
        EXPECT_EQ(shown->name, "circle.dashed");
        EXPECT_EQ(shown->configuration, (SymbolConfiguration{17, 0.4, number}));
        EXPECT_EQ(send<BOOL>(shown->tint, "isEqual:", send(classObject("NSColor"), "systemGreenColor")),
                  mac::truth(true));
    }
}

TEST_F(HostedPicturesOnGNUstep, LeaveASymbolItsSizeInItsFrame) {
    constexpr mac::Unsigned None = 2; // NSImageScaleNone
    const ui::SymbolElement element{{20, 30, 40, 40}, symbolOf(ui::Color::green)};
    const id view = show(element);
    EXPECT_EQ(send<mac::Unsigned>(view, "imageScaling"), None);
    EXPECT_EQ(send<Rect>(view, "frame"), element.frame);
    EXPECT_EQ(send<Size>(send(view, "image"), "size"), mac::PlatformMeasurer().measureSymbol(element.symbol));
}

TEST_F(HostedPicturesOnGNUstep, LeaveAViewAloneWhoseElementIsTheSame) {
    const ui::SymbolElement symbol{{20, 30, 40, 40}, symbolOf(ui::Color::green)};
    const id symbolView = show(symbol);
    send<void>(symbolView, "setImage:", id{});
    send<void>(symbolView, "setFrame:", Rect(1, 2, 3, 4));
    EXPECT_EQ(show(symbol), symbolView);
    EXPECT_EQ(send(symbolView, "image"), id{});
    EXPECT_EQ(send<Rect>(symbolView, "frame"), Rect(1, 2, 3, 4));
    ui::ShapeElement shape;
    shape.frame = {30, 34, 40, 30};
    const id shapeView = show(shape);
    send<void>(shapeView, "setFrame:", Rect(1, 2, 30, 40));
    send<void>(shapeView, "display");
    EXPECT_EQ(show(shape), shapeView);
    EXPECT_EQ(send<Rect>(shapeView, "frame"), Rect(1, 2, 30, 40));
    EXPECT_EQ(send<BOOL>(shapeView, "needsDisplay"), 0);
    const ui::ButtonElement element = buttonThatDraws(symbol);
    const id button = show(element);
    send<void>(button, "display");
    EXPECT_EQ(show(element), button);
    EXPECT_EQ(send<BOOL>(button, "needsDisplay"), 0);
}

TEST_F(HostedPicturesOnGNUstep, MoveASymbolToItsPlace) {
    ui::SymbolElement element{{20, 30, 40, 40}, symbolOf(ui::Color::green)};
    const id view = show(element);
    element.frame = {25, 35, 45, 45};
    EXPECT_EQ(show(element), view);
    EXPECT_EQ(send<Rect>(view, "frame"), element.frame);
}

TEST_F(HostedPicturesOnGNUstep, DrawASymbolInTheMiddleOfItsPlaceInAButton) {
    const ViewPicture picture = pictureOf(ui::SymbolElement{{25, 34, 40, 30}, symbolOf(ui::Color::green)});
    EXPECT_EQ(picture.inked(), Rect(5 + 14, 4 + 9, 12, 12));
}

TEST_F(HostedPicturesOnGNUstep, DrawASymbolInItsColourInAButton) {
    const ViewPicture green = pictureOf(ui::SymbolElement{{20, 30, 60, 40}, symbolOf(ui::Color::green)});
    EXPECT_THAT(green.at({30, 20}), Like(colorOf("systemGreenColor")));
    // It is round.
    const Rect symbol = green.inked();
    EXPECT_EQ(green.at({symbol.minX(), symbol.minY()}), green.at({0, 0}));
    const ViewPicture accent = pictureOf(ui::SymbolElement{{20, 30, 60, 40}, symbolOf(ui::Color::accent)});
    EXPECT_THAT(accent.at({30, 20}), Like(colorOf("controlAccentColor")));
}

TEST_F(HostedPicturesOnGNUstep, DrawASymbolTheRightWayUpInAButton) {
    const ui::StyledSymbol dock{"dock.rectangle", ui::Font::system(25), ui::ImageScale::medium,
                                ui::Color::green};
    const ViewPicture picture = pictureOf(ui::SymbolElement{ButtonFrame, dock});
    const Rect symbol = picture.inked();
    const double middle = symbol.minX() + symbol.width() / 2;
    const auto row = [&symbol](double part) { return symbol.minY() + symbol.height() * part; };
    EXPECT_THAT(picture.at({middle, row(0.75)}), Like(colorOf("systemGreenColor")));
    EXPECT_EQ(picture.at({middle, row(0.3)}), picture.at({0, 0}));
}

TEST_F(HostedPicturesOnGNUstep, DrawNothingForASymbolThatThePlatformDoesNotHave) {
    EXPECT_FALSE(mac::symbolImage({"no.such.symbol", {}}));
    EXPECT_EQ(pictureOf(ui::SymbolElement{{20, 30, 60, 40}, {"no.such.symbol", {}}}).ink(), 0);
}

TEST_F(HostedPicturesOnGNUstep, DrawATextAtItsPlaceInAButton) {
    const ui::StyledText text{{{"HH"}}, ui::Font::system(13)};
    const Rect near = pictureOf(ui::TextElement{{22, 32, 50, 20}, text}).inked();
    const Rect far = pictureOf(ui::TextElement{{27, 42, 50, 20}, text}).inked();
    EXPECT_GT(near.width(), 0);
    EXPECT_EQ(far, Rect(near.origin.x + 5, near.origin.y + 10, near.size.width, near.size.height));
}

TEST_F(HostedPicturesOnGNUstep, FillAShapeAtItsPlaceWithRoundCorners) {
    ui::ShapeElement shape;
    shape.frame = {30, 34, 40, 30};
    shape.fill = ui::Color::accent;
    const ViewPicture sharp = pictureOf(shape);
    EXPECT_EQ(sharp.inked(), Rect(10, 4, 40, 30));
    EXPECT_THAT(sharp.at({10, 4}), Like(colorOf("controlAccentColor")));
    shape.cornerRadius = 8;
    const ViewPicture round = pictureOf(shape);
    EXPECT_EQ(round.inked(), Rect(10, 4, 40, 30));
    EXPECT_EQ(round.at({10, 4}), round.at({0, 0}));
    EXPECT_THAT(round.at({30, 19}), Like(colorOf("controlAccentColor")));
}

TEST_F(HostedPicturesOnGNUstep, FillAShapeThatIsAViewOfItsOwn) {
    ui::ShapeElement shape;
    shape.frame = {30, 34, 40, 30};
    shape.cornerRadius = 8;
    shape.fill = ui::Color::green;
    const id view = show(shape);
    EXPECT_EQ(send<Rect>(view, "frame"), shape.frame);
    const ViewPicture picture(view);
    EXPECT_EQ(picture.inked(), Rect(0, 0, 40, 30));
    EXPECT_THAT(picture.at({20, 15}), Like(colorOf("systemGreenColor")));
    shape.fill = ui::Color::accent;
    EXPECT_EQ(show(shape), view);
    EXPECT_NE(send<BOOL>(view, "needsDisplay"), 0);
    EXPECT_THAT(ViewPicture(view).at({20, 15}), Like(colorOf("controlAccentColor")));
}

TEST_F(HostedPicturesOnGNUstep, DrawAShapeOfALinkAsTransparentAsBothSay) {
    ui::ShapeElement shape;
    shape.frame = {30, 34, 40, 30};
    shape.fill = ui::Color::accent;
    shape.opacity = 0.5;
    ui::ButtonElement link = buttonThatDraws(shape);
    link.kind = ui::ButtonElement::Kind::link;
    const id button = show(link);
    highlight(button, true);
    const ViewPicture picture(button);
    ui::Shade dimmed = ui::systemColor(ui::Color::accent).light;
    dimmed.alpha = 0.5 * 0.55;
    EXPECT_THAT(picture.at({30, 19}), Like(over(picture.at({0, 0}), dimmed)));
}

TEST_F(HostedPicturesOnGNUstep, DrawNothingBeforeTheirFirstElementAndAfterTheirLast) {
    const auto early = mac::makeDrawnButton(content());
    EXPECT_NE(mac::RuntimeClass::target(early->view()), nullptr);
    send<void>(early->view(), "drawFocusRingMask");
    send<void>(send(early->view(), "cell"), "drawWithFrame:inView:", Rect(), early->view());
    ui::ShapeElement shape;
    shape.frame = {30, 34, 40, 30};
    for (const ui::Element& element : {ui::Element(buttonThatDraws(shape)), ui::Element(shape)}) {
        const mac::Retained late = mac::Retained::retaining(show(element));
        scene_.show({});
        EXPECT_EQ(mac::RuntimeClass::target(late.get()), nullptr);
        send<void>(content(), "addSubview:", late.get());
        EXPECT_EQ(ViewPicture(late.get()).ink(), 0);
        EXPECT_NE(send<BOOL>(late.get(), "isFlipped"), 0);
        send<void>(late.get(), "removeFromSuperview");
    }
}

TEST_F(HostedPicturesOnGNUstep, DrawAButtonAgainWhenWhatItShowsIsAnother) {
    ui::ButtonElement element = buttonThatDraws(ui::SymbolElement{ButtonFrame, symbolOf(ui::Color::green)});
    const id button = show(element);
    const ViewPicture first(button);
    EXPECT_EQ(send<BOOL>(button, "needsDisplay"), 0);
    element.pressedBody = element.body;
    show(element);
    EXPECT_NE(send<BOOL>(button, "needsDisplay"), 0);
    const ViewPicture second(button);
    element.body.clear();
    show(element);
    EXPECT_NE(send<BOOL>(button, "needsDisplay"), 0);
}

TEST_F(HostedPicturesOnGNUstep, DrawTheFocusRingAroundTheShapeOfAButton) {
    ui::ShapeElement shape;
    shape.frame = {30, 34, 40, 30};
    const id button = show(buttonThatDraws(shape));
    EXPECT_EQ(send<Rect>(button, "focusRingMaskBounds"), Rect(0, 0, 60, 40));
    EXPECT_EQ(maskOf(button).inked(), Rect(10, 4, 40, 30));
}

TEST_F(HostedPicturesOnGNUstep, DrawTheFocusRingAroundAllOfAButtonWithoutAShape) {
    const ViewPicture mask =
        maskOf(show(buttonThatDraws(ui::SymbolElement{ButtonFrame, symbolOf(ui::Color::green)})));
    EXPECT_EQ(mask.at({0, 0}), colorOf("blackColor"));
    EXPECT_EQ(mask.ink(), 0);
}

} // namespace
} // namespace kestrune::gnustep
