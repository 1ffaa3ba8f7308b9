// Classes, protocols and messages of AppKit, those that classes of ours have methods for among them.
//
// Source: its public headers.
#pragma once

#include "base/Geometry.h"
#include "mac/vocabulary/Message.h"

namespace kestrune::mac {

// NOLINTBEGIN(readability-identifier-naming): a message is sent by calling it, so it reads as a function.

struct AppKit : Framework {
    struct NSWorkspace : ClassReference {
        using ClassReference::ClassReference;
        ClassMessage<id()> sharedWorkspace{*this, "sharedWorkspace"};
        Message<BOOL(id)> openURL{*this, "openURL:"};
    } workspace{*this, "NSWorkspace"};

    struct NSScreen : ClassReference {
        using ClassReference::ClassReference;
        ClassMessage<id()> screens{*this, "screens"};
        ClassMessage<id()> mainScreen{*this, "mainScreen"};
        Message<id()> deviceDescription{*this, "deviceDescription"};
        Message<id()> localizedName{*this, "localizedName"};
        Message<Rect()> frame{*this, "frame"};
    } screen{*this, "NSScreen"};

    struct NSApplication : ClassReference {
        using ClassReference::ClassReference;
        ClassMessage<id()> sharedApplication{*this, "sharedApplication"};
        Message<void(id)> setDelegate{*this, "setDelegate:"};
        Message<BOOL(Integer)> setActivationPolicy{*this, "setActivationPolicy:"};
        Message<Integer()> activationPolicy{*this, "activationPolicy"};
        Message<id()> windows{*this, "windows"};
        Message<void(id)> setMainMenu{*this, "setMainMenu:"};
        Message<void(BOOL)> activateIgnoringOtherApps{*this, "activateIgnoringOtherApps:"};
        Message<void()> run{*this, "run"};
        Message<void(id)> terminate{*this, "terminate:"};
    } application{*this, "NSApplication"};

    struct NSApplicationDelegate : ProtocolReference {
        using ProtocolReference::ProtocolReference;
        Message<void(id)> applicationDidFinishLaunching{*this, "applicationDidFinishLaunching:"};
        Message<BOOL(id, BOOL)> applicationShouldHandleReopen{
            *this, "applicationShouldHandleReopen:hasVisibleWindows:"};
        Message<void(id)> applicationWillTerminate{*this, "applicationWillTerminate:"};
    } applicationDelegate{*this, "NSApplicationDelegate"};

    struct NSMenu : ClassReference {
        using ClassReference::ClassReference;
        Message<id(id)> initWithTitle{*this, "initWithTitle:"};
        Message<void(BOOL)> setAutoenablesItems{*this, "setAutoenablesItems:"};
        Message<void(id)> addItem{*this, "addItem:"};
        Message<void(id)> setDelegate{*this, "setDelegate:"};
    } menu{*this, "NSMenu"};

    struct NSMenuDelegate : ProtocolReference {
        using ProtocolReference::ProtocolReference;
        Message<void(id)> menuWillOpen{*this, "menuWillOpen:"};
    } menuDelegate{*this, "NSMenuDelegate"};

    struct NSMenuItem : ClassReference {
        using ClassReference::ClassReference;
        Message<id(id, SEL, id)> initWithTitle{*this, "initWithTitle:action:keyEquivalent:"};
        ClassMessage<id()> separatorItem{*this, "separatorItem"};
        Message<void(id)> setTarget{*this, "setTarget:"};
        Message<void(id)> setSubmenu{*this, "setSubmenu:"};
        Message<void(Unsigned)> setKeyEquivalentModifierMask{*this, "setKeyEquivalentModifierMask:"};
        Message<void(id)> setRepresentedObject{*this, "setRepresentedObject:"};
        Message<id()> representedObject{*this, "representedObject"};
        Message<void(Integer)> setState{*this, "setState:"};
        Message<void(BOOL)> setEnabled{*this, "setEnabled:"};
    } menuItem{*this, "NSMenuItem"};

