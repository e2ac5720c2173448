# SPDX-License-Identifier: MIT
# Makes Brellowind.app of the executable `brellowind`, in the folder that defines it.
include(${PROJECT_SOURCE_DIR}/packaging/macos/Info.cmake)
find_package(Python3 REQUIRED COMPONENTS Interpreter)
find_program(BRELLOWIND_MACDEPLOYQT macdeployqt REQUIRED
  HINTS ${QT6_INSTALL_PREFIX}/${QT6_INSTALL_BINS})

brellowind_property_list(${CMAKE_CURRENT_BINARY_DIR}/Info.plist)
set(icon ${CMAKE_CURRENT_BINARY_DIR}/Brellowind.icns)
set(icon_writer ${PROJECT_SOURCE_DIR}/packaging/macos/icns)
set(pictures "")
foreach(size IN ITEMS 16 32 64 128 256 512)
  list(APPEND pictures
    ${PROJECT_SOURCE_DIR}/resources/icons/${size}x${size}/org.brellowind.Brellowind.png)
endforeach()
add_custom_command(OUTPUT ${icon}
  COMMAND Python3::Interpreter ${icon_writer} ${icon} ${pictures}
  DEPENDS ${icon_writer} ${pictures} VERBATIM)
set_source_files_properties(${icon} PROPERTIES MACOSX_PACKAGE_LOCATION Resources)

target_sources(brellowind PRIVATE ${icon})
set_target_properties(brellowind PROPERTIES
  OUTPUT_NAME Brellowind
  MACOSX_BUNDLE ON
  MACOSX_BUNDLE_INFO_PLIST ${CMAKE_CURRENT_BINARY_DIR}/Info.plist)

# What people run: with Qt inside and signed, so that it depends on nothing but the system.
add_custom_target(brellowind_bundle
  COMMAND ${PROJECT_SOURCE_DIR}/packaging/macos/deploy ${BRELLOWIND_MACDEPLOYQT}
    $<TARGET_BUNDLE_DIR:brellowind> $<TARGET_FILE:brellowind_settings_library>
    ${PROJECT_SOURCE_DIR}/src/settings/window/qml ${PROJECT_BINARY_DIR}/Brellowind.app
  VERBATIM)
add_dependencies(brellowind_bundle brellowind brellowind_settings_library)
