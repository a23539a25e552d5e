# Windows from Debian: the POSIX threads variant, because the other has no std::thread. Linked statically, so that a
# program runs without a search for the compiler's libraries; Wine runs it here.
set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR x86_64)
set(CMAKE_C_COMPILER x86_64-w64-mingw32-gcc-posix)
set(CMAKE_CXX_COMPILER x86_64-w64-mingw32-g++-posix)
# LLVM links and archives in a second what takes GNU's tools for this system more than a minute.
find_program(TARVEL_LLD_LINK lld-link REQUIRED)
set(CMAKE_EXE_LINKER_FLAGS_INIT "-static -B${CMAKE_CURRENT_LIST_DIR}")
set(CMAKE_SHARED_LINKER_FLAGS_INIT "-static -B${CMAKE_CURRENT_LIST_DIR}")
set(CMAKE_USER_MAKE_RULES_OVERRIDE_CXX ${CMAKE_CURRENT_LIST_DIR}/archive.cmake)
set(CMAKE_CROSSCOMPILING_EMULATOR ${CMAKE_CURRENT_LIST_DIR}/../../tools/wine.sh)
set(CMAKE_FIND_ROOT_PATH /usr/x86_64-w64-mingw32)
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)
