# SPDX-License-Identifier: MIT
# Functions for the project's targets, with common warnings and include folder.
add_library(brellowind_options INTERFACE)
target_compile_options(brellowind_options INTERFACE
  -Wall -Wextra -Wpedantic -Wconversion -Wnon-virtual-dtor -Woverloaded-virtual
  # Compiled QML shadows its own parameters.
  $<$<NOT:$<BOOL:$<TARGET_PROPERTY:BRELLOWIND_COMPILES_QML>>>:-Wshadow>
  $<$<BOOL:${BRELLOWIND_WARNINGS_AS_ERRORS}>:-Werror>)

if(BRELLOWIND_SANITIZE)
  target_compile_options(brellowind_options INTERFACE
    -fsanitize=${BRELLOWIND_SANITIZE} -fno-omit-frame-pointer -fno-sanitize-recover=all)
  target_link_options(brellowind_options INTERFACE -fsanitize=${BRELLOWIND_SANITIZE})
endif()

if(BRELLOWIND_BUILD_PROGRAM)
  add_library(brellowind_qt_options INTERFACE)
  target_link_libraries(brellowind_qt_options INTERFACE brellowind_options Qt6::Core)
  target_compile_definitions(brellowind_qt_options INTERFACE
    QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII QT_NO_KEYWORDS QT_NO_FOREACH
    QT_NO_NARROWING_CONVERSIONS_IN_CONNECT)
endif()

# A static library without Qt. Includes are relative to src/.
function(brellowind_core_library name)
  add_library(${name} STATIC ${ARGN})
  target_include_directories(${name} PUBLIC ${PROJECT_SOURCE_DIR}/src)
  target_link_libraries(${name} PRIVATE brellowind_options)
endfunction()

# A static library that may use Qt.
function(brellowind_qt_library name)
  add_library(${name} STATIC ${ARGN})
  set_target_properties(${name} PROPERTIES AUTOMOC ON)
  target_include_directories(${name} PUBLIC ${PROJECT_SOURCE_DIR}/src)
  target_link_libraries(${name} PUBLIC Qt6::Core PRIVATE brellowind_qt_options)
endfunction()

# The folder of the settings library, relative to the parent of the program's folder ("bin", in a
# bundle "MacOS"), in a build tree as in an installation. Outside the search paths for libraries.
if(APPLE)
  set(BRELLOWIND_LIBRARY_FOLDER PlugIns/brellowind)
else()
  set(BRELLOWIND_LIBRARY_FOLDER lib/brellowind/modules)
endif()

# Links the executable `target` with the whole of Brellowind.
function(brellowind_program target)
  target_link_libraries(${target} PRIVATE brellowind_app brellowind_qt_options)
  add_dependencies(${target} brellowind_settings_library)
  set_target_properties(${target} PROPERTIES
    RUNTIME_OUTPUT_DIRECTORY ${PROJECT_BINARY_DIR}/bin)
endfunction()
