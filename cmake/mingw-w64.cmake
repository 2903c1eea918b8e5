# Toolchain for Windows x86-64: the distribution's MinGW-w64 (posix threads) and a static Qt for Windows.
# QT_WINDOWS_SDK is the folder of that Qt: a cache variable, or else an environment variable. The host's Qt has moc and rcc.
set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR x86_64)

if(NOT QT_WINDOWS_SDK AND NOT "$ENV{QT_WINDOWS_SDK}" STREQUAL "")
    set(QT_WINDOWS_SDK "$ENV{QT_WINDOWS_SDK}" CACHE PATH "Folder of the static Qt for Windows")
endif()
if(NOT QT_WINDOWS_SDK)
    message(FATAL_ERROR "QT_WINDOWS_SDK is not set; scripts/windows-sdk.sh prints the folder to set it to")
endif()
# The compiler checks read this file in their own project, which does not have this cache variable.
list(APPEND CMAKE_TRY_COMPILE_PLATFORM_VARIABLES QT_WINDOWS_SDK)

set(_triplet x86_64-w64-mingw32)
set(CMAKE_C_COMPILER ${_triplet}-gcc-posix)
set(CMAKE_CXX_COMPILER ${_triplet}-g++-posix)
set(CMAKE_RC_COMPILER ${_triplet}-windres)
# -static puts the compiler's own libraries into the program. The other flags are the usual protections; check-exe.sh checks them.
set(CMAKE_EXE_LINKER_FLAGS_INIT "-static -Wl,--dynamicbase,--high-entropy-va,--nxcompat")

set(CMAKE_FIND_ROOT_PATH /usr/${_triplet} ${QT_WINDOWS_SDK})
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)

# Host and target need the same Qt version, so the host's Qt is the distribution's one too.
set(QT_HOST_PATH /usr CACHE PATH "The host's Qt")
set(QT_HOST_PATH_CMAKE_DIR /usr/lib/x86_64-linux-gnu/cmake CACHE PATH "The CMake packages of the host's Qt")
