# What the tests need to be built for Windows: GoogleTest from Debian's package of its sources, nothing that has to be
# copied beside the programs, and arithmetic with doubles, not with the 80-bit numbers of the x87 unit.
set(ANSATZ_GOOGLETEST /usr/src/googletest CACHE PATH "Where the sources of GoogleTest are")
add_compile_options(-msse2 -mfpmath=sse)
add_link_options(-static)
set(BUILD_GMOCK OFF)
set(INSTALL_GTEST OFF)
add_subdirectory(${ANSATZ_GOOGLETEST} googletest EXCLUDE_FROM_ALL)
