// A window in which a test shows the elements of a scene, without a view that describes them.
#pragma once

#include "mac/Handles.h"
#include "mac/hosting/SceneView.h"
#include "mac/objc/Pool.h"
#include "tests/contract/WindowFixture.h"
#include "tests/gnustep/harness/Send.h"
#include "tests/gnustep/world/ViewPicture.h"

namespace kestrune::gnustep {

class ShownScene : public contract::WindowFixture {
protected:
    ShownScene() { show(window_); }

    // The view of the one element that is shown.
    id show(const ui::Element& element) {
        scene_.show({{}, {element}});
        return send(send(content(), "subviews"), "lastObject");
    }

    id content() const { return send(window_.state()->window.get(), "contentView"); }

    using WindowFixture::show;

private:
    mac::Pool pool_;
    Window window_ = makeWindow("one");

protected:
    mac::SceneView scene_{content()};
};

} // namespace kestrune::gnustep
