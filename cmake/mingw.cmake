# Toolchain to build for Windows on Linux and run the programs under Wine.
# OSTRANE_WINDOWS_LIBRARIES: folder that scripts/windows_libraries.sh has filled.
set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR x86_64)
# GoogleTest needs the variant with threads in the standard library.
set(CMAKE_C_COMPILER x86_64-w64-mingw32-gcc-posix)
set(CMAKE_CXX_COMPILER x86_64-w64-mingw32-g++-posix)
set(CMAKE_RC_COMPILER x86_64-w64-mingw32-windres)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)
set(CMAKE_FIND_ROOT_PATH /usr/x86_64-w64-mingw32 ${OSTRANE_WINDOWS_LIBRARIES})
set(CMAKE_TRY_COMPILE_PLATFORM_VARIABLES OSTRANE_WINDOWS_LIBRARIES)
set(CMAKE_CROSSCOMPILING_EMULATOR wine)
