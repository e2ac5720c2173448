// SPDX-License-Identifier: MIT

// Declarations of what the program uses of Core Services, written from the documentation.
#pragma once

#include <Foundation/Foundation.h>

enum : OSType {
    kCoreEventClass = 0x61657674,      // "aevt"
    kAEReopenApplication = 0x72617070, // "rapp"
};
