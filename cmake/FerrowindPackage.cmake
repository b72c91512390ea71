# What other projects need to find the installed libraries. Included when all targets are there.

include(CMakePackageConfigHelpers)
set(ferrowind_package_folder ${CMAKE_INSTALL_LIBDIR}/cmake/Ferrowind)

# Only what the installed libraries were built with is asked of the machine that uses them.
set(FERROWIND_FIND_DEPENDENCIES "")
if(TARGET ferrowind_adapters_qt)
  string(APPEND FERROWIND_FIND_DEPENDENCIES "find_dependency(Qt6 6.4 COMPONENTS PrintSupport Widgets)\n")
endif()
if(TARGET ferrowind_adapters_sqlite)
  string(APPEND FERROWIND_FIND_DEPENDENCIES "find_dependency(SQLite3 3.40)\n")
endif()
if(TARGET ferrowind_adapters_postgres)
  string(APPEND FERROWIND_FIND_DEPENDENCIES "find_dependency(PostgreSQL)\n")
endif()

configure_package_config_file(${CMAKE_CURRENT_LIST_DIR}/FerrowindConfig.cmake.in
  ${PROJECT_BINARY_DIR}/FerrowindConfig.cmake INSTALL_DESTINATION ${ferrowind_package_folder})
write_basic_package_version_file(${PROJECT_BINARY_DIR}/FerrowindConfigVersion.cmake COMPATIBILITY SameMajorVersion)
install(FILES ${PROJECT_BINARY_DIR}/FerrowindConfig.cmake ${PROJECT_BINARY_DIR}/FerrowindConfigVersion.cmake
  DESTINATION ${ferrowind_package_folder})
install(EXPORT FerrowindTargets NAMESPACE Ferrowind:: DESTINATION ${ferrowind_package_folder})
