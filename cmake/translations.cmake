# The translations of the window, with those that Qt has of its own texts, as a resource of the program. Without
# Qt's the buttons of its dialogs stay English.
find_package(Qt6 6.2 REQUIRED COMPONENTS LinguistTools)

# Adds them to a target: data/translations/tessaryn_XX.ts, a language each.
function(add_translations target)
  set(FOLDER ${CMAKE_BINARY_DIR}/translations)
  file(MAKE_DIRECTORY ${FOLDER})
  file(GLOB SOURCES CONFIGURE_DEPENDS ${CMAKE_SOURCE_DIR}/data/translations/tessaryn_*.ts)
  set(FILES "")
  set(LIST "<RCC><qresource prefix=\"/translations\">\n")
  foreach(SOURCE ${SOURCES})
    get_filename_component(NAME ${SOURCE} NAME_WE)
    set(COMPILED ${FOLDER}/${NAME}.qm)
    add_custom_command(OUTPUT ${COMPILED} COMMAND Qt6::lrelease -silent ${SOURCE} -qm ${COMPILED}
      DEPENDS ${SOURCE} COMMENT "Translation ${NAME}")
    list(APPEND FILES ${COMPILED})
    string(APPEND LIST "<file alias=\"${NAME}.qm\">${COMPILED}</file>\n")
    string(REPLACE "tessaryn_" "qtbase_" OF_QT ${NAME})
    set(OF_QT ${QT6_INSTALL_PREFIX}/${QT6_INSTALL_TRANSLATIONS}/${OF_QT}.qm)
    if(EXISTS ${OF_QT})
      get_filename_component(NAME ${OF_QT} NAME)
      string(APPEND LIST "<file alias=\"${NAME}\">${OF_QT}</file>\n")
    endif()
  endforeach()
  string(APPEND LIST "</qresource></RCC>\n")
  file(CONFIGURE OUTPUT ${FOLDER}/translations.qrc CONTENT "${LIST}" @ONLY)
  set(RESOURCE ${FOLDER}/qrc_translations.cpp)
  add_custom_command(OUTPUT ${RESOURCE}
    COMMAND Qt6::rcc -name translations ${FOLDER}/translations.qrc -o ${RESOURCE}
    DEPENDS ${FILES} ${FOLDER}/translations.qrc COMMENT "Translations")
  set_source_files_properties(${RESOURCE} PROPERTIES SKIP_AUTOMOC ON SKIP_PRECOMPILE_HEADERS ON)
  target_sources(${target} PRIVATE ${RESOURCE})
endfunction()

# Brings the .ts files up to date with the texts in the sources.
add_custom_target(tessaryn_translations COMMAND ${CMAKE_SOURCE_DIR}/scripts/translations.sh)
