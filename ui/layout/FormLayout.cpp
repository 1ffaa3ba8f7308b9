#include "ui/View.h"
#include "ui/layout/Node.h"

#include <algorithm>
#include <limits>
#include <memory>
#include <utility>
#include <vector>

namespace kestrune::ui {

namespace {

// A form in the grouped style, as System Settings has it since macOS 13.
constexpr double OuterMargin = 20;
constexpr double SectionSpacing = 20;
constexpr double SectionCornerRadius = 10;
constexpr double Hairline = 1;
constexpr double RowInset = 10;
constexpr double MinimumRowHeight = 36;
// So that a push button of 22 points makes a row of the minimum height.
constexpr double RowPadding = 7;

// Between the rows of a form that is not grouped.
constexpr double PlainRowSpacing = 8;

// As the platform's list in a view that scrolls: it takes the height that it is offered, with its rows at the
// top. As nothing scrolls here, it is never less high than they are.
//
// Offers its content the content's own ideal width when it is offered none, so that everything in it that
// adapts is equally wide.
class GroupedFormItem final : public LayoutItem {
public:
    explicit GroupedFormItem(LayoutItemPointer content) : content_(std::move(content)) {}

private:
    Size measure(const ProposedSize& proposal) override {
        const Size content = content_->sizeThatFits(inside(proposal));
        return {content.width, std::max(content.height, proposal.height.value_or(0))};
    }

    void placeContent(Point origin, const ProposedSize& proposal, Rendering& rendering) override {
        content_->place(origin, inside(proposal), rendering);
    }

    ProposedSize inside(const ProposedSize& proposal) {
        return {proposal.width ? proposal.width : content_->sizeThatFits(proposal).width, proposal.height};
    }

    LayoutItemPointer content_;
};

View separator() {
    return RoundedRectangle({.fill = Color::separator})
        .frame({.height = Hairline})
        .padding({.leading = RowInset, .trailing = RowInset});
}

View groupedRow(const View& content) {
    return content.padding({RowPadding, RowInset, RowPadding, RowInset})
        .frame({.minHeight = MinimumRowHeight,
                .maxWidth = std::numeric_limits<double>::infinity(),
                .alignment = {HorizontalAlignment::leading, VerticalAlignment::center}});
}

View groupedSection(const std::vector<View>& rows) {
    std::vector<View> lines;
    for (const View& row : rows) {
        if (!lines.empty()) {
            lines.push_back(separator());
        }
        lines.push_back(groupedRow(row));
    }
    // The border lies over the fill, as both are translucent.
    return VStack({.alignment = HorizontalAlignment::leading, .spacing = 0}, std::move(lines))
        .background(RoundedRectangle({.cornerRadius = SectionCornerRadius,
                                      .cornerStyle = CornerStyle::continuous,
                                      .fill = Color::sectionBorder,
                                      .lineWidth = Hairline}))
        .background(RoundedRectangle({.cornerRadius = SectionCornerRadius,
                                      .cornerStyle = CornerStyle::continuous,
                                      .fill = Color::sectionFill}));
}

struct SectionNode final : Node {
    explicit SectionNode(std::vector<View> content) : rows(std::move(content)) {}

    LayoutItemPointer resolve(const Environment& environment, LayoutPass& pass) const override {
        if (environment.isInGroupedForm && !rows.empty()) {
            return ui::resolve(groupedSection(rows), environment, pass);
        }
        return ui::resolve(
            VStack({.alignment = HorizontalAlignment::leading, .spacing = PlainRowSpacing}, rows),
            environment, pass);
    }

    std::vector<View> rows;
};

struct FormNode final : Node {
    explicit FormNode(std::vector<View> content) : sections(std::move(content)) {}

    LayoutItemPointer resolve(const Environment& environment, LayoutPass& pass) const override {
        Environment inside = environment;
        inside.isInGroupedForm = environment.formStyle == FormStyle::grouped;
        const View stack =
            VStack({.alignment = HorizontalAlignment::leading, .spacing = SectionSpacing}, sections);
        if (!inside.isInGroupedForm) {
            return stack.node().resolve(inside, pass);
        }
        const View form = stack.padding(OuterMargin).fixedSize(false, true);
        return std::make_unique<GroupedFormItem>(form.node().resolve(inside, pass));
    }

    std::vector<View> sections;
};

} // namespace

View Form(std::vector<View> sections) { return View(std::make_shared<FormNode>(std::move(sections))); }

View Section(std::vector<View> rows) { return View(std::make_shared<SectionNode>(std::move(rows))); }

} // namespace kestrune::ui
