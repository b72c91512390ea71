# What is installed for hosts: libraries, headers, and how CMake and pkg-config find them. Included when all targets are
# there. The install components are what packages are made of: one for each shared library, named as its file, and
# `development`; the programs, the Python module and the data have theirs (`desktop`, `admin`, `python`, `data`).

include(CMakePackageConfigHelpers)
set(ferrowind_package_folder ${CMAKE_INSTALL_LIBDIR}/cmake/Ferrowind)
set(ferrowind_pkgconfig_folder ${CMAKE_INSTALL_LIBDIR}/pkgconfig)
cmake_path(RELATIVE_PATH CMAKE_INSTALL_FULL_LIBDIR BASE_DIRECTORY ${CMAKE_INSTALL_PREFIX} OUTPUT_VARIABLE ferrowind_libdir)
cmake_path(RELATIVE_PATH CMAKE_INSTALL_FULL_INCLUDEDIR BASE_DIRECTORY ${CMAKE_INSTALL_PREFIX} OUTPUT_VARIABLE ferrowind_includedir)
cmake_path(RELATIVE_PATH CMAKE_INSTALL_FULL_DATADIR BASE_DIRECTORY ${CMAKE_INSTALL_PREFIX} OUTPUT_VARIABLE ferrowind_datadir)
cmake_path(RELATIVE_PATH CMAKE_INSTALL_PREFIX BASE_DIRECTORY ${CMAKE_INSTALL_FULL_LIBDIR}/pkgconfig OUTPUT_VARIABLE ferrowind_prefix)

# Written into the package for CMake: which components each library has.
set(FERROWIND_COMPONENTS "")
get_property(ferrowind_libraries GLOBAL PROPERTY FERROWIND_HOST_LIBRARIES)
foreach(library ${ferrowind_libraries})
  if(library STREQUAL "ferrowind-engines" AND BUILD_SHARED_LIBS)
    continue()
  endif()
  get_property(components GLOBAL PROPERTY FERROWIND_COMPONENTS_OF_${library})
  list(TRANSFORM components PREPEND ferrowind_component_ OUTPUT_VARIABLE targets)
  install(TARGETS ferrowind_host_library_${library} ${targets} EXPORT Ferrowind-${library}-targets
    LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT lib${library} NAMELINK_COMPONENT development
    ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT development
    FILE_SET HEADERS DESTINATION ${CMAKE_INSTALL_INCLUDEDIR} COMPONENT development)
  install(EXPORT Ferrowind-${library}-targets NAMESPACE Ferrowind:: DESTINATION ${ferrowind_package_folder}
    COMPONENT development)
  foreach(component ${components})
    string(APPEND FERROWIND_COMPONENTS "set(ferrowind_library_of_${component} ${library})\n")
    list(APPEND ferrowind_components ${component})
  endforeach()
endforeach()
if(TARGET ferrowind_business_days_c)
  install(EXPORT Ferrowind-business_days_c-targets NAMESPACE Ferrowind:: DESTINATION ${ferrowind_package_folder}
    COMPONENT development)
  string(APPEND FERROWIND_COMPONENTS "set(ferrowind_library_of_business_days_c business_days_c)\n")
  list(APPEND ferrowind_components business_days_c)
endif()
string(APPEND FERROWIND_COMPONENTS "set(ferrowind_components ${ferrowind_components})")

install(FILES ${PROJECT_BINARY_DIR}/include/ferrowind/version.h DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/ferrowind
  COMPONENT development)
install(FILES ${PROJECT_SOURCE_DIR}/LICENSE DESTINATION ${CMAKE_INSTALL_DATAROOTDIR}/doc/ferrowind COMPONENT documentation)

if(BUILD_SHARED_LIBS)
  set(FERROWIND_IS_STATIC FALSE)
else()
  set(FERROWIND_IS_STATIC TRUE)
endif()
configure_package_config_file(${CMAKE_CURRENT_LIST_DIR}/FerrowindConfig.cmake.in
  ${PROJECT_BINARY_DIR}/FerrowindConfig.cmake INSTALL_DESTINATION ${ferrowind_package_folder}
  PATH_VARS FERROWIND_DATA_FOLDER)
write_basic_package_version_file(${PROJECT_BINARY_DIR}/FerrowindConfigVersion.cmake COMPATIBILITY SameMajorVersion)
install(FILES ${PROJECT_BINARY_DIR}/FerrowindConfig.cmake ${PROJECT_BINARY_DIR}/FerrowindConfigVersion.cmake
  DESTINATION ${ferrowind_package_folder} COMPONENT development)

# ferrowind_add_pkgconfig(NAME DESCRIPTION text [REQUIRES module ...] [PRIVATE_REQUIRES module ...] [PRIVATE_LIBS -lx ...])
# NAME.pc of the library NAME. What is private is linked with static libraries alone (pkg-config --static).
function(ferrowind_add_pkgconfig name)
  cmake_parse_arguments(ARG "" "DESCRIPTION" "REQUIRES;PRIVATE_REQUIRES;PRIVATE_LIBS" ${ARGN})
  set(library ${name})
  # A shared library knows itself what it needs, and asks no machine that links it for that.
  if(BUILD_SHARED_LIBS)
    set(ARG_PRIVATE_REQUIRES "")
    set(ARG_PRIVATE_LIBS "")
  endif()
  list(JOIN ARG_REQUIRES ", " requires)
  list(JOIN ARG_PRIVATE_REQUIRES ", " private_requires)
  list(JOIN ARG_PRIVATE_LIBS " " private_libs)
  configure_file(${PROJECT_SOURCE_DIR}/cmake/ferrowind.pc.in ${PROJECT_BINARY_DIR}/${name}.pc @ONLY)
  install(FILES ${PROJECT_BINARY_DIR}/${name}.pc DESTINATION ${ferrowind_pkgconfig_folder} COMPONENT development)
endfunction()

set(own "ferrowind = ${PROJECT_VERSION}")
ferrowind_add_pkgconfig(ferrowind DESCRIPTION "Holiday calendars of currencies, and business days: the component for hosts")
if("qt" IN_LIST FERROWIND_ADAPTERS)
  ferrowind_add_pkgconfig(ferrowind-qt DESCRIPTION "The windows of Ferrowind in Qt"
    REQUIRES ${own} "Qt6Widgets >= 6.4" PRIVATE_REQUIRES Qt6PrintSupport)
endif()
if("sqlite" IN_LIST FERROWIND_ADAPTERS)
  ferrowind_add_pkgconfig(ferrowind-sqlite DESCRIPTION "Ferrowind's calendars in SQLite files"
    REQUIRES ${own} PRIVATE_REQUIRES "sqlite3 >= 3.40" libcrypto PRIVATE_LIBS -lferrowind-engines)
endif()
if("postgres" IN_LIST FERROWIND_ADAPTERS)
  ferrowind_add_pkgconfig(ferrowind-postgres DESCRIPTION "Ferrowind's calendars on PostgreSQL servers"
    REQUIRES ${own} PRIVATE_REQUIRES libpq libcrypto PRIVATE_LIBS -lferrowind-engines)
endif()
if("odbc" IN_LIST FERROWIND_ADAPTERS)
  ferrowind_add_pkgconfig(ferrowind-odbc DESCRIPTION "Ferrowind's calendars on PostgreSQL servers by drivers of ODBC"
    REQUIRES ${own} PRIVATE_REQUIRES odbc PRIVATE_LIBS -lferrowind-engines)
endif()
if(TARGET ferrowind_business_days_c)
  ferrowind_add_pkgconfig(ferrowind_business_days DESCRIPTION "Business days and value dates for programs in C")
endif()
