# SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
# SPDX-License-Identifier: MIT

# What every target of the project has in common: warnings, include root, export header, install rules.

set(ZELTO_INCLUDE_INSTALL_DIR ${CMAKE_INSTALL_INCLUDEDIR}/zelto)
# Until 1.0, a program works with the minor version only that it was built with.
set(ZELTO_SOVERSION ${PROJECT_VERSION_MAJOR})
if(PROJECT_VERSION_MAJOR EQUAL 0)
    set(ZELTO_SOVERSION ${PROJECT_VERSION_MAJOR}.${PROJECT_VERSION_MINOR})
endif()

set(ZELTO_PACKAGE_INSTALL_DIR ${CMAKE_INSTALL_LIBDIR}/cmake/ZeltoViewerComponents)

# Warnings and definitions of our own code.
function(zelto_set_up_target target)
    target_compile_options(${target} PRIVATE -Wall -Wextra)
    target_compile_definitions(${target} PRIVATE
        QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII QT_NO_CAST_FROM_BYTEARRAY QT_NO_FOREACH)
endfunction()

# zelto_precompile_headers(<name> HEADERS <headers>... LIBRARIES <targets>... [STRICT]) precompiles headers, and
# zelto_use_precompiled_headers(<target> <name>) lends them to a target that links at least the same of Qt, with the
# flags of zelto_set_up_target() where STRICT. Few headers serve best: all of QtWidgets takes three times as long to load
# as what most sources need of it. A forgotten #include goes unseen then, so that some builds have to do without.
set(ZELTO_CORE_HEADERS <QByteArray> <QHash> <QList> <QObject> <QSharedPointer> <QString> <QStringList> <QTimer>
    <QVariant> <algorithm> <functional> <map> <memory> <mutex> <optional> <string> <utility> <vector>)
set(ZELTO_WIDGETS_HEADERS ${ZELTO_CORE_HEADERS} <QAction> <QApplication> <QBoxLayout> <QComboBox> <QKeyEvent>
    <QLabel> <QLineEdit> <QLocale> <QMenu> <QPainter> <QPointer> <QSettings> <QSortFilterProxyModel> <QTreeView>)
function(zelto_precompile_headers name)
    cmake_parse_arguments(ARG "STRICT" "" "HEADERS;LIBRARIES" ${ARGN})
    if(ZELTO_PRECOMPILE_HEADERS)
        file(CONFIGURE OUTPUT ${name}.cpp CONTENT "") # a target needs a source before it precompiles headers
        add_library(${name} OBJECT ${CMAKE_CURRENT_BINARY_DIR}/${name}.cpp)
        target_link_libraries(${name} PRIVATE ${ARG_LIBRARIES})
        target_precompile_headers(${name} PRIVATE ${ARG_HEADERS})
        target_compile_options(${name} PRIVATE -pthread)
        set_target_properties(${name} PROPERTIES POSITION_INDEPENDENT_CODE ON AUTOMOC OFF AUTORCC OFF AUTOUIC OFF)
        if(ARG_STRICT)
            zelto_set_up_target(${name})
        else()
            target_compile_options(${name} PRIVATE -Wall -Wextra)
        endif()
    endif()
endfunction()
function(zelto_use_precompiled_headers target name)
    if(ZELTO_PRECOMPILE_HEADERS)
        target_precompile_headers(${target} REUSE_FROM ${name})
        target_compile_options(${target} PRIVATE -pthread) # as GLib's users have to, so that all have the same
    endif()
endfunction()

# zelto_add_library(<target> FOLDER <folder> EXPORT_NAME <name> SOURCES <files>...)
#
# Adds the library of one top-level folder, shared unless BUILD_SHARED_LIBS says otherwise. Its headers are found as
# <folder/...>, in the source tree and installed; <folder/<folder>_export.h> defines ZELTO_<FOLDER>_EXPORT. It is the
# component <name> of the package.
function(zelto_add_library target)
    cmake_parse_arguments(ARG "" "FOLDER;EXPORT_NAME" "SOURCES" ${ARGN})
    add_library(${target} ${ARG_SOURCES})
    add_library(Zelto::${ARG_EXPORT_NAME} ALIAS ${target})
    zelto_set_up_target(${target})

    string(TOUPPER ${ARG_FOLDER} folder_upper)
    generate_export_header(${target}
        EXPORT_MACRO_NAME ZELTO_${folder_upper}_EXPORT
        STATIC_DEFINE ZELTO_${folder_upper}_STATIC
        EXPORT_FILE_NAME ${PROJECT_BINARY_DIR}/include/${ARG_FOLDER}/${ARG_FOLDER}_export.h)
    if(NOT BUILD_SHARED_LIBS)
        target_compile_definitions(${target} PUBLIC ZELTO_${folder_upper}_STATIC)
    endif()
    target_include_directories(${target} PUBLIC
        $<BUILD_INTERFACE:${PROJECT_SOURCE_DIR}>
        $<BUILD_INTERFACE:${PROJECT_BINARY_DIR}/include>
        $<INSTALL_INTERFACE:${ZELTO_INCLUDE_INSTALL_DIR}>)
    target_compile_features(${target} PUBLIC cxx_std_20)
    set_target_properties(${target} PROPERTIES
        EXPORT_NAME ${ARG_EXPORT_NAME}
        VERSION ${PROJECT_VERSION}
        SOVERSION ${ZELTO_SOVERSION})
    if(NOT ZELTO_INSTALL)
        return()
    endif()

    set_property(GLOBAL APPEND PROPERTY ZELTO_COMPONENTS ${ARG_EXPORT_NAME})
    install(TARGETS ${target} EXPORT Zelto${ARG_EXPORT_NAME}Targets
        LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT runtime NAMELINK_COMPONENT dev
        RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR} COMPONENT runtime
        ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT dev)
    install(DIRECTORY ${CMAKE_CURRENT_SOURCE_DIR}/ DESTINATION ${ZELTO_INCLUDE_INSTALL_DIR}/${ARG_FOLDER}
        COMPONENT dev
        FILES_MATCHING PATTERN "*.h" PATTERN "*_p.h" EXCLUDE PATTERN "Resources" EXCLUDE
        PATTERN "translations" EXCLUDE)
    install(FILES ${PROJECT_BINARY_DIR}/include/${ARG_FOLDER}/${ARG_FOLDER}_export.h
        DESTINATION ${ZELTO_INCLUDE_INSTALL_DIR}/${ARG_FOLDER} COMPONENT dev)
