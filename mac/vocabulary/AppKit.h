// Classes and messages of AppKit.
//
// Source: its public headers.
#pragma once

#include "base/Geometry.h"
#include "mac/objc/Message.h"

namespace kestrune::mac {

// NOLINTBEGIN(readability-identifier-naming): a message is sent by calling it, so it reads as a function.

namespace ns_workspace {
inline const ClassReference type{"NSWorkspace"};
inline const Message<id()> sharedWorkspace{type, "sharedWorkspace", MethodKind::ofClass};
inline const Message<BOOL(id)> openURL{type, "openURL:"};
} // namespace ns_workspace

namespace ns_screen {
inline const ClassReference type{"NSScreen"};
inline const Message<id()> screens{type, "screens", MethodKind::ofClass};
inline const Message<id()> mainScreen{type, "mainScreen", MethodKind::ofClass};
inline const Message<id()> deviceDescription{type, "deviceDescription"};
inline const Message<id()> localizedName{type, "localizedName"};
inline const Message<Rect()> frame{type, "frame"};
} // namespace ns_screen

namespace ns_application {
inline const ClassReference type{"NSApplication"};
inline const Message<id()> sharedApplication{type, "sharedApplication", MethodKind::ofClass};
inline const Message<void(id)> setDelegate{type, "setDelegate:"};
inline const Message<BOOL(Integer)> setActivationPolicy{type, "setActivationPolicy:"};
inline const Message<Integer()> activationPolicy{type, "activationPolicy"};
inline const Message<id()> windows{type, "windows"};
inline const Message<void(id)> setMainMenu{type, "setMainMenu:"};
inline const Message<void(BOOL)> activateIgnoringOtherApps{type, "activateIgnoringOtherApps:"};
inline const Message<void()> run{type, "run"};
inline const Message<void(id)> terminate{type, "terminate:"};
} // namespace ns_application

namespace ns_menu {
inline const ClassReference type{"NSMenu"};
inline const Message<id(id)> initWithTitle{type, "initWithTitle:"};
inline const Message<void(BOOL)> setAutoenablesItems{type, "setAutoenablesItems:"};
inline const Message<void(id)> addItem{type, "addItem:"};
inline const Message<void(id)> setDelegate{type, "setDelegate:"};
} // namespace ns_menu

namespace ns_menu_item {
inline const ClassReference type{"NSMenuItem"};
inline const Message<id(id, SEL, id)> initWithTitle{type, "initWithTitle:action:keyEquivalent:"};
inline const Message<id()> separatorItem{type, "separatorItem", MethodKind::ofClass};
inline const Message<void(id)> setTarget{type, "setTarget:"};
inline const Message<void(id)> setSubmenu{type, "setSubmenu:"};
inline const Message<void(Unsigned)> setKeyEquivalentModifierMask{type, "setKeyEquivalentModifierMask:"};
inline const Message<void(id)> setRepresentedObject{type, "setRepresentedObject:"};
inline const Message<id()> representedObject{type, "representedObject"};
inline const Message<void(Integer)> setState{type, "setState:"};
inline const Message<void(BOOL)> setEnabled{type, "setEnabled:"};
} // namespace ns_menu_item

namespace ns_image {
inline const ClassReference type{"NSImage"};
inline const Message<id(id)> imageNamed{type, "imageNamed:", MethodKind::ofClass};
inline const Message<void(BOOL)> setTemplate{type, "setTemplate:"};
inline const Message<void(Size)> setSize{type, "setSize:"};
inline const Message<Size()> size{type, "size"};
inline const Message<id(Size)> initWithSize{type, "initWithSize:"};
inline const Message<void()> lockFocus{type, "lockFocus"};
inline const Message<void()> unlockFocus{type, "unlockFocus"};
inline const Message<void(Rect, Rect, Unsigned, double, BOOL, id)> drawInRect{
    type, "drawInRect:fromRect:operation:fraction:respectFlipped:hints:"};
inline const Message<id(id, id)> imageWithSystemSymbolName{
    type, "imageWithSystemSymbolName:accessibilityDescription:", MethodKind::ofClass};
inline const Message<id(id)> imageWithSymbolConfiguration{type, "imageWithSymbolConfiguration:"};
} // namespace ns_image

namespace ns_image_symbol_configuration {
inline const ClassReference type{"NSImageSymbolConfiguration"};
inline const Message<id(double, double, Integer)> configurationWithPointSize{
    type, "configurationWithPointSize:weight:scale:", MethodKind::ofClass};
} // namespace ns_image_symbol_configuration

namespace ns_status_bar {
inline const ClassReference type{"NSStatusBar"};
inline const Message<id()> systemStatusBar{type, "systemStatusBar", MethodKind::ofClass};
inline const Message<id(double)> statusItemWithLength{type, "statusItemWithLength:"};
} // namespace ns_status_bar

namespace ns_status_item {
inline const ClassReference type{"NSStatusItem"};
inline const Message<id()> button{type, "button"};
inline const Message<void(id)> setMenu{type, "setMenu:"};
} // namespace ns_status_item

namespace ns_button {
inline const ClassReference type{"NSButton"};
inline const Message<void(id)> setImage{type, "setImage:"};
inline const Message<void(Unsigned)> setImageScaling{type, "setImageScaling:"};
inline const Message<void(id)> setToolTip{type, "setToolTip:"};
inline const Message<void(id)> setTitle{type, "setTitle:"};
inline const Message<void(id)> setKeyEquivalent{type, "setKeyEquivalent:"};
inline const Message<void(Unsigned)> setButtonType{type, "setButtonType:"};
inline const Message<void(Unsigned)> setBezelStyle{type, "setBezelStyle:"};
inline const Message<void(BOOL)> setBordered{type, "setBordered:"};
inline const Message<void(BOOL)> setHasDestructiveAction{type, "setHasDestructiveAction:"};
} // namespace ns_button

namespace ns_cell {
inline const ClassReference type{"NSCell"};
inline const Message<BOOL()> isHighlighted{type, "isHighlighted"};
inline const Message<void(BOOL)> setWraps{type, "setWraps:"};
} // namespace ns_cell

namespace ns_button_cell {
inline const ClassReference type{"NSButtonCell"};
} // namespace ns_button_cell

namespace ns_view {
inline const ClassReference type{"NSView"};
inline const Message<id(Rect)> initWithFrame{type, "initWithFrame:"};
inline const Message<id()> window{type, "window"};
inline const Message<Rect()> bounds{type, "bounds"};
inline const Message<void(Rect)> setFrame{type, "setFrame:"};
inline const Message<void(BOOL)> setNeedsDisplay{type, "setNeedsDisplay:"};
inline const Message<void(id)> setSubviews{type, "setSubviews:"};
inline const Message<void(id)> setNextKeyView{type, "setNextKeyView:"};
inline const Message<Size()> intrinsicContentSize{type, "intrinsicContentSize"};
inline const Message<Rect(Rect)> frameForAlignmentRect{type, "frameForAlignmentRect:"};
inline const Message<void(BOOL)> setAccessibilityElement{type, "setAccessibilityElement:"};
inline const Message<void(id)> setAccessibilityLabel{type, "setAccessibilityLabel:"};
} // namespace ns_view

namespace ns_control {
inline const ClassReference type{"NSControl"};
inline const Message<id()> cell{type, "cell"};
inline const Message<void(id)> setCell{type, "setCell:"};
inline const Message<void(id)> setTarget{type, "setTarget:"};
inline const Message<void(SEL)> setAction{type, "setAction:"};
inline const Message<Integer()> tag{type, "tag"};
inline const Message<void(Integer)> setTag{type, "setTag:"};
inline const Message<void(BOOL)> setEnabled{type, "setEnabled:"};
inline const Message<void(id)> setFont{type, "setFont:"};
inline const Message<void(Unsigned)> setControlSize{type, "setControlSize:"};
inline const Message<void(id)> setAttributedStringValue{type, "setAttributedStringValue:"};
} // namespace ns_control

namespace ns_text_field {
inline const ClassReference type{"NSTextField"};
inline const Message<void(BOOL)> setEditable{type, "setEditable:"};
inline const Message<void(BOOL)> setSelectable{type, "setSelectable:"};
inline const Message<void(BOOL)> setBezeled{type, "setBezeled:"};
inline const Message<void(BOOL)> setDrawsBackground{type, "setDrawsBackground:"};
} // namespace ns_text_field

namespace ns_image_view {
inline const ClassReference type{"NSImageView"};
inline const Message<void(id)> setImage{type, "setImage:"};
inline const Message<void(Unsigned)> setImageScaling{type, "setImageScaling:"};
inline const Message<void(id)> setContentTintColor{type, "setContentTintColor:"};
} // namespace ns_image_view

namespace ns_switch {
inline const ClassReference type{"NSSwitch"};
inline const Message<Integer()> state{type, "state"};
inline const Message<void(Integer)> setState{type, "setState:"};
} // namespace ns_switch

namespace ns_view_controller {
inline const ClassReference type{"NSViewController"};
inline const Message<id(id, id)> initWithNibName{type, "initWithNibName:bundle:"};
inline const Message<void(id)> setView{type, "setView:"};
} // namespace ns_view_controller

namespace ns_window {
inline const ClassReference type{"NSWindow"};
inline const Message<id(Rect, Unsigned, Unsigned, BOOL)> initWithContentRect{
    type, "initWithContentRect:styleMask:backing:defer:"};
inline const Message<id()> title{type, "title"};
inline const Message<void(id)> setTitle{type, "setTitle:"};
inline const Message<void(BOOL)> setReleasedWhenClosed{type, "setReleasedWhenClosed:"};
inline const Message<void(Integer)> setLevel{type, "setLevel:"};
inline const Message<void(BOOL)> setHidesOnDeactivate{type, "setHidesOnDeactivate:"};
inline const Message<void(Unsigned)> setCollectionBehavior{type, "setCollectionBehavior:"};
inline const Message<void()> center{type, "center"};
inline const Message<void(id)> setContentView{type, "setContentView:"};
inline const Message<void(id)> setContentViewController{type, "setContentViewController:"};
inline const Message<void(id)> setDelegate{type, "setDelegate:"};
inline const Message<void(id)> makeKeyAndOrderFront{type, "makeKeyAndOrderFront:"};
inline const Message<void(id)> orderOut{type, "orderOut:"};
inline const Message<void(id)> setInitialFirstResponder{type, "setInitialFirstResponder:"};
inline const Message<Rect()> frame{type, "frame"};
inline const Message<void(Rect, BOOL)> setFrame{type, "setFrame:display:"};
inline const Message<Rect(Rect)> frameRectForContentRect{type, "frameRectForContentRect:"};
} // namespace ns_window

namespace ns_window_controller {
inline const ClassReference type{"NSWindowController"};
inline const Message<id(id)> initWithWindow{type, "initWithWindow:"};
} // namespace ns_window_controller

namespace ns_font {
inline const ClassReference type{"NSFont"};
inline const Message<id(double)> systemFontOfSize{type, "systemFontOfSize:", MethodKind::ofClass};
inline const Message<id(double, double)> systemFontOfSizeWeight{
    type, "systemFontOfSize:weight:", MethodKind::ofClass};
inline const Message<double(Unsigned)> systemFontSizeForControlSize{
    type, "systemFontSizeForControlSize:", MethodKind::ofClass};
} // namespace ns_font

namespace ns_color {
inline const ClassReference type{"NSColor"};
inline const Message<id()> labelColor{type, "labelColor", MethodKind::ofClass};
inline const Message<id()> secondaryLabelColor{type, "secondaryLabelColor", MethodKind::ofClass};
inline const Message<id()> tertiaryLabelColor{type, "tertiaryLabelColor", MethodKind::ofClass};
inline const Message<id()> quaternaryLabelColor{type, "quaternaryLabelColor", MethodKind::ofClass};
inline const Message<id()> controlAccentColor{type, "controlAccentColor", MethodKind::ofClass};
inline const Message<id()> systemGreenColor{type, "systemGreenColor", MethodKind::ofClass};
inline const Message<id()> whiteColor{type, "whiteColor", MethodKind::ofClass};
inline const Message<id()> linkColor{type, "linkColor", MethodKind::ofClass};
inline const Message<id()> separatorColor{type, "separatorColor", MethodKind::ofClass};
inline const Message<double()> alphaComponent{type, "alphaComponent"};
inline const Message<id(double)> colorWithAlphaComponent{type, "colorWithAlphaComponent:"};
inline const Message<void()> set{type, "set"};
} // namespace ns_color

namespace ns_bezier_path {
inline const ClassReference type{"NSBezierPath"};
inline const Message<id(Rect, double, double)> bezierPathWithRoundedRect{
    type, "bezierPathWithRoundedRect:xRadius:yRadius:", MethodKind::ofClass};
inline const Message<void()> fill{type, "fill"};
} // namespace ns_bezier_path

namespace ns_mutable_paragraph_style {
inline const ClassReference type{"NSMutableParagraphStyle"};
inline const Message<void(Integer)> setAlignment{type, "setAlignment:"};
} // namespace ns_mutable_paragraph_style

namespace ns_attributed_string {
inline const ClassReference type{"NSAttributedString"};
inline const Message<id(id, id)> initWithString{type, "initWithString:attributes:"};
inline const Message<Rect(Size, Integer)> boundingRectWithSize{type, "boundingRectWithSize:options:"};
inline const Message<void(Rect, Integer)> drawWithRect{type, "drawWithRect:options:"};
} // namespace ns_attributed_string

namespace ns_mutable_attributed_string {
inline const ClassReference type{"NSMutableAttributedString"};
inline const Message<void(id)> appendAttributedString{type, "appendAttributedString:"};
} // namespace ns_mutable_attributed_string

// NOLINTEND(readability-identifier-naming)

} // namespace kestrune::mac