    struct NSImage : ClassReference {
        using ClassReference::ClassReference;
        ClassMessage<id(id)> imageNamed{*this, "imageNamed:"};
        Message<void(BOOL)> setTemplate{*this, "setTemplate:"};
        Message<void(Size)> setSize{*this, "setSize:"};
        Message<Size()> size{*this, "size"};
        Message<id(Size)> initWithSize{*this, "initWithSize:"};
        Message<void()> lockFocus{*this, "lockFocus"};
        Message<void()> unlockFocus{*this, "unlockFocus"};
        Message<void(Rect, Rect, Unsigned, double, BOOL, id)> drawInRect{
            *this, "drawInRect:fromRect:operation:fraction:respectFlipped:hints:"};
        ClassMessage<id(id, id)> imageWithSystemSymbolName{
            *this, "imageWithSystemSymbolName:accessibilityDescription:"};
        Message<id(id)> imageWithSymbolConfiguration{*this, "imageWithSymbolConfiguration:"};
    } image{*this, "NSImage"};

    struct NSImageSymbolConfiguration : ClassReference {
        using ClassReference::ClassReference;
        ClassMessage<id(double, double, Integer)> configurationWithPointSize{
            *this, "configurationWithPointSize:weight:scale:"};
    } imageSymbolConfiguration{*this, "NSImageSymbolConfiguration"};

    struct NSStatusBar : ClassReference {
        using ClassReference::ClassReference;
        ClassMessage<id()> systemStatusBar{*this, "systemStatusBar"};
        Message<id(double)> statusItemWithLength{*this, "statusItemWithLength:"};
    } statusBar{*this, "NSStatusBar"};

    struct NSStatusItem : ClassReference {
        using ClassReference::ClassReference;
        Message<id()> button{*this, "button"};
        Message<void(id)> setMenu{*this, "setMenu:"};
    } statusItem{*this, "NSStatusItem"};

    struct NSButton : ClassReference {
        using ClassReference::ClassReference;
        Message<void(id)> setImage{*this, "setImage:"};
        Message<void(Unsigned)> setImageScaling{*this, "setImageScaling:"};
        Message<void(id)> setToolTip{*this, "setToolTip:"};
        Message<void(id)> setTitle{*this, "setTitle:"};
        Message<void(id)> setKeyEquivalent{*this, "setKeyEquivalent:"};
        Message<void(Unsigned)> setButtonType{*this, "setButtonType:"};
        Message<void(Unsigned)> setBezelStyle{*this, "setBezelStyle:"};
        Message<void(BOOL)> setBordered{*this, "setBordered:"};
        Message<void(BOOL)> setHasDestructiveAction{*this, "setHasDestructiveAction:"};
    } button{*this, "NSButton"};

    struct NSCell : ClassReference {
        using ClassReference::ClassReference;
        Message<BOOL()> isHighlighted{*this, "isHighlighted"};
        Message<void(BOOL)> setWraps{*this, "setWraps:"};
        Message<void(BOOL)> setAccessibilityElement{*this, "setAccessibilityElement:"};
        Message<void(id)> setAccessibilityLabel{*this, "setAccessibilityLabel:"};
        Message<void(Rect, id)> drawWithFrame{*this, "drawWithFrame:inView:"};
    } cell{*this, "NSCell"};

    struct NSButtonCell : ClassReference {
        using ClassReference::ClassReference;
    } buttonCell{*this, "NSButtonCell"};

    struct NSView : ClassReference {
        using ClassReference::ClassReference;
        Message<id(Rect)> initWithFrame{*this, "initWithFrame:"};
        Message<id()> window{*this, "window"};
        Message<Rect()> bounds{*this, "bounds"};
        Message<void(Rect)> setFrame{*this, "setFrame:"};
        Message<void(BOOL)> setNeedsDisplay{*this, "setNeedsDisplay:"};
        Message<void(id)> setSubviews{*this, "setSubviews:"};
        Message<void(id)> setNextKeyView{*this, "setNextKeyView:"};
        Message<Size()> intrinsicContentSize{*this, "intrinsicContentSize"};
        Message<Rect(Rect)> frameForAlignmentRect{*this, "frameForAlignmentRect:"};
        Message<void(BOOL)> setAccessibilityElement{*this, "setAccessibilityElement:"};
        Message<void(id)> setAccessibilityLabel{*this, "setAccessibilityLabel:"};
        Message<BOOL()> isFlipped{*this, "isFlipped"};
        Message<BOOL()> wantsUpdateLayer{*this, "wantsUpdateLayer"};
        Message<void(Rect)> drawRect{*this, "drawRect:"};
        Message<Rect()> focusRingMaskBounds{*this, "focusRingMaskBounds"};
        Message<void()> drawFocusRingMask{*this, "drawFocusRingMask"};
        Message<void()> viewDidMoveToWindow{*this, "viewDidMoveToWindow"};
    } view{*this, "NSView"};

