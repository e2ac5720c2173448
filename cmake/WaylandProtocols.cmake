# Client code of Wayland protocols, written by wayland-scanner from their XML files.
find_package(PkgConfig REQUIRED)
pkg_check_modules(BRELLOWIND_WAYLAND_CLIENT REQUIRED IMPORTED_TARGET wayland-client)
pkg_get_variable(BRELLOWIND_WAYLAND_SCANNER wayland-scanner wayland_scanner)
pkg_get_variable(BRELLOWIND_WAYLAND_PROTOCOLS wayland-protocols pkgdatadir)

# A static library; the header of "folder/name.xml" is "name-client-protocol.h".
function(brellowind_wayland_protocols library)
  set(folder ${CMAKE_CURRENT_BINARY_DIR}/${library})
  file(MAKE_DIRECTORY ${folder})
  set(sources "")
  foreach(xml IN LISTS ARGN)
    get_filename_component(name ${xml} NAME_WE)
    set(header ${folder}/${name}-client-protocol.h)
    set(code ${folder}/${name}-protocol.c)
    add_custom_command(OUTPUT ${header} DEPENDS ${xml} VERBATIM
      COMMAND ${BRELLOWIND_WAYLAND_SCANNER} client-header ${xml} ${header}
      COMMAND sed -i s/\\<namespace\\>/name_space/g ${header}) # an argument's name; no word for C++
    add_custom_command(OUTPUT ${code} DEPENDS ${xml} VERBATIM
      COMMAND ${BRELLOWIND_WAYLAND_SCANNER} private-code ${xml} ${code})
    list(APPEND sources ${header} ${code})
  endforeach()
  add_library(${library} STATIC ${sources})
  target_include_directories(${library} SYSTEM PUBLIC ${folder})
  target_link_libraries(${library} PUBLIC PkgConfig::BRELLOWIND_WAYLAND_CLIENT)
endfunction()
