# SPDX-License-Identifier: MIT
# Fails unless the desktop entry of a program in `folder` starts `expected`.
include(${CMAKE_CURRENT_LIST_DIR}/../../packaging/ExecValue.cmake)
brellowind_exec_value("${folder}" value)
if(NOT value STREQUAL expected)
  message(FATAL_ERROR " ${value} instead of ${expected}")
endif()