    struct NSControl : ClassReference {
        using ClassReference::ClassReference;
        Message<id()> cell{*this, "cell"};
        Message<void(id)> setCell{*this, "setCell:"};
        Message<void(id)> setTarget{*this, "setTarget:"};
        Message<void(SEL)> setAction{*this, "setAction:"};
        Message<Integer()> tag{*this, "tag"};
        Message<void(Integer)> setTag{*this, "setTag:"};
        Message<void(BOOL)> setEnabled{*this, "setEnabled:"};
        Message<void(id)> setFont{*this, "setFont:"};
        Message<void(Unsigned)> setControlSize{*this, "setControlSize:"};
        Message<void(id)> setAttributedStringValue{*this, "setAttributedStringValue:"};
    } control{*this, "NSControl"};

    struct NSTextField : ClassReference {
        using ClassReference::ClassReference;
        Message<void(BOOL)> setEditable{*this, "setEditable:"};
        Message<void(BOOL)> setSelectable{*this, "setSelectable:"};
        Message<void(BOOL)> setBezeled{*this, "setBezeled:"};
        Message<void(BOOL)> setDrawsBackground{*this, "setDrawsBackground:"};
    } textField{*this, "NSTextField"};

    struct NSImageView : ClassReference {
        using ClassReference::ClassReference;
        Message<void(id)> setImage{*this, "setImage:"};
        Message<void(Unsigned)> setImageScaling{*this, "setImageScaling:"};
        Message<void(id)> setContentTintColor{*this, "setContentTintColor:"};
    } imageView{*this, "NSImageView"};

    struct NSSwitch : ClassReference {
        using ClassReference::ClassReference;
        Message<Integer()> state{*this, "state"};
        Message<void(Integer)> setState{*this, "setState:"};
    } switchControl{*this, "NSSwitch"};

    struct NSViewController : ClassReference {
        using ClassReference::ClassReference;
        Message<id(id, id)> initWithNibName{*this, "initWithNibName:bundle:"};
        Message<void(id)> setView{*this, "setView:"};
    } viewController{*this, "NSViewController"};

    struct NSWindow : ClassReference {
        using ClassReference::ClassReference;
        Message<id(Rect, Unsigned, Unsigned, BOOL)> initWithContentRect{
            *this, "initWithContentRect:styleMask:backing:defer:"};
        Message<id()> title{*this, "title"};
        Message<void(id)> setTitle{*this, "setTitle:"};
        Message<void(BOOL)> setReleasedWhenClosed{*this, "setReleasedWhenClosed:"};
        Message<void(Integer)> setLevel{*this, "setLevel:"};
        Message<void(BOOL)> setHidesOnDeactivate{*this, "setHidesOnDeactivate:"};
        Message<void(Unsigned)> setCollectionBehavior{*this, "setCollectionBehavior:"};
        Message<void()> center{*this, "center"};
        Message<void(id)> setContentView{*this, "setContentView:"};
        Message<void(id)> setContentViewController{*this, "setContentViewController:"};
        Message<void(id)> setDelegate{*this, "setDelegate:"};
        Message<void(id)> makeKeyAndOrderFront{*this, "makeKeyAndOrderFront:"};
        Message<void(id)> orderOut{*this, "orderOut:"};
        Message<void(id)> setInitialFirstResponder{*this, "setInitialFirstResponder:"};
        Message<Rect()> frame{*this, "frame"};
        Message<void(Rect, BOOL)> setFrame{*this, "setFrame:display:"};
        Message<Rect(Rect)> frameRectForContentRect{*this, "frameRectForContentRect:"};
    } window{*this, "NSWindow"};

