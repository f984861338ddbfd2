# What keeps a fault from being exploited in our own binaries: target_link_libraries(target PRIVATE ansatz_hardening). All
# addresses are resolved at the load and then write-protected; routines with arrays on their stack notice when one was
# overrun, and copies of a known size are checked. A library of objects that are compiled elsewhere gets the linker's part.
add_library(ansatz_hardening INTERFACE)
if(WIN32)
  # Loaded at a random address, data not executable, and no code of ours taken for an exception handler.
  target_link_options(ansatz_hardening INTERFACE LINKER:--dynamicbase LINKER:--nxcompat LINKER:--no-seh)
else()
  target_link_options(ansatz_hardening INTERFACE LINKER:-z,relro LINKER:-z,now LINKER:-z,noexecstack)
  target_compile_options(ansatz_hardening INTERFACE -fstack-protector-strong)
  if(NOT CMAKE_CXX_FLAGS MATCHES "-fsanitize") # the sanitizers check the copies themselves
    target_compile_options(ansatz_hardening INTERFACE
      $<$<CONFIG:Release,RelWithDebInfo,MinSizeRel>:-U_FORTIFY_SOURCE -D_FORTIFY_SOURCE=3>)
  endif()
endif()
