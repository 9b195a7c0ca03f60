# Flags and helpers that every folder of src/, tests/ and bench/ shares.

add_library(brimlight_flags INTERFACE)
target_compile_options(brimlight_flags INTERFACE -Wall -Wextra -Wpedantic -Wnon-virtual-dtor -Wno-missing-field-initializers
    $<$<CONFIG:Release>:-fno-plt>)
target_compile_definitions(brimlight_flags INTERFACE QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII
    QT_NO_FOREACH QT_NO_KEYWORDS)
# A precompiled header serves only who defines the same macros, and these come with what a target links.
target_compile_definitions(brimlight_flags INTERFACE QT_CORE_LIB QT_DBUS_LIB QT_GUI_LIB QT_NETWORK_LIB QT_OPENGL_LIB
    QT_QMLINTEGRATION_LIB QT_QMLMODELS_LIB QT_QML_LIB QT_QUICK_LIB)
target_compile_options(brimlight_flags INTERFACE -pthread)
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

# The headers that nearly every file reads, read once a configuration. A file that forgets to include what it uses is
# found by the preset "plain", which builds without them.
function(brimlight_precompile name)
    cmake_parse_arguments(ARG "" "" "HEADERS;DEPENDS" ${ARGN})
    file(GENERATE OUTPUT "${CMAKE_BINARY_DIR}/${name}.cpp" CONTENT "")
    add_library(${name} OBJECT "${CMAKE_BINARY_DIR}/${name}.cpp")
    target_link_libraries(${name} PRIVATE ${ARG_DEPENDS} brimlight_flags)
    target_precompile_headers(${name} PRIVATE ${ARG_HEADERS})
    set_target_properties(${name} PROPERTIES AUTOMOC OFF)
endfunction()

brimlight_precompile(brimlight_precompiled
    HEADERS <algorithm> <chrono> <functional> <memory> <optional> <vector> <QColor> <QDateTime> <QHash> <QJsonObject>
        <QObject> <QPointer> <QQmlEngine> <QQuickItem> <QString> <QStringList> <QUrl> <QVariant> <QtQmlIntegration>
    DEPENDS Qt6::Quick)

# brimlight_library(NAME SOURCES ... DEPENDS ...): one folder, one static library, headers by folder name.
function(brimlight_library name)
    cmake_parse_arguments(ARG "" "" "SOURCES;DEPENDS" ${ARGN})
    add_library(${name} STATIC ${ARG_SOURCES})
    target_include_directories(${name} PUBLIC "${PROJECT_SOURCE_DIR}/src")
    target_link_libraries(${name} PUBLIC ${ARG_DEPENDS} PRIVATE brimlight_flags)
    target_precompile_headers(${name} REUSE_FROM brimlight_precompiled)
endfunction()

# Compiled QML starts faster; the sanitized build is for tests, which need not start fast.
if(BRIMLIGHT_SANITIZE)
    set(brimlight_cachegen NO_CACHEGEN)
endif()

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
        ${brimlight_cachegen}
        QML_FILES ${ARG_QML})
    # Nothing calls the registration of the types, so the linker is told to take it out of the static library.
    string(REPLACE "." "_" registration "qml_register_types_${uri}")
    string(LENGTH ${registration} length)
    target_link_options(${name} INTERFACE "LINKER:--undefined=_Z${length}${registration}v")
    # The generated registration includes the headers of QML types by file name alone.
    target_include_directories(${name} PRIVATE "${CMAKE_CURRENT_SOURCE_DIR}")
endfunction()
