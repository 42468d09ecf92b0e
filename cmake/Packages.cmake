# The packages that cpack makes of an installation: one for Debian and its kin, one for systems with RPM. ./package makes
# them of a release build.
set(CPACK_PACKAGE_NAME dervalin-ostrelum)
set(CPACK_PACKAGE_VERSION ${PROJECT_VERSION})
set(CPACK_PACKAGE_VENDOR "Alex Marenco")
set(CPACK_PACKAGE_CONTACT "Alex Marenco <ostrelum@dervalin.example.org>")
set(CPACK_PACKAGE_HOMEPAGE_URL https://dervalin.example.org/ostrelum)
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "what this computer is made of and what it runs")
set(CPACK_PACKAGE_DESCRIPTION
"One window with thirteen pages shows the parts of a computer and its system,
from the user's account to the battery, in English, Spanish or Dutch. A report
of all pages can be saved as text, HTML, RTF or BBCode.

ostrelum-console shows the same on a terminal and answers queries as JSON.")
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_GENERATOR DEB)
set(CPACK_PRE_BUILD_SCRIPTS ${CMAKE_CURRENT_LIST_DIR}/PackageTimes.cmake)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS ${CMAKE_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS})

set(made ${CMAKE_CURRENT_BINARY_DIR}/packaging)
set(CPACK_PROJECT_CONFIG_FILE ${made}/PackageComponents.cmake)
configure_file(${CMAKE_CURRENT_LIST_DIR}/PackageComponents.cmake.in ${CPACK_PROJECT_CONFIG_FILE} @ONLY)
# Debian's form of the licence: its text set in, and a stop for an empty line.
file(READ ${CMAKE_SOURCE_DIR}/LICENSE licence)
string(REGEX MATCH "Copyright \\(c\\) ([^\n]*)" notice "${licence}")
set(holder ${CMAKE_MATCH_1})
string(REGEX REPLACE "^.*${holder}\n\n" "" licence "${licence}")
string(STRIP "${licence}" licence)
string(REPLACE "\n\n" "\n.\n" licence " ${licence}")
string(REPLACE "\n" "\n " licence "${licence}")
configure_file(${linux}/debian/copyright.in ${made}/copyright @ONLY)
ostrelum_packed(${made}/changelog.gz ${CMAKE_SOURCE_DIR}/CHANGELOG.md)
ostrelum_packed(${made}/changelog.Debian.gz ${linux}/debian/changelog)
install(FILES ${made}/changelog.gz ${made}/changelog.Debian.gz ${made}/copyright
    COMPONENT debian EXCLUDE_FROM_ALL DESTINATION ${documents})

set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_RELEASE 1)
set(CPACK_DEBIAN_PACKAGE_SECTION utils)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
# Names of devices (the compiled hardware database is udev's, or that of a package of its own where there is one), the
# window without an X server, facts about accounts, and the face that pages are laid out for.
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS
    "fonts-liberation, libsystemd0, qt6-wayland, systemd-hwdb | udev")

set(CPACK_RPM_FILE_NAME RPM-DEFAULT)
set(CPACK_RPM_PACKAGE_RELEASE 1)
set(CPACK_RPM_PACKAGE_LICENSE MIT)
set(CPACK_RPM_PACKAGE_GROUP Applications/System)
set(CPACK_RPM_PACKAGE_DESCRIPTION ${CPACK_PACKAGE_DESCRIPTION})
set(CPACK_PACKAGE_RELOCATABLE OFF)
# Folders that others own, too.
set(CPACK_RPM_EXCLUDE_FROM_AUTO_FILELIST_ADDITION)
foreach(folder applications bash-completion bash-completion/completions fish fish/vendor_completions.d icons icons/hicolor
               man man/man1 metainfo zsh zsh/site-functions)
    list(APPEND CPACK_RPM_EXCLUDE_FROM_AUTO_FILELIST_ADDITION /usr/share/${folder})
endforeach()
foreach(size 16x16 32x32 48x48 64x64 128x128 256x256 scalable)
    list(APPEND CPACK_RPM_EXCLUDE_FROM_AUTO_FILELIST_ADDITION
        /usr/share/icons/hicolor/${size} /usr/share/icons/hicolor/${size}/apps)
endforeach()
# The same commit gives the same bytes: neither this moment nor this machine's name stands in the package. For what it
# recommends CPack has no variable.
set(CPACK_RPM_SPEC_MORE_DEFINE
"Recommends: liberation-sans-fonts, qt6-qtwayland, systemd-libs, systemd-udev
%define _buildhost localhost
%define _build_id_links none
%define use_source_date_epoch_as_buildtime 1
%define clamp_mtime_to_source_date_epoch 1")

include(CPack)
