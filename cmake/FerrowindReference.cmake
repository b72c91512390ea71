# The reference of what is installed for hosts, HTML in the build folder's `reference`: the target `reference`, where there
# is Doxygen. Included when all libraries for hosts are there.

get_property(ferrowind_reference_inputs GLOBAL PROPERTY FERROWIND_PUBLIC_HEADERS)
list(APPEND ferrowind_reference_inputs ${PROJECT_BINARY_DIR}/include/ferrowind/version.h ${PROJECT_SOURCE_DIR}/docs/ports.md)
if(TARGET ferrowind_business_days_c)
  list(APPEND ferrowind_reference_inputs ${PROJECT_SOURCE_DIR}/host/business_days/ferrowind_business_days.h)
endif()
list(TRANSFORM ferrowind_reference_inputs REPLACE "(.+)" "\"\\1\"")
list(JOIN ferrowind_reference_inputs " " ferrowind_reference_inputs)
configure_file(${CMAKE_CURRENT_LIST_DIR}/Doxyfile.in ${PROJECT_BINARY_DIR}/Doxyfile @ONLY)

find_program(FERROWIND_DOXYGEN doxygen)
mark_as_advanced(FERROWIND_DOXYGEN)
if(FERROWIND_DOXYGEN)
  add_custom_target(reference COMMAND ${FERROWIND_DOXYGEN} ${PROJECT_BINARY_DIR}/Doxyfile COMMENT "Writing the reference" VERBATIM)
endif()
