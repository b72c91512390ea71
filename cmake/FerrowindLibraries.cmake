# The libraries that hosts link, shared or static as BUILD_SHARED_LIBS says. Each is made of leaves of the house, without
# compiling any of them again: the component by itself, and one for each adapter that needs something from outside, so that
# no host needs at run time what it does not use. Included when all leaves are there.

set(FERROWIND_EXPORTED_SYMBOLS ${CMAKE_CURRENT_LIST_DIR}/exported_symbols.map)

# ferrowind_add_host_library(NAME LEAVES leaf ... [DEPENDS target ...] [PRIVATE_DEPENDS target ...] [STATIC])
# Target ferrowind_host_library_NAME, for hosts Ferrowind::NAME; the file is libNAME. It has the public headers of its leaves.
function(ferrowind_add_host_library name)
  cmake_parse_arguments(ARG "STATIC" "" "LEAVES;DEPENDS;PRIVATE_DEPENDS" ${ARGN})
  set(target ferrowind_host_library_${name})
  set(objects "")
  set(headers "")
  foreach(leaf ${ARG_LEAVES})
    get_target_property(type ferrowind_${leaf} TYPE)
    if(NOT type STREQUAL "INTERFACE_LIBRARY")
      list(APPEND objects $<TARGET_OBJECTS:ferrowind_${leaf}>)
    endif()
    get_property(of_leaf TARGET ferrowind_${leaf} PROPERTY FERROWIND_PUBLIC_HEADERS)
    list(APPEND headers ${of_leaf})
  endforeach()
  if(ARG_STATIC OR NOT BUILD_SHARED_LIBS)
    add_library(${target} STATIC ${objects})
  else()
    add_library(${target} SHARED ${objects})
    # What the standard library's templates leave in the objects is nobody else's.
    target_link_options(${target} PRIVATE -Wl,--version-script=${FERROWIND_EXPORTED_SYMBOLS})
    if(NOT FERROWIND_SANITIZE)
      target_link_options(${target} PRIVATE -Wl,-z,defs)
    endif()
  endif()
  target_link_libraries(${target} PUBLIC ${ARG_DEPENDS} PRIVATE $<BUILD_INTERFACE:ferrowind_build_options> ${ARG_PRIVATE_DEPENDS})
  target_compile_features(${target} PUBLIC cxx_std_20)
  target_sources(${target} PUBLIC FILE_SET HEADERS BASE_DIRS ${PROJECT_SOURCE_DIR} FILES ${headers})
  set_target_properties(${target} PROPERTIES
    OUTPUT_NAME ${name} EXPORT_NAME ${name} LINKER_LANGUAGE CXX INSTALL_RPATH $ORIGIN
    VERSION ${PROJECT_VERSION} SOVERSION ${PROJECT_VERSION_MAJOR} LINK_DEPENDS ${FERROWIND_EXPORTED_SYMBOLS})
  add_library(Ferrowind::${name} ALIAS ${target})
  set_property(GLOBAL APPEND PROPERTY FERROWIND_HOST_LIBRARIES ${name})
  set_property(GLOBAL APPEND PROPERTY FERROWIND_PUBLIC_HEADERS ${headers})
endfunction()

# ferrowind_add_components(LIBRARY name ...): what hosts ask find_package for, as targets Ferrowind::NAME; all of LIBRARY.
function(ferrowind_add_components library)
  foreach(name ${ARGN})
    set(target ferrowind_component_${name})
    add_library(${target} INTERFACE)
    target_link_libraries(${target} INTERFACE ferrowind_host_library_${library})
    set_target_properties(${target} PROPERTIES EXPORT_NAME ${name})
    add_library(Ferrowind::${name} ALIAS ${target})
    set_property(GLOBAL APPEND PROPERTY FERROWIND_COMPONENTS_OF_${library} ${name})
  endforeach()
endfunction()

if(WIN32)
  set(system_leaves adapters_windows)
endif()
ferrowind_add_host_library(ferrowind
  LEAVES platform_events platform_values platform_database platform_toolkit platform_services platform_additions platform
    business_days database_conventions loading data data_confirm control_maps control
    views_common views_dialogs views_editor views_holidays views_calendars ${system_leaves} adapters_services adapters_windowless)
target_sources(ferrowind_host_library_ferrowind PUBLIC FILE_SET HEADERS FILES ${PROJECT_SOURCE_DIR}/ferrowind/export.h)
set_property(GLOBAL APPEND PROPERTY FERROWIND_PUBLIC_HEADERS ${PROJECT_SOURCE_DIR}/ferrowind/export.h)
target_include_directories(ferrowind_host_library_ferrowind PUBLIC $<BUILD_INTERFACE:${PROJECT_BINARY_DIR}/include>)
ferrowind_add_components(ferrowind platform control business_days loading adapters_services windowless)

if("qt" IN_LIST FERROWIND_ADAPTERS)
  ferrowind_add_host_library(ferrowind-qt
    LEAVES adapters_glyphs adapters_grid_content adapters_grid_engine adapters_operator_services adapters_table_engine adapters_year_engine adapters_qt_values adapters_qt_dates
      adapters_qt_look adapters_qt_controls adapters_qt_grid adapters_qt_table adapters_qt_year
      adapters_qt_forms adapters_qt_settings adapters_qt_services adapters_qt_embedding
    DEPENDS ferrowind_host_library_ferrowind Qt6::Widgets
    PRIVATE_DEPENDS Qt6::PrintSupport)
  ferrowind_add_components(ferrowind-qt adapters_qt)
endif()

if(TARGET ferrowind_adapters_chain)
  list(APPEND leaves_of_engines adapters_content adapters_chain database_seed_sql)
endif()
if(TARGET ferrowind_adapters_postgres_calls)
  list(APPEND leaves_of_engines adapters_postgres_calls)
endif()
if(leaves_of_engines)
  # What engines share, and no host sees: a part of each where they are shared libraries, beside them where not.
  ferrowind_add_host_library(ferrowind-engines STATIC
    LEAVES ${leaves_of_engines}
    DEPENDS ferrowind_host_library_ferrowind
    PRIVATE_DEPENDS ${FERROWIND_DIGESTS})
endif()
if("sqlite" IN_LIST FERROWIND_ADAPTERS)
  ferrowind_add_host_library(ferrowind-sqlite
    LEAVES adapters_sql_script database_sqlite_sql adapters_sqlite
    DEPENDS ferrowind_host_library_ferrowind
    PRIVATE_DEPENDS ferrowind_host_library_ferrowind-engines SQLite::SQLite3)
  ferrowind_add_components(ferrowind-sqlite adapters_sqlite)
endif()
if("postgres" IN_LIST FERROWIND_ADAPTERS)
  ferrowind_add_host_library(ferrowind-postgres
    LEAVES database_postgres_sql adapters_postgres
    DEPENDS ferrowind_host_library_ferrowind
    PRIVATE_DEPENDS ferrowind_host_library_ferrowind-engines PostgreSQL::PostgreSQL)
  ferrowind_add_components(ferrowind-postgres adapters_postgres)
endif()
if("odbc" IN_LIST FERROWIND_ADAPTERS)
  ferrowind_add_host_library(ferrowind-odbc
    LEAVES adapters_odbc
    DEPENDS ferrowind_host_library_ferrowind
    PRIVATE_DEPENDS ferrowind_host_library_ferrowind-engines ODBC::ODBC)
  ferrowind_add_components(ferrowind-odbc adapters_odbc)
endif()