    struct NSWindowDelegate : ProtocolReference {
        using ProtocolReference::ProtocolReference;
        Message<void(id)> windowDidBecomeKey{*this, "windowDidBecomeKey:"};
        Message<void(id)> windowWillClose{*this, "windowWillClose:"};
    } windowDelegate{*this, "NSWindowDelegate"};

    struct NSWindowController : ClassReference {
        using ClassReference::ClassReference;
        Message<id(id)> initWithWindow{*this, "initWithWindow:"};
        Message<id(id)> initWithCoder{*this, "initWithCoder:"};
    } windowController{*this, "NSWindowController"};

    struct NSFont : ClassReference {
        using ClassReference::ClassReference;
        ClassMessage<id(double)> systemFontOfSize{*this, "systemFontOfSize:"};
        ClassMessage<id(double, double)> systemFontOfSizeWeight{*this, "systemFontOfSize:weight:"};
        ClassMessage<double(Unsigned)> systemFontSizeForControlSize{*this, "systemFontSizeForControlSize:"};
    } font{*this, "NSFont"};

    struct NSColor : ClassReference {
        using ClassReference::ClassReference;
        ClassMessage<id()> labelColor{*this, "labelColor"};
        ClassMessage<id()> secondaryLabelColor{*this, "secondaryLabelColor"};
        ClassMessage<id()> tertiaryLabelColor{*this, "tertiaryLabelColor"};
        ClassMessage<id()> quaternaryLabelColor{*this, "quaternaryLabelColor"};
        ClassMessage<id()> quinaryLabelColor{*this, "quinaryLabelColor", Availability::newerSystems};
        ClassMessage<id()> quaternarySystemFillColor{*this, "quaternarySystemFillColor",
                                                     Availability::newerSystems};
        ClassMessage<id()> quinarySystemFillColor{*this, "quinarySystemFillColor",
                                                  Availability::newerSystems};
        ClassMessage<id()> controlAccentColor{*this, "controlAccentColor"};
        ClassMessage<id()> systemGreenColor{*this, "systemGreenColor"};
        ClassMessage<id()> whiteColor{*this, "whiteColor"};
        ClassMessage<id()> linkColor{*this, "linkColor"};
        ClassMessage<id()> separatorColor{*this, "separatorColor"};
        Message<double()> alphaComponent{*this, "alphaComponent"};
        Message<id(double)> colorWithAlphaComponent{*this, "colorWithAlphaComponent:"};
        Message<void()> set{*this, "set"};
    } color{*this, "NSColor"};

    struct NSBezierPath : ClassReference {
        using ClassReference::ClassReference;
        ClassMessage<id()> bezierPath{*this, "bezierPath"};
        Message<void(Point)> moveToPoint{*this, "moveToPoint:"};
        Message<void(Point)> lineToPoint{*this, "lineToPoint:"};
        Message<void(Point, Point, Point)> curveToPoint{*this, "curveToPoint:controlPoint1:controlPoint2:"};
        Message<void()> closePath{*this, "closePath"};
        Message<void(double)> setLineWidth{*this, "setLineWidth:"};
        Message<void()> fill{*this, "fill"};
        Message<void()> stroke{*this, "stroke"};
    } bezierPath{*this, "NSBezierPath"};

    struct NSMutableParagraphStyle : ClassReference {
        using ClassReference::ClassReference;
        Message<void(Integer)> setAlignment{*this, "setAlignment:"};
    } mutableParagraphStyle{*this, "NSMutableParagraphStyle"};

    struct NSAttributedString : ClassReference {
        using ClassReference::ClassReference;
        Message<id(id, id)> initWithString{*this, "initWithString:attributes:"};
        Message<Rect(Size, Integer)> boundingRectWithSize{*this, "boundingRectWithSize:options:"};
        Message<void(Rect, Integer)> drawWithRect{*this, "drawWithRect:options:"};
    } attributedString{*this, "NSAttributedString"};

    struct NSMutableAttributedString : ClassReference {
        using ClassReference::ClassReference;
        Message<void(id)> appendAttributedString{*this, "appendAttributedString:"};
    } mutableAttributedString{*this, "NSMutableAttributedString"};
};

extern const AppKit appKit;

// NOLINTEND(readability-identifier-naming)

} // namespace kestrune::mac
