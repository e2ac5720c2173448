// SPDX-License-Identifier: MIT

// Declarations of what the program uses of Foundation and of the Objective-C runtime, written from
// the documentation, to check the program's use of it with a compiler alone.
#pragma once

#include <cstddef>
#include <cstdint>
#include <sys/types.h>

typedef signed char BOOL;
#define YES __objc_yes
#define NO __objc_no
#define nil nullptr

#define NS_ENUM(type, name) enum name : type name; enum name : type
#define NS_OPTIONS(type, name) type name; enum __attribute__((flag_enum)) : type
#define API_AVAILABLE_MACOS(version) __attribute__((availability(macos, introduced = version)))
#define __unused __attribute__((__unused__))

typedef long NSInteger;
typedef unsigned long NSUInteger;
typedef std::uint32_t OSType;
typedef const struct __CFDictionary* CFDictionaryRef;
typedef const void* CFTypeRef;

typedef double CGFloat;
struct CGPoint {
    CGFloat x;
    CGFloat y;
};
struct CGSize {
    CGFloat width;
    CGFloat height;
};
struct CGRect {
    CGPoint origin;
    CGSize size;
};
typedef CGPoint NSPoint;
typedef CGRect NSRect;
struct NSEdgeInsets {
    CGFloat top;
    CGFloat left;
    CGFloat bottom;
    CGFloat right;
};

#pragma clang assume_nonnull begin

extern "C" void CFRelease(CFTypeRef reference);
extern "C" NSRect NSMakeRect(CGFloat x, CGFloat y, CGFloat width, CGFloat height);
extern "C" BOOL NSIsEmptyRect(NSRect rect);

@class NSString;

__attribute__((objc_root_class))
@interface NSObject
+ (instancetype)alloc;
- (instancetype)init;
@property(readonly, copy) NSString* description;
@end

@protocol NSObject
@end

struct NSFastEnumerationState {
    unsigned long state;
    id __unsafe_unretained _Nullable* _Nullable itemsPtr;
    unsigned long* _Nullable mutationsPtr;
    unsigned long extra[5];
};

@interface NSArray <__covariant Element> : NSObject
- (NSUInteger)countByEnumeratingWithState:(NSFastEnumerationState*)state
                                  objects:(id __unsafe_unretained _Nullable[_Nonnull])buffer
                                    count:(NSUInteger)count;
@end

@interface NSDictionary <Key, __covariant Value> : NSObject
- (nullable Value)objectForKeyedSubscript:(Key)key;
@end

@interface NSData : NSObject
@property(readonly) NSUInteger length;
@property(readonly) const void* bytes;
@end

@interface NSNumber : NSObject
@property(readonly) NSInteger integerValue;
@end

typedef NSUInteger NSStringEncoding;
enum : NSStringEncoding {
    NSUTF8StringEncoding = 4,
    NSISOLatin1StringEncoding = 5,
};

@interface NSString : NSObject
- (nullable instancetype)initWithBytes:(const void*)bytes
                                length:(NSUInteger)length
                              encoding:(NSStringEncoding)encoding;
- (BOOL)isEqualToString:(NSString*)other;
- (nullable NSData*)dataUsingEncoding:(NSStringEncoding)encoding
                 allowLossyConversion:(BOOL)lossy;
@end

extern "C" void NSLog(NSString* format, ...) __attribute__((format(__NSString__, 1, 2)));

@interface NSURL : NSObject
+ (nullable instancetype)URLWithString:(NSString*)text;
@end

@interface NSError : NSObject
@end

@interface NSBundle : NSObject
@property(class, readonly, strong) NSBundle* mainBundle;
@property(nullable, readonly, copy) NSString* bundleIdentifier;
@end

typedef NSString* NSNotificationName;

@interface NSNotification : NSObject
@end

@class NSOperationQueue;

@interface NSNotificationCenter : NSObject
@property(class, readonly, strong) NSNotificationCenter* defaultCenter;
- (void)addObserver:(id)observer
           selector:(SEL)selector
               name:(nullable NSNotificationName)name
             object:(nullable id)sender;
- (id<NSObject>)addObserverForName:(nullable NSNotificationName)name
                            object:(nullable id)sender
                             queue:(nullable NSOperationQueue*)queue
                        usingBlock:(void (^)(NSNotification* notification))block;
- (void)removeObserver:(id)observer;
@end

@interface NSAppleEventDescriptor : NSObject
@property(nullable, readonly, copy) NSString* stringValue;
@end

typedef OSType AEEventClass;
typedef OSType AEEventID;

@interface NSAppleEventManager : NSObject
+ (NSAppleEventManager*)sharedAppleEventManager;
- (void)setEventHandler:(id)handler
            andSelector:(SEL)selector
          forEventClass:(AEEventClass)eventClass
             andEventID:(AEEventID)eventID;
- (void)removeEventHandlerForEventClass:(AEEventClass)eventClass andEventID:(AEEventID)eventID;
@end

extern "C" NSString* const NSAppleScriptErrorNumber;

@interface NSAppleScript : NSObject
- (nullable instancetype)initWithSource:(NSString*)source;
- (NSAppleEventDescriptor*)executeAndReturnError:
    (NSDictionary<NSString*, id>* _Nullable __autoreleasing* _Nullable)errorInfo;
@end

#pragma clang assume_nonnull end
