# The zip for Windows: `scripts/windows-zip` leaves it in build/windows/packages. The trees of the two presets, windows and
# windows32, each put their kind of programs into it; what is the same for both comes from the first.
set(zip_component windows)
set(zip_kind x86)
if(CMAKE_SIZEOF_VOID_P EQUAL 8)
  set(zip_kind x64)
endif()

# brivane_zip(DESTINATION FILES|PROGRAMS|DIRECTORY what...): puts it there in the zip.
function(brivane_zip destination)
  install(${ARGN} DESTINATION ${destination} COMPONENT ${zip_component})
endfunction()

# What carries the version, or is read with the editors of Windows.
set(zip_dir ${PROJECT_BINARY_DIR}/zip)
configure_file(packaging/windows/README.txt.in ${zip_dir}/README.txt @ONLY NEWLINE_STYLE CRLF)
configure_file(packaging/debian/copyright ${zip_dir}/COPYRIGHT.txt @ONLY NEWLINE_STYLE CRLF)
get_directory_property(architecture DIRECTORY component DEFINITION architecture)
configure_file(packaging/windows/Host.exe.manifest.in ${zip_dir}/container_example.exe.manifest @ONLY NEWLINE_STYLE CRLF)

set(zip_idl_dir ${PROJECT_BINARY_DIR}/component)
brivane_zip(${zip_kind} PROGRAMS $<TARGET_FILE:BrivaneVrijeKolom> $<TARGET_FILE:container_example>
                             $<TARGET_FILE:unregistered_example>)
brivane_zip(${zip_kind} FILES ${zip_idl_dir}/BrivaneVrijeKolom.tlb ${PROJECT_BINARY_DIR}/bin/Brivane.VrijeKolom.manifest
                          ${zip_dir}/container_example.exe.manifest)
brivane_zip(symbols/${zip_kind} FILES $<TARGET_FILE:BrivaneVrijeKolom>.debug)

# Everything that the zip holds of this tree; the script builds no more.
add_custom_target(zip_contents DEPENDS BrivaneVrijeKolom container_example unregistered_example)
if(NOT zip_kind STREQUAL "x64")
  return()
endif()

brivane_zip(. FILES ${zip_dir}/README.txt ${zip_dir}/COPYRIGHT.txt CHANGELOG.md packaging/windows/CMakeLists.txt)
brivane_zip(include FILES component/idl/BrivaneVrijeKolom.idl ${zip_idl_dir}/BrivaneVrijeKolom_idl.h)
brivane_zip(include/component/idl FILES component/idl/Guids.cpp component/idl/Interfaces.h component/idl/Windows.h)
brivane_zip(include/component/automation FILES component/automation/ComPtr.h)
brivane_zip(examples DIRECTORY examples/windows)
brivane_zip(docs FILES docs/windows.md docs/control-in-a-container.md)
brivane_zip(docs/images FILES docs/images/windows-container.png)

set(BRIVANE_WINDOWS32_TREE ${PROJECT_SOURCE_DIR}/build/windows32 CACHE PATH "Where the preset windows32 was built")
set(CPACK_GENERATOR ZIP)
set(CPACK_PACKAGE_VENDOR Brivane)
set(CPACK_PACKAGE_FILE_NAME ${PROJECT_NAME}-${PROJECT_VERSION}-windows)
set(CPACK_PACKAGE_DIRECTORY ${PROJECT_BINARY_DIR}/packages)
set(CPACK_INSTALL_CMAKE_PROJECTS "${PROJECT_BINARY_DIR};${PROJECT_NAME};${zip_component};/"
                                 "${BRIVANE_WINDOWS32_TREE};${PROJECT_NAME};${zip_component};/")
include(CPack)
