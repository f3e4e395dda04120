# The Debian package: `cpack -G DEB` in the build folder makes morvane_<version>_<arch>.deb of
# everything the install rules put under /usr.
set(CPACK_PACKAGE_NAME morvane)
set(CPACK_PACKAGE_VENDOR "The Morvane developers")
set(CPACK_PACKAGE_CONTACT "The Morvane developers <morvane@morvane.example>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "top-down nine-ball pool, alone, with a friend or against zeph")
set(CPACK_PACKAGE_DESCRIPTION
    "Morvane is a game of nine-ball pool seen from above, in one small window, played with the
mouse. Play alone for a record, share the mouse with a friend for a match, or take on zeph, a
CPU opponent that chooses its shots by geometry and grows through eleven levels as you win.
.
The package also holds morvane-sim, the game's logic without a window, speaking JSON.")
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)

set(CPACK_GENERATOR DEB)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION games)
set(CPACK_DEBIAN_PACKAGE_PRIORITY optional)
set(CPACK_DEBIAN_PACKAGE_HOMEPAGE "https://morvane.example/")
# The libraries the programs link come from dpkg-shlibdeps; what is loaded by name at run time
# is listed here: Qt's Wayland platform, a General MIDI soundfont for the tunes, and the faces
# the screens name (Arial's metric twin, a Japanese Gothic).
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_DEPENDS
    "qt6-wayland, timgm6mb-soundfont | fluid-soundfont-gm, fonts-liberation | fonts-liberation2, fonts-ipafont-gothic")
# The help page opens in the desktop's browser.
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS "xdg-utils")

include(CPack)
