# Two ways to install. By default all goes into one folder that can be carried on a stick: the programs, and the
# site's template beside them.
install(TARGETS iceline RUNTIME DESTINATION . COMPONENT portable)
if(ICELINE_DESKTOP)
    install(TARGETS iceline-scorebook RUNTIME DESTINATION . COMPONENT portable)
endif()
install(FILES resources/licences.txt DESTINATION . COMPONENT portable)
if(WIN32)
    # What is a part of the system elsewhere is linked into the programs for Windows.
    install(DIRECTORY ${qt_windows}/licences DESTINATION . COMPONENT portable)
    install(FILES /usr/share/doc/mingw-w64-common/copyright DESTINATION licences RENAME MinGW-w64.txt COMPONENT portable)
    install(FILES /usr/share/doc/gcc-mingw-w64-base/copyright DESTINATION licences RENAME GCC.txt COMPONENT portable)
endif()
file(WRITE ${CMAKE_BINARY_DIR}/portable "With this file beside the program its league lies here, too.\n")
install(FILES ${CMAKE_BINARY_DIR}/portable DESTINATION . COMPONENT portable)
install(CODE "set(template_source \"${site_template}\")" COMPONENT portable)
install(SCRIPT ${CMAKE_CURRENT_LIST_DIR}/InstallTemplate.cmake COMPONENT portable)

# The component `system` goes where a Unix system looks for programs, their manuals and icons.
if(NOT UNIX OR NOT ICELINE_DESKTOP OR CMAKE_CROSSCOMPILING)
    return()
endif()
set(app org.icelinescorebook.Scorebook)
set(system ${PROJECT_SOURCE_DIR}/resources/system)
set(made ${CMAKE_BINARY_DIR}/system)
string(TIMESTAMP release_date %Y-%m-%d UTC) # of SOURCE_DATE_EPOCH, if that is set
function(install_system)
    install(${ARGN} COMPONENT system EXCLUDE_FROM_ALL)
endfunction()

install_system(TARGETS iceline iceline-scorebook RUNTIME DESTINATION bin)
install(DIRECTORY ${site_template}/ DESTINATION share/iceline-scorebook/site-template COMPONENT system EXCLUDE_FROM_ALL
    PATTERN .gitkeep EXCLUDE)
install_system(FILES ${system}/${app}.desktop DESTINATION share/applications)
configure_file(${system}/${app}.metainfo.xml.in ${made}/${app}.metainfo.xml @ONLY)
install_system(FILES ${made}/${app}.metainfo.xml DESTINATION share/metainfo)
install_system(FILES ${system}/iceline-scorebook.mime.xml DESTINATION share/mime/packages
    RENAME iceline-scorebook.xml)
foreach(size 16 22 24 32 48 64 128 256)
    install_system(FILES resources/art/icon/iceline-${size}.png DESTINATION share/icons/hicolor/${size}x${size}/apps
        RENAME iceline-scorebook.png)
endforeach()
install_system(FILES resources/art/icon/iceline.svg DESTINATION share/icons/hicolor/scalable/apps
    RENAME iceline-scorebook.svg)
install_system(FILES ${system}/completions/iceline.bash DESTINATION share/bash-completion/completions RENAME iceline)
install_system(FILES ${system}/completions/_iceline DESTINATION share/zsh/vendor-completions)
install_system(FILES ${system}/completions/iceline.fish DESTINATION share/fish/vendor_completions.d)
install_system(FILES resources/licences.txt DESTINATION share/doc/iceline-scorebook RENAME copyright)

install_system(FILES ${system}/lintian-overrides DESTINATION share/lintian/overrides RENAME iceline-scorebook)

foreach(page iceline iceline-scorebook)
    add_custom_command(OUTPUT ${made}/${page}.1.gz
        COMMAND ${CMAKE_COMMAND} -DPROGRAM=$<TARGET_FILE:iceline> -DTEMPLATE=${system}/man/${page}.1
            -DOUTPUT=${made}/${page}.1 -DPROJECT_VERSION=${PROJECT_VERSION} -Drelease_date=${release_date}
            -P ${PROJECT_SOURCE_DIR}/cmake/ManPage.cmake
        DEPENDS iceline ${system}/man/${page}.1 ${PROJECT_SOURCE_DIR}/cmake/ManPage.cmake)
    install_system(FILES ${made}/${page}.1.gz DESTINATION share/man/man1)
endforeach()
add_custom_command(OUTPUT ${made}/changelog.gz
    COMMAND gzip -9nc ${PROJECT_SOURCE_DIR}/CHANGELOG.md > ${made}/changelog.gz
    DEPENDS ${PROJECT_SOURCE_DIR}/CHANGELOG.md VERBATIM)
string(TIMESTAMP release_day "%a, %d %b %Y 00:00:00 +0000" UTC)
file(CONFIGURE OUTPUT ${made}/changelog.Debian @ONLY CONTENT "iceline-scorebook (@PROJECT_VERSION@-1) stable; urgency=low

  * See changelog.gz.

 -- The Iceline Scorebook authors <authors@icelinescorebook.invalid>  @release_day@
")
add_custom_command(OUTPUT ${made}/changelog.Debian.gz
    COMMAND gzip -9nc ${made}/changelog.Debian > ${made}/changelog.Debian.gz
    DEPENDS ${made}/changelog.Debian VERBATIM)
install_system(FILES ${made}/changelog.gz ${made}/changelog.Debian.gz DESTINATION share/doc/iceline-scorebook)
add_custom_target(system_files ALL
    DEPENDS ${made}/iceline.1.gz ${made}/iceline-scorebook.1.gz ${made}/changelog.gz ${made}/changelog.Debian.gz)

# The Debian package is made of the component `system`: cpack -G DEB.
set(CPACK_PACKAGE_NAME iceline-scorebook)
set(CPACK_PACKAGE_CONTACT "The Iceline Scorebook authors <authors@icelinescorebook.invalid>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "keep the books of a hobby hockey league")
set(CPACK_PACKAGE_DESCRIPTION "\
A league plays its games on a 16-bit console game under an emulator, and saves
the emulator's state after each game. This program reads these files and keeps
box scores, standings, leaders, records, the play-off bracket and a web site.

It has windows (iceline-scorebook) and a companion for the terminal (iceline).")
set(CPACK_DEBIAN_PACKAGE_RELEASE 1)
set(CPACK_DEBIAN_PACKAGE_SECTION misc)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_DEPENDS qt6-qpa-plugins)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_INSTALL_CMAKE_PROJECTS "${CMAKE_BINARY_DIR};${PROJECT_NAME};system;/")
set(CPACK_PRE_BUILD_SCRIPTS ${PROJECT_SOURCE_DIR}/cmake/DatesOfSource.cmake)
include(CPack)
