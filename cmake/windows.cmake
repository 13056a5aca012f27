# Builds for 64-bit Windows on Debian, with g++-mingw-w64-x86-64-posix. The programs import what Windows brings and
# nothing else: the compiler's libraries are linked in.
set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR x86_64)
set(CMAKE_C_COMPILER x86_64-w64-mingw32-gcc-posix)
set(CMAKE_CXX_COMPILER x86_64-w64-mingw32-g++-posix)
set(CMAKE_RC_COMPILER x86_64-w64-mingw32-windres)
set(CMAKE_CROSSCOMPILING_EMULATOR ${CMAKE_CURRENT_LIST_DIR}/../tests/windows-build/wine.sh)
set(CMAKE_FIND_ROOT_PATH /usr/x86_64-w64-mingw32)
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)

# Addresses and data as hard to abuse as Windows makes them, and the same bytes wherever and whenever it is built.
set(CMAKE_EXE_LINKER_FLAGS_INIT "-static -Wl,--dynamicbase,--nxcompat,--high-entropy-va,--no-insert-timestamp")
