# The warnings of our own targets: target_link_libraries(target PRIVATE ansatz_warnings).
add_library(ansatz_warnings INTERFACE)
target_compile_options(ansatz_warnings INTERFACE -Wall -Wextra -Wpedantic -Wshadow -Wconversion
                       $<$<COMPILE_LANGUAGE:CXX>:-Wnon-virtual-dtor -Wold-style-cast -Wmissing-declarations>)
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU" AND CMAKE_CXX_COMPILER_VERSION VERSION_LESS 13)
  # This compiler sees overlapping copies in every `"literal" + std::to_string(k)`; there are none.
  target_compile_options(ansatz_warnings INTERFACE -Wno-restrict)
endif()
if(ANSATZ_WARNINGS_AS_ERRORS)
  target_compile_options(ansatz_warnings INTERFACE -Werror)
endif()
