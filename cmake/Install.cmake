# What an embedding project gets: the logic and the toolkit in memory as Brivane::VrijeKolom, the Qt toolkit as
# Brivane::Qt, their headers under include/brivane, and a package that find_package() finds.
include(GNUInstallDirs)
include(CMakePackageConfigHelpers)

set(package_dir ${CMAKE_INSTALL_LIBDIR}/cmake/BrivaneVrijeKolom)

add_library(brivane_embedding INTERFACE)
set_target_properties(brivane_embedding PROPERTIES EXPORT_NAME VrijeKolom)
add_library(Brivane::VrijeKolom ALIAS brivane_embedding)
add_library(brivane_embedding_qt INTERFACE)
set_target_properties(brivane_embedding_qt PROPERTIES EXPORT_NAME Qt)
add_library(Brivane::Qt ALIAS brivane_embedding_qt)
target_link_libraries(brivane_embedding_qt INTERFACE brivane_embedding)

# The libraries by their folder: those of toolkits/qt form the Qt part, the reference host and the tools stay here.
set(core brivane_embedding)
set(qt brivane_embedding_qt)
get_property(libraries GLOBAL PROPERTY BRIVANE_LIBRARIES)
foreach(library IN LISTS libraries)
  get_target_property(folder ${library} SOURCE_DIR)
  cmake_path(RELATIVE_PATH folder BASE_DIRECTORY ${PROJECT_SOURCE_DIR})
  if(folder MATCHES "^toolkits/qt")
    list(APPEND qt ${library})
    target_link_libraries(brivane_embedding_qt INTERFACE ${library})
  elseif(folder MATCHES "^(host|frame|toelichting|scenario|vrijekolom|controls|toolkits)")
    list(APPEND core ${library})
    target_link_libraries(brivane_embedding INTERFACE ${library})
  endif()
endforeach()

install(TARGETS ${core} EXPORT VrijeKolom)
install(EXPORT VrijeKolom NAMESPACE Brivane:: FILE VrijeKolomTargets.cmake DESTINATION ${package_dir})
list(LENGTH qt parts)
if(parts GREATER 1)
  install(TARGETS ${qt} EXPORT Qt)
  install(EXPORT Qt NAMESPACE Brivane:: FILE QtTargets.cmake DESTINATION ${package_dir})
endif()

install(DIRECTORY host frame toelichting scenario vrijekolom controls toolkits DESTINATION include/brivane
        FILES_MATCHING PATTERN "*.h" PATTERN "toolkits/qt" EXCLUDE PATTERN "toolkits/win32" EXCLUDE)
if(WIN32)
  install(DIRECTORY toolkits/win32 DESTINATION include/brivane/toolkits FILES_MATCHING PATTERN "*.h")
endif()
if(parts GREATER 1)
  install(DIRECTORY toolkits/qt DESTINATION include/brivane/toolkits FILES_MATCHING PATTERN "*.h")
endif()

configure_package_config_file(cmake/BrivaneVrijeKolomConfig.cmake.in BrivaneVrijeKolomConfig.cmake
                              INSTALL_DESTINATION ${package_dir})
write_basic_package_version_file(BrivaneVrijeKolomConfigVersion.cmake COMPATIBILITY SameMajorVersion)
install(FILES ${CMAKE_CURRENT_BINARY_DIR}/BrivaneVrijeKolomConfig.cmake
              ${CMAKE_CURRENT_BINARY_DIR}/BrivaneVrijeKolomConfigVersion.cmake DESTINATION ${package_dir})
