# Warnings are errors wherever this project is built for itself; the logic folders are held to conversions as well.
# None of this reaches who links the libraries.
add_library(brivane_warnings INTERFACE)
if(CMAKE_CXX_COMPILER_ID MATCHES "GNU|Clang")
  target_compile_options(brivane_warnings INTERFACE -Wall -Wextra -Wpedantic -Wshadow -Wnon-virtual-dtor)
  if(BRIVANE_WARNINGS_AS_ERRORS)
    target_compile_options(brivane_warnings INTERFACE -Werror)
  endif()
endif()
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU" AND CMAKE_CXX_FLAGS MATCHES "-fsanitize")
  # Under the sanitizers GCC takes the alternatives of a variant that are not in use for uninitialised values.
  target_compile_options(brivane_warnings INTERFACE -Wno-maybe-uninitialized)
endif()
add_library(brivane_strict_warnings INTERFACE)
target_link_libraries(brivane_strict_warnings INTERFACE brivane_warnings)
if(CMAKE_CXX_COMPILER_ID MATCHES "GNU|Clang")
  target_compile_options(brivane_strict_warnings INTERFACE -Wconversion -Wsign-conversion -Wold-style-cast)
endif()
