# nlohmann_json::nlohmann_json. It is headers alone, the same for every machine; cross-built, they are reached by a link,
# because the folder that they stand in has this machine's own headers as well.
if(CMAKE_CROSSCOMPILING)
  find_path(BRIVANE_JSON_HEADERS nlohmann/json.hpp PATHS /usr/include NO_DEFAULT_PATH NO_CMAKE_FIND_ROOT_PATH REQUIRED)
  set(json_links ${CMAKE_BINARY_DIR}/json)
  file(MAKE_DIRECTORY ${json_links})
  file(CREATE_LINK ${BRIVANE_JSON_HEADERS}/nlohmann ${json_links}/nlohmann SYMBOLIC)
  add_library(nlohmann_json INTERFACE)
  target_include_directories(nlohmann_json SYSTEM INTERFACE $<BUILD_INTERFACE:${json_links}>)
  add_library(nlohmann_json::nlohmann_json ALIAS nlohmann_json)
else()
  find_package(nlohmann_json 3.11 REQUIRED)
endif()
