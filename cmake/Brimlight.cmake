# Flags and helpers that every folder of src/, tests/ and bench/ shares.

add_library(brimlight_flags INTERFACE)
target_compile_options(brimlight_flags INTERFACE -Wall -Wextra -Wpedantic -Wnon-virtual-dtor -Wno-missing-field-initializers
    $<$<CONFIG:Release>:-fno-plt>)
target_compile_definitions(brimlight_flags INTERFACE QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII
    QT_NO_FOREACH QT_NO_KEYWORDS)
target_link_options(brimlight_flags INTERFACE $<$<CONFIG:Release>:-Wl,-O1,--as-needed>)
if(BRIMLIGHT_SANITIZE)
    target_compile_options(brimlight_flags INTERFACE -fsanitize=address,undefined -fno-omit-frame-pointer
        -fno-sanitize-recover=undefined)
    target_link_options(brimlight_flags INTERFACE -fsanitize=address,undefined)
endif()

if(BRIMLIGHT_FUZZ)
    target_compile_options(brimlight_flags INTERFACE -fsanitize=fuzzer-no-link,address,undefined
        -fno-omit-frame-pointer -fno-sanitize-recover=undefined)
    target_link_options(brimlight_flags INTERFACE -fsanitize=address,undefined)
endif()

# brimlight_library(NAME SOURCES ... DEPENDS ...): one folder, one static library, headers by folder name.
function(brimlight_library name)
    cmake_parse_arguments(ARG "" "" "SOURCES;DEPENDS" ${ARGN})
    add_library(${name} STATIC ${ARG_SOURCES})
    target_include_directories(${name} PUBLIC "${PROJECT_SOURCE_DIR}/src")
    target_link_libraries(${name} PUBLIC ${ARG_DEPENDS} PRIVATE brimlight_flags)
endfunction()

# brimlight_module(NAME URI SOURCES ... QML ... IMPORTS ... DEPENDS ...): a library that is a QML module as well.
# IMPORTS are the modules whose types its own types mention.
function(brimlight_module name uri)
    cmake_parse_arguments(ARG "" "" "SOURCES;QML;IMPORTS;DEPENDS" ${ARGN})
    brimlight_library(${name} SOURCES ${ARG_SOURCES} DEPENDS ${ARG_DEPENDS} Qt6::Qml)
    string(REPLACE "." "/" path ${uri})
    qt_add_qml_module(${name}
        URI ${uri}
        VERSION 1.0
        NO_PLUGIN
        RESOURCE_PREFIX /qt/qml
        OUTPUT_DIRECTORY "${QT_QML_OUTPUT_DIRECTORY}/${path}"
        DEPENDENCIES ${ARG_IMPORTS}
        IMPORT_PATH "${QT_QML_OUTPUT_DIRECTORY}"
        QML_FILES ${ARG_QML})
    # The generated registration includes the headers of QML types by file name alone.
    target_include_directories(${name} PRIVATE "${CMAKE_CURRENT_SOURCE_DIR}")
endfunction()
