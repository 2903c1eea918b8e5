# sweepwise_windows_program(<target> DESCRIPTION <text> [GUI]): adds an icon, a version resource and the manifest
# resources/windows/<target>.manifest.in to a Windows program, and has it find libraries in the system folder alone. On other systems
# it does nothing.
#
# sweepwise_system_libraries(<target>): does the latter alone. src/platform/system/windows/systemlibraries.cpp says how.
if(NOT WIN32)
    function(sweepwise_windows_program target)
    endfunction()
    return()
endif()

enable_language(RC)
find_package(Python3 REQUIRED COMPONENTS Interpreter)
find_program(RSVG_CONVERT rsvg-convert REQUIRED)

set(SWEEPWISE_ICON "${PROJECT_BINARY_DIR}/generated/sweepwise.ico")
add_custom_command(
    OUTPUT "${SWEEPWISE_ICON}"
    COMMAND Python3::Interpreter "${PROJECT_SOURCE_DIR}/scripts/make-icon.py" "${RSVG_CONVERT}"
            "${PROJECT_SOURCE_DIR}/resources/icons/app.svg" "${SWEEPWISE_ICON}"
    DEPENDS "${PROJECT_SOURCE_DIR}/scripts/make-icon.py" "${PROJECT_SOURCE_DIR}/resources/icons/app.svg"
    VERBATIM)
add_custom_target(sweepwise_icon DEPENDS "${SWEEPWISE_ICON}")

# The libraries of the system that Qt, the compiler and we link, but kernel32 and msvcrt. Import libraries of the same names come before
# those of the compiler.
set(libraries
    advapi32 authz comdlg32 d2d1 d3d11 d3d9 dwmapi dwrite dxgi gdi32 imm32 mpr netapi32 ole32 oleaut32 runtimeobject shcore shell32
    shlwapi synchronization user32 userenv uxtheme version winmm winspool ws2_32 wtsapi32)
set(SWEEPWISE_LATE_LIBRARIES "${PROJECT_BINARY_DIR}/late-libraries")
file(MAKE_DIRECTORY "${SWEEPWISE_LATE_LIBRARIES}")
set(SWEEPWISE_LATE_LIBRARY_FILES)
foreach(library IN LISTS libraries)
    set(file "${SWEEPWISE_LATE_LIBRARIES}/lib${library}.a")
    add_custom_command(
        OUTPUT "${file}"
        COMMAND Python3::Interpreter "${PROJECT_SOURCE_DIR}/scripts/make-delay-library.py"
                "${CMAKE_CXX_COMPILER}" "${CMAKE_NM}" "${CMAKE_DLLTOOL}" ${library} "${file}"
        DEPENDS "${PROJECT_SOURCE_DIR}/scripts/make-delay-library.py"
        VERBATIM)
    list(APPEND SWEEPWISE_LATE_LIBRARY_FILES "${file}")
endforeach()
add_custom_target(sweepwise_late_libraries DEPENDS ${SWEEPWISE_LATE_LIBRARY_FILES})

add_library(sweepwise_system_libraries OBJECT
    "${PROJECT_SOURCE_DIR}/src/platform/system/windows/systemlibraries.cpp"
    "${PROJECT_SOURCE_DIR}/src/platform/system/windows/stackguard.cpp")
target_link_libraries(sweepwise_system_libraries PRIVATE sweepwise_options)
set_target_properties(sweepwise_system_libraries PROPERTIES AUTOMOC OFF)

function(sweepwise_system_libraries target)
    target_sources(${target} PRIVATE $<TARGET_OBJECTS:sweepwise_system_libraries>)
    target_link_directories(${target} BEFORE PRIVATE "${SWEEPWISE_LATE_LIBRARIES}")
    add_dependencies(${target} sweepwise_late_libraries)
    set_property(TARGET ${target} APPEND PROPERTY LINK_DEPENDS
        ${SWEEPWISE_LATE_LIBRARY_FILES} "${PROJECT_SOURCE_DIR}/scripts/finish-exe.py")
    # Nothing refers to it.
    target_link_options(${target} PRIVATE "LINKER:--undefined=_load_config_used")
    add_custom_command(TARGET ${target} POST_BUILD
        COMMAND Python3::Interpreter "${PROJECT_SOURCE_DIR}/scripts/finish-exe.py" "$<TARGET_FILE:${target}>"
        VERBATIM)
endfunction()

function(sweepwise_windows_program target)
    cmake_parse_arguments(PARSE_ARGV 1 arg "GUI" "DESCRIPTION" "")
    set_target_properties(${target} PROPERTIES WIN32_EXECUTABLE ${arg_GUI})

    set(templates "${PROJECT_SOURCE_DIR}/resources/windows")
    set(program "${target}")
    set(description "${arg_DESCRIPTION}")
    set(manifest "${PROJECT_BINARY_DIR}/generated/${target}.manifest")
    set(resource "${PROJECT_BINARY_DIR}/generated/${target}.rc")
    configure_file("${templates}/${target}.manifest.in" "${manifest}" @ONLY)
    configure_file("${templates}/program.rc.in" "${resource}" @ONLY)

    # A separate library: the resource compiler does not know the compile options of the sources.
    add_library(${target}_resources OBJECT "${resource}")
    set_target_properties(${target}_resources PROPERTIES AUTOMOC OFF)
    set_source_files_properties("${resource}" PROPERTIES OBJECT_DEPENDS "${SWEEPWISE_ICON};${manifest}")
    add_dependencies(${target}_resources sweepwise_icon)
    target_sources(${target} PRIVATE $<TARGET_OBJECTS:${target}_resources>)
    sweepwise_system_libraries(${target})
endfunction()
