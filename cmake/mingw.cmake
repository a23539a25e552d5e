# Windows from Debian: the POSIX threads variant, because the other has no std::thread. Linked statically, so that a
# program runs without a search for the compiler's libraries; Wine runs it here.
set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR x86_64)
set(CMAKE_C_COMPILER x86_64-w64-mingw32-gcc-posix)
set(CMAKE_CXX_COMPILER x86_64-w64-mingw32-g++-posix)
# LLVM's linker takes a second where the compiler's own takes twenty, and its archives need not hold what they list.
find_program(TARVEL_LLD ld.lld REQUIRED)
file(REAL_PATH ${TARVEL_LLD} TARVEL_LLD_DATEI)
get_filename_component(TARVEL_LLD_ORDNER ${TARVEL_LLD_DATEI} DIRECTORY)
set(CMAKE_EXE_LINKER_FLAGS_INIT "-static -fuse-ld=lld -B${TARVEL_LLD_ORDNER}")
set(CMAKE_SHARED_LINKER_FLAGS_INIT "-static -fuse-ld=lld -B${TARVEL_LLD_ORDNER}")
set(CMAKE_CXX_ARCHIVE_CREATE "<CMAKE_AR> qcT <TARGET> <LINK_FLAGS> <OBJECTS>")
set(CMAKE_CROSSCOMPILING_EMULATOR ${CMAKE_CURRENT_LIST_DIR}/../tools/wine.sh)
set(CMAKE_FIND_ROOT_PATH /usr/x86_64-w64-mingw32)
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)
