# nlohmann_json::nlohmann_json, for tests and benchmarks of every system.
if(CMAKE_CROSSCOMPILING)
  # Headers alone, which are the same for every system. They are shown without those beside them, which are this machine's.
  file(MAKE_DIRECTORY ${PROJECT_BINARY_DIR}/headers)
  file(CREATE_LINK /usr/include/nlohmann ${PROJECT_BINARY_DIR}/headers/nlohmann SYMBOLIC)
  add_library(nlohmann_json::nlohmann_json INTERFACE IMPORTED)
  target_include_directories(nlohmann_json::nlohmann_json INTERFACE ${PROJECT_BINARY_DIR}/headers)
else()
  find_package(nlohmann_json REQUIRED)
endif()
