# SPDX-License-Identifier: MIT
# Writes the property list of the bundle to `file`.
set(BRELLOWIND_MACOS_VERSION "${CMAKE_OSX_DEPLOYMENT_TARGET}")
if(NOT BRELLOWIND_MACOS_VERSION)
  set(BRELLOWIND_MACOS_VERSION 13.0) # also the least that the interfaces of the system allow
endif()
function(brellowind_property_list file)
  configure_file(${PROJECT_SOURCE_DIR}/packaging/macos/Info.plist.in ${file} @ONLY)
endfunction()
