// Classes and messages of Foundation.
//
// Source: its public headers.
#pragma once

#include "mac/vocabulary/Message.h"
#include "platform/ProcessInfo.h"

namespace kestrune::mac {

// NOLINTBEGIN(readability-identifier-naming): a message is sent by calling it, so it reads as a function.

struct Foundation : Framework {
    struct NSObject : ClassReference {
        using ClassReference::ClassReference;
        Message<id()> alloc{*this, "alloc", MethodKind::ofClass}; // of whichever class
        Message<id()> init{*this, "init"};
        Message<id()> retain{*this, "retain"};
        Message<void()> release{*this, "release"};
        Message<void()> dealloc{*this, "dealloc"};
        Message<id()> self{*this, "self"};
        Message<void(SEL, id, double)> performSelector{*this, "performSelector:withObject:afterDelay:"};
        Message<BOOL(Class)> isKindOfClass{*this, "isKindOfClass:"};
        Message<BOOL(SEL)> respondsToSelector{*this, "respondsToSelector:"};
    } object{*this, "NSObject"};

    struct NSAutoreleasePool : ClassReference {
        using ClassReference::ClassReference;
        Message<void()> drain{*this, "drain"};
    } autoreleasePool{*this, "NSAutoreleasePool"};

    struct NSString : ClassReference {
        using ClassReference::ClassReference;
        Message<id(const void*, Unsigned, Unsigned)> initWithBytes{*this, "initWithBytes:length:encoding:"};
        Message<const char*()> utf8String{*this, "UTF8String"};
        Message<Unsigned(Unsigned)> lengthOfBytes{*this, "lengthOfBytesUsingEncoding:"};
        Message<id()> localizedUppercaseString{*this, "localizedUppercaseString"};
    } string{*this, "NSString"};

    struct NSNumber : ClassReference {
        using ClassReference::ClassReference;
        ClassMessage<id(long long)> numberWithLongLong{*this, "numberWithLongLong:"};
        Message<long long()> longLongValue{*this, "longLongValue"};
        Message<double()> doubleValue{*this, "doubleValue"};
        Message<const char*()> objCType{*this, "objCType"};
    } number{*this, "NSNumber"};

    struct NSArray : ClassReference {
        using ClassReference::ClassReference;
        Message<Unsigned()> count{*this, "count"};
        Message<id(Unsigned)> objectAtIndex{*this, "objectAtIndex:"};
    } array{*this, "NSArray"};

    struct NSMutableArray : ClassReference {
        using ClassReference::ClassReference;
        Message<void(id)> addObject{*this, "addObject:"};
    } mutableArray{*this, "NSMutableArray"};

    struct NSDictionary : ClassReference {
        using ClassReference::ClassReference;
        Message<id(id)> objectForKey{*this, "objectForKey:"};
    } dictionary{*this, "NSDictionary"};

    struct NSMutableDictionary : ClassReference {
        using ClassReference::ClassReference;
        Message<void(id, id)> setObject{*this, "setObject:forKey:"};
    } mutableDictionary{*this, "NSMutableDictionary"};

    struct NSThread : ClassReference {
        using ClassReference::ClassReference;
        ClassMessage<BOOL()> isMainThread{*this, "isMainThread"};
    } thread{*this, "NSThread"};

    struct NSUserDefaults : ClassReference {
        using ClassReference::ClassReference;
        ClassMessage<id()> standardUserDefaults{*this, "standardUserDefaults"};
        Message<id(id)> objectForKey{*this, "objectForKey:"};
        Message<BOOL(id)> boolForKey{*this, "boolForKey:"};
        Message<double(id)> doubleForKey{*this, "doubleForKey:"};
        Message<id(id)> stringForKey{*this, "stringForKey:"};
        Message<void(BOOL, id)> setBool{*this, "setBool:forKey:"};
        Message<void(id, id)> setObject{*this, "setObject:forKey:"};
        Message<void(id)> removeObject{*this, "removeObjectForKey:"};
    } userDefaults{*this, "NSUserDefaults"};

    struct NSBundle : ClassReference {
        using ClassReference::ClassReference;
        ClassMessage<id()> mainBundle{*this, "mainBundle"};
        Message<id()> bundleIdentifier{*this, "bundleIdentifier"};
        Message<id()> infoDictionary{*this, "infoDictionary"};
        Message<id(id, id, id)> localizedString{*this, "localizedStringForKey:value:table:"};
        Message<id()> privateFrameworksPath{*this, "privateFrameworksPath"};
        ClassMessage<id(id)> bundleWithPath{*this, "bundleWithPath:"};
        Message<BOOL(id*)> loadAndReturnError{*this, "loadAndReturnError:"};
    } bundle{*this, "NSBundle"};

    struct NSTimer : ClassReference {
        using ClassReference::ClassReference;
        ClassMessage<id(double, BOOL, id)> scheduledTimer{*this,
                                                          "scheduledTimerWithTimeInterval:repeats:block:"};
        Message<void()> invalidate{*this, "invalidate"};
    } timer{*this, "NSTimer"};

    struct NSOperationQueue : ClassReference {
        using ClassReference::ClassReference;
        ClassMessage<id()> mainQueue{*this, "mainQueue"};
    } operationQueue{*this, "NSOperationQueue"};

    struct NSNotificationCenter : ClassReference {
        using ClassReference::ClassReference;
        ClassMessage<id()> defaultCenter{*this, "defaultCenter"};
        Message<id(id, id, id, id)> addObserver{*this, "addObserverForName:object:queue:usingBlock:"};
        Message<void(id)> removeObserver{*this, "removeObserver:"};
    } notificationCenter{*this, "NSNotificationCenter"};

    struct NSNotification : ClassReference {
        using ClassReference::ClassReference;
        Message<id()> object{*this, "object"};
    } notification{*this, "NSNotification"};

    struct NSURL : ClassReference {
        using ClassReference::ClassReference;
        ClassMessage<id(id)> urlWithString{*this, "URLWithString:"};
        Message<id()> absoluteString{*this, "absoluteString"};
    } url{*this, "NSURL"};

    struct NSURLComponents : ClassReference {
        using ClassReference::ClassReference;
        Message<void(id)> setScheme{*this, "setScheme:"};
        Message<void(id)> setPath{*this, "setPath:"};
        Message<void(id)> setQueryItems{*this, "setQueryItems:"};
        Message<id()> url{*this, "URL"};
    } urlComponents{*this, "NSURLComponents"};

    struct NSURLQueryItem : ClassReference {
        using ClassReference::ClassReference;
        ClassMessage<id(id, id)> queryItemWithName{*this, "queryItemWithName:value:"};
    } urlQueryItem{*this, "NSURLQueryItem"};

    struct NSError : ClassReference {
        using ClassReference::ClassReference;
        Message<id()> localizedDescription{*this, "localizedDescription"};
    } error{*this, "NSError"};

    struct NSProcessInfo : ClassReference {
        using ClassReference::ClassReference;
        ClassMessage<id()> processInfo{*this, "processInfo"};
        Message<OperatingSystemVersion()> operatingSystemVersion{*this, "operatingSystemVersion"};
    } processInfo{*this, "NSProcessInfo"};

    struct NSLocale : ClassReference {
        using ClassReference::ClassReference;
        ClassMessage<id()> currentLocale{*this, "currentLocale"};
        Message<id()> localeIdentifier{*this, "localeIdentifier"};
    } locale{*this, "NSLocale"};
};

extern const Foundation foundation;

// NOLINTEND(readability-identifier-naming)

} // namespace kestrune::mac
