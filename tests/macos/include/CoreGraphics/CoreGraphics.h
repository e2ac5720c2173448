// SPDX-License-Identifier: MIT

// Declarations of what the program uses of Core Graphics, written from the documentation.
#pragma once

#include <Foundation/Foundation.h>

typedef std::int32_t CGWindowLevel;

extern "C" CGWindowLevel CGShieldingWindowLevel(void);
extern "C" CFDictionaryRef _Nullable CGSessionCopyCurrentDictionary(void);
