# What MinGW-w64's toolchains have in common. The including file says which one by FERROWIND_MINGW_TRIPLE.
set(CMAKE_SYSTEM_NAME Windows)

# Threads of the standard library need the POSIX variant, which Debian does not make the default.
set(CMAKE_C_COMPILER ${FERROWIND_MINGW_TRIPLE}-gcc-posix)
set(CMAKE_CXX_COMPILER ${FERROWIND_MINGW_TRIPLE}-g++-posix)
set(CMAKE_RC_COMPILER ${FERROWIND_MINGW_TRIPLE}-windres)

set(CMAKE_FIND_ROOT_PATH /usr/${FERROWIND_MINGW_TRIPLE})
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)

# A program that is copied to another machine finds no libraries of the compiler there.
set(CMAKE_EXE_LINKER_FLAGS_INIT -static)
set(CMAKE_SHARED_LINKER_FLAGS_INIT -static)
set(CMAKE_MODULE_LINKER_FLAGS_INIT -static)
