# Toolchain: 64-bit Windows programs, made by Debian's mingw-w64 with threads by winpthreads.
# KELVO_MINGW names the folders, separated by semicolons, with what was built for Windows: Qt, GoogleTest.
set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR x86_64)
set(mingw x86_64-w64-mingw32)
set(CMAKE_C_COMPILER ${mingw}-gcc-posix)
set(CMAKE_CXX_COMPILER ${mingw}-g++-posix)
set(CMAKE_RC_COMPILER ${mingw}-windres)
set(CMAKE_AR ${mingw}-gcc-ar-posix CACHE STRING "")
set(CMAKE_RANLIB ${mingw}-gcc-ranlib-posix CACHE STRING "")
set(CMAKE_TRY_COMPILE_PLATFORM_VARIABLES KELVO_MINGW)
set(CMAKE_FIND_ROOT_PATH ${KELVO_MINGW} /usr/${mingw})
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)

# moc and its like run here: those of the machine's own Qt, which is of the same version.
execute_process(COMMAND gcc -print-multiarch OUTPUT_VARIABLE multiarch OUTPUT_STRIP_TRAILING_WHITESPACE)
set(QT_HOST_PATH /usr CACHE PATH "")
set(QT_HOST_PATH_CMAKE_DIR /usr/lib/${multiarch}/cmake CACHE PATH "")
set(CMAKE_CROSSCOMPILING_EMULATOR ${CMAKE_CURRENT_LIST_DIR}/../scripts/wine-run)
