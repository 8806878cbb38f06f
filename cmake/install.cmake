# What is installed, and where: the programs with all that they look for beside themselves in libexec/tessaryn, links to them
# in bin, and under share what a desktop and a reader of manuals look for. A copy of libexec/tessaryn alone runs as well.
set(HOME libexec/tessaryn)
set(PROGRAMS tessaryn-cli)
if(TESSARYN_SHELL)
  list(APPEND PROGRAMS tessaryn)
endif()

# --- The manual, from what the programs themselves say of their options.
set(MANUALS)
foreach(program ${PROGRAMS})
  set(manual ${CMAKE_BINARY_DIR}/man/${program}.1)
  add_custom_command(OUTPUT ${manual}
    COMMAND ${CMAKE_COMMAND} -E make_directory ${CMAKE_BINARY_DIR}/man
    COMMAND ${CMAKE_SOURCE_DIR}/scripts/make_manual.sh $<TARGET_FILE:${program}> ${PROJECT_VERSION} ${manual}
    DEPENDS ${program} scripts/make_manual.sh VERBATIM COMMENT "Manual of ${program}")
  list(APPEND MANUALS ${manual})
endforeach()
add_custom_target(tessaryn_manuals ALL DEPENDS ${MANUALS})

# --- The files.
install(TARGETS ${PROGRAMS} mt19937ar cokus DESTINATION ${HOME})
install(FILES LICENSE DESTINATION ${HOME})
install(DIRECTORY docs data/samples DESTINATION ${HOME})
install(FILES ${MANUALS} DESTINATION share/man/man1)
install(FILES README.md CHANGELOG.md DESTINATION share/doc/tessaryn)
foreach(program ${PROGRAMS})
  install(CODE "set(BIN \"\$ENV{DESTDIR}\${CMAKE_INSTALL_PREFIX}/bin\")
    file(MAKE_DIRECTORY \"\${BIN}\")
    file(CREATE_LINK ../${HOME}/${program} \"\${BIN}/${program}\" SYMBOLIC)
    message(STATUS \"Installing: \${BIN}/${program}\")")
endforeach()
if(TESSARYN_SHELL)
  install(FILES ${SOUND_FILES} DESTINATION ${HOME})
  install(FILES data/desktop/tessaryn.xml DESTINATION share/mime/packages)
  install(DIRECTORY data/icons/hicolor DESTINATION share/icons)
  # The first heading of the changelog has the version's date.
  file(STRINGS CHANGELOG.md TESSARYN_DATE REGEX "^## ${PROJECT_VERSION}, ....-..-..$" LIMIT_COUNT 1)
  string(REGEX REPLACE ".*, " "" TESSARYN_DATE "${TESSARYN_DATE}")
  configure_file(data/desktop/org.tessaryn.Tessaryn.metainfo.xml.in
    ${CMAKE_BINARY_DIR}/org.tessaryn.Tessaryn.metainfo.xml @ONLY)
  install(FILES ${CMAKE_BINARY_DIR}/org.tessaryn.Tessaryn.metainfo.xml DESTINATION share/metainfo)
  # The path in it is that of the installation.
  install(CODE "set(ENTRY \"\$ENV{DESTDIR}\${CMAKE_INSTALL_PREFIX}/share/applications/tessaryn.desktop\")
    configure_file(\"${CMAKE_SOURCE_DIR}/data/desktop/tessaryn.desktop.in\" \"\${ENTRY}\" @ONLY)
    message(STATUS \"Installing: \${ENTRY}\")")
endif()

# --- The Debian package.
set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME tessaryn)
set(CPACK_PACKAGE_VENDOR Tessaryn)
set(CPACK_PACKAGE_CONTACT "Tessaryn maintainers <maintainers@tessaryn.org>")
set(CPACK_SET_DESTDIR ON)
set(CPACK_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_RELEASE 1)
set(CPACK_DEBIAN_PACKAGE_SECTION misc)  # "games" are in /usr/games, where not everybody's shell looks
set(CPACK_DEBIAN_PACKAGE_PRIORITY optional)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS
  "fonts-dejavu-core, gstreamer1.0-plugins-base, gstreamer1.0-plugins-good, qt6-translations-l10n")
set(CPACK_DEBIAN_PACKAGE_DESCRIPTION "Casino dice table, and a laboratory for betting systems
One to eight players, 93 kinds of bet, every house rule as a setting; all
that happens is counted, by bet, player, hand and session. Betting systems
are written in a language close to English and tried over millions of
rolls: at the table, in a laboratory on all cores, or by the program
tessaryn-cli without a window.")
# What only this package has: its changelog and copyright in Debian's form, packed as it wants them.
install(CODE "execute_process(COMMAND \"${CMAKE_SOURCE_DIR}/scripts/debian_files.sh\" ${PROJECT_VERSION}-1
    \"\$ENV{DESTDIR}\${CMAKE_INSTALL_PREFIX}\" \"${CPACK_PACKAGE_CONTACT}\" COMMAND_ERROR_IS_FATAL ANY)"
  COMPONENT debian EXCLUDE_FROM_ALL)
set(CPACK_INSTALL_CMAKE_PROJECTS "${CMAKE_BINARY_DIR};tessaryn;ALL;/;${CMAKE_BINARY_DIR};tessaryn;debian;/")
include(CPack)
