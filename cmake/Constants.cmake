# The constants that the product's owner or a packager may set. They are compiled in: the program
# itself has no configuration.

set(BRELLOWIND_LYRICS_ORIGIN "https://lrclib.net" CACHE STRING
  "Scheme and host of the lyrics service, without a trailing slash")
set(BRELLOWIND_WEBSITE_URL "https://brellowind.example" CACHE STRING "The product's website")
set(BRELLOWIND_MPRIS_PLAYERS "spotify" CACHE STRING
  "Players that count as Spotify: names after org.mpris.MediaPlayer2., separated by semicolons")

function(brellowind_check_constant name pattern meaning)
  if(NOT "${${name}}" MATCHES "${pattern}")
    message(FATAL_ERROR "${name} is \"${${name}}\", which is not ${meaning}")
  endif()
endfunction()

set(url_characters "[^][<>{}|\\^`\" \t\r\n;]")
brellowind_check_constant(BRELLOWIND_LYRICS_ORIGIN "^https?://[A-Za-z0-9.-]+(:[0-9]+)?$"
  "an origin such as https://lyrics.example")
brellowind_check_constant(BRELLOWIND_WEBSITE_URL "^https?://[A-Za-z0-9.-]+(:[0-9]+)?(/${url_characters}*)?$"
  "a web address")
foreach(player IN LISTS BRELLOWIND_MPRIS_PLAYERS)
  set(BRELLOWIND_MPRIS_PLAYER "${player}")
  brellowind_check_constant(BRELLOWIND_MPRIS_PLAYER "^[A-Za-z_-][A-Za-z0-9_-]*$" "the last element of a bus name")
  if(player STREQUAL "playerctld")
    message(FATAL_ERROR "BRELLOWIND_MPRIS_PLAYERS names playerctld, which only repeats other players")
  endif()
endforeach()
if(NOT BRELLOWIND_MPRIS_PLAYERS)
  message(FATAL_ERROR "BRELLOWIND_MPRIS_PLAYERS names no player")
endif()
