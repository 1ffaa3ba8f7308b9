// Every class and message of the platform that the binding uses, in one list.
//
// A message is named after its selector. `checkVocabulary` holds the list against the runtime.
//
// Source: the public headers of Foundation and AppKit.
#pragma once

#include "base/Geometry.h"
#include "mac/objc/Message.h"

namespace kestrune::mac {

// NOLINTBEGIN(readability-identifier-naming): a message is sent by calling it, so it reads as a function.

namespace ns_object {
inline const ClassReference type{"NSObject"};
inline const Message<id()> alloc{type, "alloc", MethodKind::ofClass};
inline const Message<id()> init{type, "init"};
inline const Message<id()> retain{type, "retain"};
inline const Message<void()> release{type, "release"};
inline const Message<BOOL(Class)> isKindOfClass{type, "isKindOfClass:"};
} // namespace ns_object

namespace ns_autorelease_pool {
inline const ClassReference type{"NSAutoreleasePool"};
inline const Message<void()> drain{type, "drain"};
} // namespace ns_autorelease_pool

namespace ns_string {
inline const ClassReference type{"NSString"};
inline const Message<id(const void*, Unsigned, Unsigned)> initWithBytes{type,
                                                                        "initWithBytes:length:encoding:"};
inline const Message<const char*()> utf8String{type, "UTF8String"};
inline const Message<Unsigned(Unsigned)> lengthOfBytes{type, "lengthOfBytesUsingEncoding:"};
} // namespace ns_string

namespace ns_number {
inline const ClassReference type{"NSNumber"};
inline const Message<id(long long)> numberWithLongLong{type, "numberWithLongLong:", MethodKind::ofClass};
inline const Message<long long()> longLongValue{type, "longLongValue"};
inline const Message<double()> doubleValue{type, "doubleValue"};
inline const Message<const char*()> objCType{type, "objCType"};
} // namespace ns_number

namespace ns_array {
inline const ClassReference type{"NSArray"};
inline const Message<Unsigned()> count{type, "count"};
inline const Message<id(Unsigned)> objectAtIndex{type, "objectAtIndex:"};
} // namespace ns_array

namespace ns_dictionary {
inline const ClassReference type{"NSDictionary"};
inline const Message<id(id)> objectForKey{type, "objectForKey:"};
} // namespace ns_dictionary

namespace ns_thread {
inline const ClassReference type{"NSThread"};
inline const Message<BOOL()> isMainThread{type, "isMainThread", MethodKind::ofClass};
} // namespace ns_thread

namespace ns_user_defaults {
inline const ClassReference type{"NSUserDefaults"};
inline const Message<id()> standardUserDefaults{type, "standardUserDefaults", MethodKind::ofClass};
inline const Message<id(id)> objectForKey{type, "objectForKey:"};
inline const Message<BOOL(id)> boolForKey{type, "boolForKey:"};
inline const Message<double(id)> doubleForKey{type, "doubleForKey:"};
inline const Message<id(id)> stringForKey{type, "stringForKey:"};
inline const Message<void(BOOL, id)> setBool{type, "setBool:forKey:"};
inline const Message<void(id, id)> setObject{type, "setObject:forKey:"};
inline const Message<void(id)> removeObject{type, "removeObjectForKey:"};
} // namespace ns_user_defaults

namespace ns_bundle {
inline const ClassReference type{"NSBundle"};
inline const Message<id()> mainBundle{type, "mainBundle", MethodKind::ofClass};
inline const Message<id()> bundleIdentifier{type, "bundleIdentifier"};
inline const Message<id()> infoDictionary{type, "infoDictionary"};
inline const Message<id(id, id, id)> localizedString{type, "localizedStringForKey:value:table:"};
} // namespace ns_bundle

namespace ns_timer {
inline const ClassReference type{"NSTimer"};
inline const Message<id(double, BOOL, id)> scheduledTimer{
    type, "scheduledTimerWithTimeInterval:repeats:block:", MethodKind::ofClass};
inline const Message<void()> invalidate{type, "invalidate"};
} // namespace ns_timer

namespace ns_operation_queue {
inline const ClassReference type{"NSOperationQueue"};
inline const Message<id()> mainQueue{type, "mainQueue", MethodKind::ofClass};
} // namespace ns_operation_queue

namespace ns_notification_center {
inline const ClassReference type{"NSNotificationCenter"};
inline const Message<id()> defaultCenter{type, "defaultCenter", MethodKind::ofClass};
inline const Message<id(id, id, id, id)> addObserver{type, "addObserverForName:object:queue:usingBlock:"};
} // namespace ns_notification_center

namespace ns_url {
inline const ClassReference type{"NSURL"};
inline const Message<id(id)> urlWithString{type, "URLWithString:", MethodKind::ofClass};
} // namespace ns_url

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
inline const Message<void(id)> setMainMenu{type, "setMainMenu:"};
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
} // namespace ns_image

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
} // namespace ns_button

// NOLINTEND(readability-identifier-naming)

} // namespace kestrune::mac
