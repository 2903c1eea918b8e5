# All other targets of the project link this one. It sets the language level, warnings as errors, the strict Qt options and the
# protections that docs/security.md lists.
add_library(sweepwise_options INTERFACE)

target_compile_features(sweepwise_options INTERFACE cxx_std_20)
target_compile_options(sweepwise_options INTERFACE
    -Wall -Wextra -Wpedantic -Werror
    -Wshadow -Wconversion -Wsign-conversion -Wnon-virtual-dtor -Wold-style-cast -Woverloaded-virtual
    -Wnull-dereference)
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
    target_compile_options(sweepwise_options INTERFACE -Wduplicated-cond -Wlogical-op -Wuseless-cast)
endif()
target_compile_definitions(sweepwise_options INTERFACE
    QT_NO_CAST_FROM_ASCII
    QT_NO_CAST_TO_ASCII
    QT_NO_CAST_FROM_BYTEARRAY
    QT_NO_URL_CAST_FROM_STRING
    QT_NO_CONTEXTLESS_CONNECT
    QT_NO_NARROWING_CONVERSIONS_IN_CONNECT
    QT_NO_FOREACH
    QT_NO_KEYWORDS
    QT_DISABLE_DEPRECATED_BEFORE=0x060400)
target_include_directories(sweepwise_options INTERFACE ${PROJECT_BINARY_DIR}/generated)

# scripts/check-elf.sh and scripts/check-exe.sh confirm them for both programs.
target_compile_options(sweepwise_options INTERFACE -fstack-protector-strong)
target_compile_definitions(sweepwise_options INTERFACE _GLIBCXX_ASSERTIONS)
if(WIN32)
    # The compiler always probes large stack frames here. cmake/mingw-w64.cmake has the options of the linker.
    target_link_options(sweepwise_options INTERFACE -fstack-protector-strong)
else()
    # Qt's targets ask for position-independent code already.
    target_compile_options(sweepwise_options INTERFACE -fstack-clash-protection)
    target_link_options(sweepwise_options INTERFACE -pie LINKER:-z,relro,-z,now,-z,noexecstack)
endif()
# It needs an optimised build, as all presets are. A sanitizer checks the same calls itself.
if(NOT SWEEPWISE_SANITIZE)
    target_compile_options(sweepwise_options INTERFACE -U_FORTIFY_SOURCE -D_FORTIFY_SOURCE=3)
endif()

# The fuzzers steer by the branches that an input takes.
if(SWEEPWISE_BUILD_FUZZERS)
    target_compile_options(sweepwise_options INTERFACE -fsanitize=fuzzer-no-link)
endif()

if(SWEEPWISE_SANITIZE)
    target_compile_options(sweepwise_options INTERFACE
        -fsanitize=${SWEEPWISE_SANITIZE} -fno-omit-frame-pointer -fno-sanitize-recover=all)
    target_link_options(sweepwise_options INTERFACE -fsanitize=${SWEEPWISE_SANITIZE})
endif()
# With a sanitizer, and in the optimised cross build, GCC warns of null pointers that do not exist.
if(SWEEPWISE_SANITIZE OR MINGW)
    target_compile_options(sweepwise_options INTERFACE -Wno-null-dereference)
endif()
