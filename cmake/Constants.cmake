# SPDX-License-Identifier: MIT
# The constants that the product's owner or a packager may set. They are compiled in: the program
# itself has no configuration.

set(BRELLOWIND_LYRICS_ORIGIN "https://lrclib.net" CACHE STRING
  "https and host of the lyrics service, without a trailing slash")
# An empty value disables what would use it: links, feedback, update checks.
set(BRELLOWIND_WEBSITE_URL "" CACHE STRING "The product's website")
set(BRELLOWIND_SOCIAL_URL "" CACHE STRING "The product's social-media profile")
set(BRELLOWIND_PRIVACY_POLICY_URL "" CACHE STRING "The privacy policy")
set(BRELLOWIND_TERMS_URL "" CACHE STRING "The terms of use")
set(BRELLOWIND_FEEDBACK_EMAIL "" CACHE STRING "The mailbox that receives feedback")
set(BRELLOWIND_UPDATE_FEED_URL "" CACHE STRING
  "The release feed: an https address whose document is named latest.json")
set(BRELLOWIND_SCREENSHOT_URL "" CACHE STRING "A picture of the pill, for software catalogues")
set(BRELLOWIND_LEGAL_NOTICE "" CACHE STRING "One line that names the rights holder")
set(BRELLOWIND_MPRIS_PLAYERS "spotify" CACHE STRING
  "Players that count as Spotify: names after org.mpris.MediaPlayer2., separated by semicolons")

set(BRELLOWIND_PACKAGER "The Brellowind authors <authors@brellowind.example>" CACHE STRING
  "Who answers for the Debian package: a name and an address in angle brackets")

function(brellowind_check_constant name pattern meaning)
  if(NOT "${${name}}" MATCHES "${pattern}")
    message(FATAL_ERROR " ${name} is \"${${name}}\", which is not ${meaning}") # the space: one line
  endif()
endfunction()

set(url_host "[A-Za-z0-9.-]+(:[0-9]+)?")
set(url_path "([A-Za-z0-9._~:@!$&'()*+,=/-]|%[0-9A-Fa-f][0-9A-Fa-f])*")
set(url_query "([A-Za-z0-9._~:@!$&'()*+,=/?-]|%[0-9A-Fa-f][0-9A-Fa-f])*")
set(url_tail "(/${url_path})?([?]${url_query})?(#${url_query})?")
brellowind_check_constant(BRELLOWIND_LYRICS_ORIGIN "^https://${url_host}$"
  "an origin such as https://lyrics.example")
foreach(page IN ITEMS WEBSITE SOCIAL PRIVACY_POLICY TERMS SCREENSHOT)
  brellowind_check_constant(BRELLOWIND_${page}_URL "^(https?://${url_host}${url_tail})?$" "a web address")
endforeach()
brellowind_check_constant(BRELLOWIND_UPDATE_FEED_URL "^(https://${url_host}/(${url_path}/)?latest[.]json)?$"
  "an https address of a document named latest.json")
brellowind_check_constant(BRELLOWIND_FEEDBACK_EMAIL
  "^([A-Za-z0-9_+-]+([.][A-Za-z0-9_+-]+)*@[A-Za-z0-9-]+([.][A-Za-z0-9-]+)+)?$" "an e-mail address")
brellowind_check_constant(BRELLOWIND_LEGAL_NOTICE "^[^\t\r\n]*$"
  "one line of text")
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
