# What an embedding project links: the logic and the toolkit in memory as Brivane::VrijeKolom, the Qt toolkit as
# Brivane::Qt, the kit that checks a host as Brivane::HostKit. Each is one library, made of what its rooms were compiled
# to; BUILD_SHARED_LIBS makes shared ones of the first two, of which only the public names are seen. The programs and
# tests of the tree use the rooms themselves.
set(core_rooms brivane_host brivane_frame brivane_toelichting brivane_scenario brivane_vrijekolom brivane_controls
    brivane_memory)
set(qt_rooms brivane_qt)
set(hostkit_rooms brivane_instrument brivane_hostkit)

# brivane_embedding(NAME EXPORT_NAME FILE_NAME [STATIC] rooms...): STATIC whatever BUILD_SHARED_LIBS says.
function(brivane_embedding name export_name file_name)
  cmake_parse_arguments(arg "STATIC" "" "" ${ARGN})
  if(arg_STATIC)
    add_library(${name} STATIC)
  else()
    add_library(${name})
  endif()
  add_library(Brivane::${export_name} ALIAS ${name})
  set_property(GLOBAL APPEND PROPERTY BRIVANE_EMBEDDED ${name})
  set_target_properties(${name} PROPERTIES EXPORT_NAME ${export_name} OUTPUT_NAME ${file_name} LINKER_LANGUAGE CXX
    VERSION ${PROJECT_VERSION} SOVERSION ${PROJECT_VERSION_MAJOR})
  target_compile_features(${name} PUBLIC cxx_std_20)
  target_sources(${name} PUBLIC FILE_SET HEADERS BASE_DIRS ${PROJECT_SOURCE_DIR})
  foreach(room IN LISTS arg_UNPARSED_ARGUMENTS)
    get_target_property(headers ${room} BRIVANE_PUBLIC_HEADERS)
    target_sources(${name} PUBLIC FILE_SET HEADERS FILES ${headers})
    get_target_property(type ${room} TYPE)
    if(NOT type STREQUAL "INTERFACE_LIBRARY")
      target_sources(${name} PRIVATE $<TARGET_OBJECTS:${room}>)
    endif()
  endforeach()
  if(CMAKE_SHARED_LIBRARY_SUFFIX STREQUAL ".so")
    target_link_options(${name} PRIVATE -Wl,--no-undefined)
  endif()
endfunction()

if(WIN32 AND BUILD_SHARED_LIBS)
  message(FATAL_ERROR "On Windows the C++ libraries are static; the shared one is the component library.")
endif()
brivane_embedding(brivane_embedding VrijeKolom brivane-vrijekolom ${core_rooms})
brivane_embedding(brivane_embedding_hostkit HostKit brivane-vrijekolom-hostkit STATIC ${hostkit_rooms})
target_link_libraries(brivane_embedding_hostkit PUBLIC brivane_embedding)
if(BRIVANE_QT)
  find_package(Qt6 6.4 REQUIRED COMPONENTS Widgets)
  brivane_embedding(brivane_embedding_qt Qt brivane-vrijekolom-qt ${qt_rooms})
  target_link_libraries(brivane_embedding_qt PUBLIC brivane_embedding Qt6::Widgets)
endif()
