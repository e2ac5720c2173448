# SPDX-License-Identifier: MIT
# Toolchain: the clang that scripts/dependencies installs.
find_program(BRELLOWIND_CLANG NAMES clang++-19 clang++-16 NO_CACHE REQUIRED)
set(CMAKE_CXX_COMPILER ${BRELLOWIND_CLANG})
