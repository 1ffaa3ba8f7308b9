// Classes and messages of Foundation.
//
// Source: its public headers.
#pragma once

#include "mac/objc/Message.h"
#include "platform/ProcessInfo.h"

namespace kestrune::mac {

// NOLINTBEGIN(readability-identifier-naming): a message is sent by calling it, so it reads as a function.

namespace ns_object {
inline const ClassReference type{"NSObject"};
inline const Message<id()> alloc{type, "alloc", MethodKind::ofClass};
inline const Message<id()> init{type, "init"};
inline const Message<id()> retain{type, "retain"};
inline const Message<void()> release{type, "release"};
inline const Message<void()> dealloc{type, "dealloc"};
inline const Message<void(SEL, id, double)> performSelector{type, "performSelector:withObject:afterDelay:"};
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
inline const Message<id()> localizedUppercaseString{type, "localizedUppercaseString"};
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

namespace ns_mutable_array {
inline const ClassReference type{"NSMutableArray"};
inline const Message<void(id)> addObject{type, "addObject:"};
} // namespace ns_mutable_array

namespace ns_dictionary {
inline const ClassReference type{"NSDictionary"};
inline const Message<id(id)> objectForKey{type, "objectForKey:"};
} // namespace ns_dictionary

namespace ns_mutable_dictionary {
inline const ClassReference type{"NSMutableDictionary"};
inline const Message<void(id, id)> setObject{type, "setObject:forKey:"};
} // namespace ns_mutable_dictionary

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
inline const Message<id()> privateFrameworksPath{type, "privateFrameworksPath"};
inline const Message<id(id)> bundleWithPath{type, "bundleWithPath:", MethodKind::ofClass};
inline const Message<BOOL(id*)> loadAndReturnError{type, "loadAndReturnError:"};
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
inline const Message<void(id)> removeObserver{type, "removeObserver:"};
} // namespace ns_notification_center

namespace ns_notification {
inline const ClassReference type{"NSNotification"};
inline const Message<id()> object{type, "object"};
} // namespace ns_notification

namespace ns_url {
inline const ClassReference type{"NSURL"};
inline const Message<id(id)> urlWithString{type, "URLWithString:", MethodKind::ofClass};
inline const Message<id()> absoluteString{type, "absoluteString"};
} // namespace ns_url

namespace ns_url_components {
inline const ClassReference type{"NSURLComponents"};
inline const Message<void(id)> setScheme{type, "setScheme:"};
inline const Message<void(id)> setPath{type, "setPath:"};
inline const Message<void(id)> setQueryItems{type, "setQueryItems:"};
inline const Message<id()> url{type, "URL"};
} // namespace ns_url_components

namespace ns_url_query_item {
inline const ClassReference type{"NSURLQueryItem"};
inline const Message<id(id, id)> queryItemWithName{type, "queryItemWithName:value:", MethodKind::ofClass};
} // namespace ns_url_query_item

namespace ns_error {
inline const ClassReference type{"NSError"};
inline const Message<id()> localizedDescription{type, "localizedDescription"};
} // namespace ns_error

namespace ns_process_info {
inline const ClassReference type{"NSProcessInfo"};
inline const Message<id()> processInfo{type, "processInfo", MethodKind::ofClass};
inline const Message<OperatingSystemVersion()> operatingSystemVersion{type, "operatingSystemVersion"};
} // namespace ns_process_info

namespace ns_locale {
inline const ClassReference type{"NSLocale"};
inline const Message<id()> currentLocale{type, "currentLocale", MethodKind::ofClass};
inline const Message<id()> localeIdentifier{type, "localeIdentifier"};
} // namespace ns_locale

// NOLINTEND(readability-identifier-naming)

} // namespace kestrune::mac