endfunction()

# zelto_add_translations(<target> FOLDER <folder> TS_FILES <files>...)
#
# Compiles the files into the target, as :/<folder>/translations/<file>.qm. A static library has to name the
# resource zelto_<folder>_translations (Q_INIT_RESOURCE).
function(zelto_add_translations target)
    cmake_parse_arguments(ARG "" "FOLDER" "TS_FILES" ${ARGN})
    qt_add_lrelease(${target} TS_FILES ${ARG_TS_FILES} QM_FILES_OUTPUT_VARIABLE qm_files)
    set(files "")
    foreach(qm_file ${qm_files})
        get_filename_component(name ${qm_file} NAME)
        string(APPEND files "<file alias=\"${name}\">${qm_file}</file>")
    endforeach()
    set(qrc ${CMAKE_CURRENT_BINARY_DIR}/zelto_${ARG_FOLDER}_translations.qrc)
    file(CONFIGURE OUTPUT ${qrc} @ONLY
        CONTENT "<RCC><qresource prefix=\"/${ARG_FOLDER}/translations\">${files}</qresource></RCC>\n")
    qt_add_resources(sources ${qrc})
    target_sources(${target} PRIVATE ${sources})
endfunction()

# zelto_install_pkg_config(<name> DESCRIPTION <text> LIBRARY <target> [REQUIRES <packages>...] [PRIVATE <packages>...])
function(zelto_install_pkg_config name)
    cmake_parse_arguments(ARG "" "DESCRIPTION;LIBRARY" "REQUIRES;PRIVATE" ${ARGN})
    if(NOT ZELTO_INSTALL)
        return()
    endif()
    list(JOIN ARG_REQUIRES ", " requires)
    list(JOIN ARG_PRIVATE ", " requires_private)
    set(cflags "")
    if(NOT BUILD_SHARED_LIBS)
        set(requires "${requires}, ${requires_private}") # what the library itself calls is linked with it
        string(REGEX REPLACE ", $" "" requires "${requires}")
        set(requires_private "")
        set(cflags "-DZELTO_PLATFORM_STATIC -DZELTO_ZELTOVIEWERCOMPONENTS_STATIC -DZELTO_CAMERAS_STATIC")
    endif()
    # Relative to the file, so that an installed tree may be moved.
    file(RELATIVE_PATH prefix ${CMAKE_INSTALL_FULL_LIBDIR}/pkgconfig ${CMAKE_INSTALL_PREFIX})
    file(CONFIGURE OUTPUT ${PROJECT_BINARY_DIR}/${name}.pc @ONLY CONTENT
"prefix=\${pcfiledir}/${prefix}
libdir=\${prefix}/${CMAKE_INSTALL_LIBDIR}
includedir=\${prefix}/${ZELTO_INCLUDE_INSTALL_DIR}

Name: ${name}
Description: ${ARG_DESCRIPTION}
Version: ${PROJECT_VERSION}
Requires: ${requires}
Requires.private: ${requires_private}
Libs: -L\${libdir} -l${ARG_LIBRARY}
Cflags: -I\${includedir} -std=c++20 -fPIC ${cflags}
")
    install(FILES ${PROJECT_BINARY_DIR}/${name}.pc DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig COMPONENT dev)
endfunction()

# Installs the exported targets and the files that make find_package(ZeltoViewerComponents) work.
function(zelto_install_package)
    get_property(components GLOBAL PROPERTY ZELTO_COMPONENTS)
    foreach(component ${components})
        install(EXPORT Zelto${component}Targets NAMESPACE Zelto::
            DESTINATION ${ZELTO_PACKAGE_INSTALL_DIR} COMPONENT dev)
    endforeach()
    configure_package_config_file(${PROJECT_SOURCE_DIR}/cmake/ZeltoViewerComponentsConfig.cmake.in
        ${PROJECT_BINARY_DIR}/ZeltoViewerComponentsConfig.cmake
        INSTALL_DESTINATION ${ZELTO_PACKAGE_INSTALL_DIR})
    write_basic_package_version_file(${PROJECT_BINARY_DIR}/ZeltoViewerComponentsConfigVersion.cmake
        COMPATIBILITY SameMinorVersion)
    install(FILES
        ${PROJECT_BINARY_DIR}/ZeltoViewerComponentsConfig.cmake
        ${PROJECT_BINARY_DIR}/ZeltoViewerComponentsConfigVersion.cmake
        DESTINATION ${ZELTO_PACKAGE_INSTALL_DIR} COMPONENT dev)
endfunction()
