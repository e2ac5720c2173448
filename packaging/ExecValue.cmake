# SPDX-License-Identifier: MIT
# The Exec value for the program in `folder`: its name if the folder is in the default search path, else
# its path.
function(brellowind_exec_value folder result)
  set(value brellowind)
  if(NOT folder MATCHES "^/usr(/local)?/bin$")
    set(value "${folder}/brellowind")
    if(value MATCHES "[]\"`$\\%=;\t\r\n[]") # brackets hold CMake's lists together
      message(FATAL_ERROR " a desktop entry cannot name a program in ${folder}") # the space: one line
    endif()
    if(value MATCHES "[^A-Za-z0-9/._+-]")
      set(value "\"${value}\"")
    endif()
  endif()
  set(${result} "${value}" PARENT_SCOPE)
endfunction()
