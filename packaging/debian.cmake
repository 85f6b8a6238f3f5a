# The Debian package: "cpack" in a release build folder makes quorin-converter_VERSION_ARCHITECTURE.deb.

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME quorin-converter)
set(CPACK_PACKAGE_VENDOR Velmora)
set(CPACK_PACKAGE_VERSION ${PROJECT_VERSION})
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES TRUE)
# Always the system layout, whatever a plain installation of this build would be.
set(CPACK_INSTALL_CMAKE_PROJECTS "${CMAKE_BINARY_DIR};${PROJECT_NAME};system;/")
set(CPACK_PRE_BUILD_SCRIPTS ${CMAKE_CURRENT_SOURCE_DIR}/debian/finish.cmake)

set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "turn shop orders into the files of carriers and accounting")
set(CPACK_DEBIAN_PACKAGE_DESCRIPTION
"Quorin Converter helps small online shops in Korea and Japan with their daily
orders. It reads the order files (CSV) of one or more web shops and writes the
one CSV file that the carrier, the accounting program or the label printer
wants. A convert setting is made once, with the mouse, and then only chosen.

Columns are put in order, joined and filled under conditions; texts are
changed by rules (cut, replace, half width and full width, katakana and
hiragana); several files are joined by the order number; the items of an order
become one line. For every order a purchase statement (PDF) can be made.

The window and the help are in Korean and Japanese. The program works in a
folder of the user, QuorinConverter in the home folder, which it fills with
sample orders and settings when it is started for the first time.")
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION utils)
set(CPACK_DEBIAN_PACKAGE_PRIORITY optional)
set(CPACK_DEBIAN_PACKAGE_MAINTAINER "Velmora <support@velmora.example>")
set(CPACK_DEBIAN_PACKAGE_HOMEPAGE https://www.velmora.example)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS TRUE)

# The program runs without these. With them, in this order: texts can be read; the help opens (F1); a
# statement opens; both are found by the desktop; Korean and Japanese can be typed where fcitx is used (Qt
# brings the plugin for ibus itself, uim its own); the site of the maker can be asked for a newer version.
list(APPEND recommends
    "fonts-noto-cjk"
    "kchmviewer | xchm"
    "evince | okular | pdf-viewer"
    "xdg-utils"
    "fcitx5-frontend-qt5 | fcitx-frontend-qt5 | uim-qt5-immodule"
    "ca-certificates")
list(JOIN recommends ", " CPACK_DEBIAN_PACKAGE_RECOMMENDS)
# Input methods for a machine without one, and programs that show a message of the launcher.
list(APPEND suggests
    "ibus-hangul | fcitx5-hangul | uim"
    "ibus-mozc | fcitx5-mozc | uim-mozc"
    "zenity | kdialog | libnotify-bin | x11-utils")
list(JOIN suggests ", " CPACK_DEBIAN_PACKAGE_SUGGESTS)

include(CPack)
