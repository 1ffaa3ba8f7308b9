#include "desk/paint/mac/MailLayout.h"

#include "desk/paint/mac/ControlPainter.h"
#include "desk/paint/mac/Measures.h"

#include <cmath>

namespace kestrune::desk {
namespace {

constexpr double Width = 480;
constexpr double TitleBarHeight = 44;
constexpr double Padding = 20;
constexpr double LineHeight = 32; // of a header
constexpr double BodyTop = 14;    // below the headers
constexpr double BodyHeight = 210;
constexpr double Height = TitleBarHeight + 2 * LineHeight + BodyTop + BodyHeight + Padding;

constexpr double HeightOnDisplay = 0.5; // of the window's centre, as a part of the display's height

} // namespace

std::optional<MailLayout> mailLayout(const DeskPicture& picture) {
    if (!picture.mail || picture.mail->display >= picture.displays.size()) {
        return std::nullopt;
    }
    const Rect& display = picture.displays[picture.mail->display].bounds;
    MailLayout result;
    result.frame = {std::round(display.minX() + (display.width() - Width) / 2),
                    std::round(display.minY() + display.height() * HeightOnDisplay - Height / 2), Width,
                    Height};
    const Point corner = result.frame.origin;
    result.titleBar = {corner.x, corner.y, Width, TitleBarHeight};
    result.closeButton = {corner.x + Padding, corner.y + (TitleBarHeight - WindowButtonSide) / 2,
                          WindowButtonSide, WindowButtonSide};
    const double lineWidth = Width - 2 * Padding;
    result.recipient = {corner.x + Padding, result.titleBar.maxY(), lineWidth, LineHeight};
    result.subject = {corner.x + Padding, result.recipient.maxY(), lineWidth, LineHeight};
    result.body = {corner.x + Padding, result.subject.maxY() + BodyTop, lineWidth, BodyHeight};
    return result;
}

} // namespace kestrune::desk
