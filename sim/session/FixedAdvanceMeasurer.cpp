#include "sim/session/FixedAdvanceMeasurer.h"

#include "ui/ControlMetrics.h"

#include <algorithm>
#include <cmath>

namespace kestrune::sim {

namespace {

// Puts characters on lines no wider than a limit.
class Lines {
public:
    explicit Lines(std::optional<double> limit) : limit_(limit) {}

    void add(char character, double advance) {
        if (character == '\n') {
            breakLine();
            return;
        }
        if (character == ' ') {
            takeWord();
            gap_ += advance;
            return;
        }
        word_ += advance;
        if (limit_ && line_ > 0 && line_ + gap_ + word_ > *limit_) {
            endLine();
        }
    }

    void breakLine() {
        takeWord();
        endLine();
    }

    double widest() const { return widest_; }
    int count() const { return count_; }

private:
    void takeWord() {
        if (word_ > 0) {
            line_ += gap_ + word_;
            gap_ = 0;
            word_ = 0;
        }
    }

    void endLine() {
        widest_ = std::max(widest_, line_);
        line_ = 0;
        gap_ = 0;
        ++count_;
    }

    std::optional<double> limit_;
    double line_ = 0; // up to the last word that fits
    double gap_ = 0;  // the spaces behind it
    double word_ = 0;
    double widest_ = 0;
    int count_ = 0;
};

bool startsCharacter(char byte) { return (static_cast<unsigned char>(byte) & 0xC0U) != 0x80U; }

double factorOf(ui::ImageScale scale) {
    switch (scale) {
    case ui::ImageScale::small:
        return 0.75;
    case ui::ImageScale::large:
        return 1.25;
    case ui::ImageScale::medium:
        break;
    }
    return 1;
}

double heightOfButton(ui::ControlSize size) {
    switch (size) {
    case ui::ControlSize::mini:
        return 15;
    case ui::ControlSize::small:
        return 18;
    case ui::ControlSize::large:
        return 28;
    case ui::ControlSize::regular:
        break;
    }
    return 22;
}

} // namespace

double FixedAdvanceMeasurer::advance(const ui::Font& font, ui::FontWeight weight) {
    return std::round(font.size / 2) + (weight >= ui::FontWeight::semibold ? 1 : 0);
}

double FixedAdvanceMeasurer::heightOfLine(const ui::Font& font) {
    return font.style ? ui::lineHeight(*font.style) : std::round(font.size * 1.23);
}

Size FixedAdvanceMeasurer::measureText(const ui::StyledText& text, std::optional<double> width) const {
    Lines lines(width);
    for (const ui::TextRun& run : text.runs) {
        const double wide = advance(text.font, run.weight) * scale_;
        for (const char byte : run.text) {
            if (startsCharacter(byte)) {
                lines.add(byte, wide);
            }
        }
    }
    lines.breakLine();
    return {lines.widest(), lines.count() * heightOfLine(text.font) * scale_};
}

Size FixedAdvanceMeasurer::measureSymbol(const ui::StyledSymbol& symbol) const {
    const double side = std::round(symbol.font.size * 1.2 * factorOf(symbol.scale));
    return {side, side};
}

Size FixedAdvanceMeasurer::measurePushButton(std::string_view title, ui::ControlSize size) const {
    return {28 + 7 * static_cast<double>(title.size()), heightOfButton(size)};
}

Size FixedAdvanceMeasurer::measureSwitch(ui::ControlSize size) const { return ui::switchSize(size); }

} // namespace kestrune::sim
