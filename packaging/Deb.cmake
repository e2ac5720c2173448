# SPDX-License-Identifier: MIT
# The Debian package: the program and Debian's documentation files.
set(CPACK_GENERATOR DEB)
set(CPACK_COMPONENTS_ALL program debian)
set(CPACK_COMPONENTS_GROUPING ALL_COMPONENTS_IN_ONE)
set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_STRIP_FILES ON)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
  OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)

set(CPACK_PACKAGE_NAME brellowind)
set(CPACK_PACKAGE_VENDOR "The Brellowind authors")
set(CPACK_PACKAGE_CONTACT "${BRELLOWIND_PACKAGER}")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "lyrics of the playing song at the top of the screen")
set(CPACK_PACKAGE_DESCRIPTION
"Brellowind shows the line being sung of what Spotify plays, in a small black
pill that hangs from the top edge of the screen, with time-synchronised lyrics
from LRCLIB.
.
The pill lifts under the pointer; a tap hides or shows the line, the cover
opens a panel with the artwork, and the waveform plays and pauses.")

set(CPACK_DEBIAN_PACKAGE_NAME brellowind)
set(CPACK_DEBIAN_PACKAGE_RELEASE 1)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION sound)
set(CPACK_DEBIAN_PACKAGE_PRIORITY optional)
if(BRELLOWIND_WEBSITE_URL)
  set(CPACK_DEBIAN_PACKAGE_HOMEPAGE "${BRELLOWIND_WEBSITE_URL}")
endif()
set(CPACK_DEBIAN_COMPRESSION_TYPE xz)

# Library dependencies are computed; those below cannot be: Qt's Wayland plugin and QML modules, which are loaded at run
# time, xdg-open, the session bus and the certificates. All modules that the QML imports are listed, although Qt 6.4
# looks up only the last one.
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
string(JOIN ", " CPACK_DEBIAN_PACKAGE_DEPENDS
  qml6-module-qtquick qml6-module-qtqml qml6-module-qtqml-workerscript
  qt6-wayland
  ca-certificates xdg-utils
  "default-dbus-session-bus | dbus-session-bus")
# Covers in WebP; texts of most scripts.
string(JOIN ", " CPACK_DEBIAN_PACKAGE_RECOMMENDS
  qt6-image-formats-plugins fonts-noto-core)
string(JOIN ", " CPACK_DEBIAN_PACKAGE_SUGGESTS fonts-inter fonts-noto-cjk)

include(CPack)
