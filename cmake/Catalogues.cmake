# Reads the languages of the program and writes them into languages.h.
set(languages_file "${PROJECT_SOURCE_DIR}/resources/translations/languages.txt")
set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS "${languages_file}")
file(STRINGS "${languages_file}" lines REGEX "^[^#]" ENCODING UTF-8)
set(SWEEPWISE_LANGUAGES)
set(SWEEPWISE_LANGUAGE_ROWS "")
foreach(line IN LISTS lines)
    string(REGEX MATCH "^([^ ]+) (.+)$" line "${line}")
    list(APPEND SWEEPWISE_LANGUAGES ${CMAKE_MATCH_1})
    string(APPEND SWEEPWISE_LANGUAGE_ROWS "    Language{QLatin1StringView(\"${CMAKE_MATCH_1}\"), u\"${CMAKE_MATCH_2}\"},\n")
endforeach()
configure_file("${CMAKE_CURRENT_LIST_DIR}/languages.h.in" generated/languages.h @ONLY)

# sweepwise_catalogues(<target>): compiles the catalogues of resources/translations together with the toolkit's own texts in the
# same languages. The results are the resources ":/translations/Sweepwise_<code>.qm" of a library.
#
# The distribution has the toolkit's catalogues. For a language that it lacks, qt_<code>.ts is in the folder of our catalogues.
find_path(QT_CATALOGUES qtbase_de.qm PATHS /usr/share/qt6/translations NO_CMAKE_FIND_ROOT_PATH REQUIRED)

function(sweepwise_catalogues target)
    set(folder "${PROJECT_SOURCE_DIR}/resources/translations")
    set(output "${CMAKE_CURRENT_BINARY_DIR}/translations")
    file(MAKE_DIRECTORY "${output}")
    set(catalogues)
    foreach(code IN LISTS SWEEPWISE_LANGUAGES)
        set(ours "${folder}/Sweepwise_${code}.ts")
        set(toolkit "${folder}/qt_${code}.ts")
        if(NOT EXISTS "${toolkit}")
            set(toolkit "${QT_CATALOGUES}/qtbase_${code}.qm")
        endif()
        set(catalogue "${output}/Sweepwise_${code}.qm")
        add_custom_command(
            OUTPUT "${catalogue}"
            COMMAND Qt6::lconvert -target-language ${code} -i "${ours}" "${toolkit}" -o "${output}/${code}.ts"
            COMMAND Qt6::lrelease -silent "${output}/${code}.ts" -qm "${catalogue}"
            DEPENDS "${ours}" "${toolkit}"
            VERBATIM)
        list(APPEND catalogues "${catalogue}")
    endforeach()
    qt_add_resources(${target} "translations"
        PREFIX "/translations"
        BASE "${output}"
        FILES ${catalogues})
endfunction()
