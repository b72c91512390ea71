# Translations of the component's texts, made ready by Qt's lrelease.

# ferrowind_embed_translations(TARGET FOLDER LANGUAGE ...): the library brings FOLDER/ferrowind_LANGUAGE.ts along, as the resources
# :/ferrowind/translations/ferrowind_LANGUAGE.qm. Without lrelease it brings none, and everything is said in English.
function(ferrowind_embed_translations target folder)
  find_program(FERROWIND_LRELEASE NAMES lrelease6 lrelease
    HINTS "${QT6_INSTALL_PREFIX}/${QT6_INSTALL_BINS}" "${QT6_INSTALL_PREFIX}/lib/qt6/bin"
    DOC "Qt's program that makes translations ready")
  if(NOT FERROWIND_LRELEASE)
    message(STATUS "lrelease was not found (Debian: qt6-l10n-tools): everything is said in English")
    return()
  endif()
  set(out ${CMAKE_CURRENT_BINARY_DIR})
  set(entries "")
  set(made "")
  foreach(language IN LISTS ARGN)
    set(name ferrowind_${language})
    add_custom_command(OUTPUT ${out}/${name}.qm
      COMMAND ${FERROWIND_LRELEASE} -silent ${folder}/${name}.ts -qm ${out}/${name}.qm
      DEPENDS ${folder}/${name}.ts VERBATIM)
    string(APPEND entries "    <file>${name}.qm</file>\n")
    list(APPEND made ${out}/${name}.qm)
  endforeach()
  file(CONFIGURE OUTPUT ${out}/ferrowind_translations.qrc @ONLY
    CONTENT "<RCC>\n  <qresource prefix=\"/ferrowind/translations\">\n@entries@  </qresource>\n</RCC>\n")
  add_custom_command(OUTPUT ${out}/qrc_ferrowind_translations.cpp
    COMMAND Qt6::rcc --name ferrowind_translations -o ${out}/qrc_ferrowind_translations.cpp
      ${out}/ferrowind_translations.qrc
    DEPENDS ${made} ${out}/ferrowind_translations.qrc VERBATIM)
  target_sources(${target} PRIVATE ${out}/qrc_ferrowind_translations.cpp)
  set_source_files_properties(${out}/qrc_ferrowind_translations.cpp PROPERTIES SKIP_PRECOMPILE_HEADERS ON)
  target_compile_definitions(${target} PRIVATE FERROWIND_HAS_TRANSLATIONS)
endfunction()
