# sweepwise_library(<name> [FOLDERS <folder>...] [SOURCES <file>...] [UNIX <file>...] [WINDOWS <file>...]
#                   [LINKS <target>...] [LINKS_PRIVATELY <target>...]): a static library "sweepwise_<name>".
#
# FOLDERS are the include folders for targets that link the library. Their default is the folder of the list file. UNIX and
# WINDOWS are sources for one system only. A target that links the library also links its LINKS, but not its LINKS_PRIVATELY.
function(sweepwise_library name)
    cmake_parse_arguments(PARSE_ARGV 1 arg "" "" "FOLDERS;SOURCES;UNIX;WINDOWS;LINKS;LINKS_PRIVATELY")
    set(target sweepwise_${name})
    if(WIN32)
        set(own ${arg_WINDOWS})
    else()
        set(own ${arg_UNIX})
    endif()
    qt_add_library(${target} STATIC ${arg_SOURCES} ${own})
    if(NOT arg_FOLDERS)
        set(arg_FOLDERS .)
    endif()
    target_include_directories(${target} PUBLIC ${arg_FOLDERS})
    target_link_libraries(${target} PUBLIC ${arg_LINKS} sweepwise_options PRIVATE ${arg_LINKS_PRIVATELY})
endfunction()
