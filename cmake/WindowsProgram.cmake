# sweepwise_windows_program(<target> DESCRIPTION <text> [GUI]): adds an icon, a version resource and the manifest
# resources/windows/<target>.manifest.in to a Windows program. On other systems it does nothing.
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
endfunction()
