// Methods that our classes have and the platform calls: of its delegates' protocols, of its classes that ours
// derive from, and the actions of our own views.
//
// Source: the public headers of AppKit and Foundation; Sparkle 2, SPUStandardUserDriverDelegate.h.
#pragma once

#include "base/Geometry.h"
#include "mac/objc/RuntimeClass.h"

namespace kestrune::mac::implemented {

// NOLINTBEGIN(readability-identifier-naming): they are methods.

// NSObject.
inline constexpr ImplementedMethod<void()> dealloc{"dealloc"};

// NSCoding; NSWindowController.
inline constexpr ImplementedMethod<id(id)> initWithCoder{"initWithCoder:"};
inline constexpr ImplementedMethod<id(id)> initWithWindow{"initWithWindow:"};

// NSView.
inline constexpr ImplementedMethod<BOOL()> isFlipped{"isFlipped"};
inline constexpr ImplementedMethod<BOOL()> wantsUpdateLayer{"wantsUpdateLayer"};
inline constexpr ImplementedMethod<void(Rect)> drawRect{"drawRect:"};
inline constexpr ImplementedMethod<Rect()> focusRingMaskBounds{"focusRingMaskBounds"};
inline constexpr ImplementedMethod<void()> drawFocusRingMask{"drawFocusRingMask"};
inline constexpr ImplementedMethod<void()> viewDidMoveToWindow{"viewDidMoveToWindow"};

// NSCell.
inline constexpr ImplementedMethod<void(Rect, id)> drawWithFrame{"drawWithFrame:inView:"};

// NSMenuDelegate, NSApplicationDelegate, NSWindowDelegate.
inline constexpr ImplementedMethod<void(id)> menuWillOpen{"menuWillOpen:"};
inline constexpr ImplementedMethod<void(id)> applicationDidFinishLaunching{"applicationDidFinishLaunching:"};
inline constexpr ImplementedMethod<void(id)> applicationWillTerminate{"applicationWillTerminate:"};
inline constexpr ImplementedMethod<void(id)> windowDidBecomeKey{"windowDidBecomeKey:"};
inline constexpr ImplementedMethod<void(id)> windowWillClose{"windowWillClose:"};

// SPUStandardUserDriverDelegate.
inline constexpr ImplementedMethod<BOOL()> supportsGentleScheduledUpdateReminders{
    "supportsGentleScheduledUpdateReminders"};
inline constexpr ImplementedMethod<void(BOOL, id, id)> standardUserDriverWillHandleShowingUpdate{
    "standardUserDriverWillHandleShowingUpdate:forUpdate:state:"};
inline constexpr ImplementedMethod<void()> standardUserDriverWillFinishUpdateSession{
    "standardUserDriverWillFinishUpdateSession"};
inline constexpr ImplementedMethod<void()> standardUserDriverWillShowModalAlert{
    "standardUserDriverWillShowModalAlert"};
inline constexpr ImplementedMethod<void()> standardUserDriverDidShowModalAlert{
    "standardUserDriverDidShowModalAlert"};

// Ours.
inline constexpr ImplementedMethod<void(id)> pressButton{"pressButton:"};
inline constexpr ImplementedMethod<void(id)> flipSwitch{"flipSwitch:"};

// NOLINTEND(readability-identifier-naming)

} // namespace kestrune::mac::implemented
