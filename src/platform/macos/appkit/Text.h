// SPDX-License-Identifier: MIT

#pragma once

#import <Foundation/Foundation.h>

#include <string>
#include <string_view>

namespace brellowind::platform {

/// What is no UTF-8 is read byte by byte.
inline NSString* _Nonnull nativeText(std::string_view text) {
    NSString* native = [[NSString alloc] initWithBytes:text.data()
                                                length:text.size()
                                              encoding:NSUTF8StringEncoding];
    if (native == nil)
        native = [[NSString alloc] initWithBytes:text.data()
                                          length:text.size()
                                        encoding:NSISOLatin1StringEncoding];
    return native != nil ? native : @"";
}

/// In UTF-8; empty for nil. A text may hold NUL.
inline std::string plainText(NSString* _Nullable native) {
    NSData* bytes = [native dataUsingEncoding:NSUTF8StringEncoding allowLossyConversion:YES];
    return {static_cast<const char*>(bytes.bytes), bytes.length};
}

} // namespace brellowind::platform
