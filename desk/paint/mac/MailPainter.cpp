#include "desk/paint/mac/MailPainter.h"

#include "desk/paint/desk/PanelPainter.h"
#include "desk/paint/mac/ControlPainter.h"
#include "desk/paint/toolkit/Shapes.h"

#include <algorithm>
#include <string_view>

namespace kestrune::desk {
namespace {

constexpr int MostLinesOfAParagraph = 20;

double middleOf(const Rect& rect) { return rect.minY() + rect.height() / 2; }

// Its name, what it says, and the hairline below.
void paintHeader(const Canvas& canvas, const Rect& line, std::string_view name, std::string_view value) {
    constexpr double NameGap = 6;
    const SystemColors& colors = canvas.palette.system;
    const double nameWidth =
        canvas.text.paint(name, {line.minX(), middleOf(line)}, {.size = 13, .color = colors.detailText});
    const double left = line.minX() + nameWidth + NameGap;
    canvas.text.paint(value, {left, middleOf(line)},
                      {.size = 13, .color = colors.text, .maximumWidth = std::max(0.0, line.maxX() - left)});
    fillRoundedRectangle(canvas.context, {line.minX(), line.maxY() - 0.5, line.width(), 0.5}, 0,
                         colors.separator);
}

// The paper that the mail is written on, from the headers to the lower edge.
void paintPaper(const Canvas& canvas, const MailLayout& layout) {
    const SavedState saved{canvas.context};
    const Rect& frame = layout.frame;
    addRoundedRectangle(canvas.context, frame, windowPanelStyle(canvas.palette).cornerRadius);
    cairo_clip(canvas.context);
    const double top = layout.titleBar.maxY();
    fillRoundedRectangle(canvas.context, {frame.minX(), top, frame.width(), frame.maxY() - top}, 0,
                         canvas.palette.system.paper);
}

void paintBody(const Canvas& canvas, const Rect& area, std::string_view body) {
    const SavedState saved{canvas.context};
    cairo_rectangle(canvas.context, area.minX(), area.minY(), area.width(), area.height());
    cairo_clip(canvas.context);
    canvas.text.paintWrapped(body, area.origin, area.width(), MostLinesOfAParagraph,
                             {.size = 13, .color = canvas.palette.system.text});
}

} // namespace

void paintMail(const Canvas& canvas, const MailLayout& layout, const MailPicture& mail,
               const std::optional<DeskTarget>& pressed) {
    paintPaper(canvas, layout);
    paintWindowButtons(canvas, layout.closeButton,
                       {.isClosePressed = pressed == DeskTarget{MailCloseTarget{}}});
    canvas.text.paint("New Message",
                      {layout.titleBar.minX() + layout.titleBar.width() / 2, middleOf(layout.titleBar)},
                      {.size = 13,
                       .weight = FontWeight::bold,
                       .color = canvas.palette.system.text,
                       .alignment = TextAlignment::center});
    paintHeader(canvas, layout.recipient, "To:", mail.recipient);
    paintHeader(canvas, layout.subject, "Subject:", mail.subject);
    paintBody(canvas, layout.body, mail.body);
}

} // namespace kestrune::desk
