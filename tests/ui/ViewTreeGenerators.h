// Random views.
#pragma once

#include "tests/ui/ViewTree.h"
#include "ui/layout/Layout.h"

#include <rapidcheck.h>

namespace kestrune::ui {

// Whole trees, numbered, of a few levels.
rc::Gen<ViewTree> anyTrees();

// Those without horizontal stacks.
rc::Gen<ViewTree> treesOfOneColumn();

// Up to a few hundred points in each direction, or nothing.
rc::Gen<ProposedSize> anyProposals();

} // namespace kestrune::ui

namespace rc {

template <>
struct Arbitrary<kestrune::ui::ProposedSize> {
    static Gen<kestrune::ui::ProposedSize> arbitrary() { return kestrune::ui::anyProposals(); }
};

} // namespace rc
