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

# zelto_precompile_headers(<name> LIBRARIES <targets>... [STRICT]) precompiles the headers of Qt's widgets, and
# zelto_use_precompiled_headers(<target> <name>) lends them to a target that links the same of Qt, with the flags of
# zelto_set_up_target() where STRICT. A forgotten #include goes unseen then, so that some builds have to do without.
function(zelto_precompile_headers name)
    cmake_parse_arguments(ARG "STRICT" "" "LIBRARIES" ${ARGN})
    if(ZELTO_PRECOMPILE_HEADERS)
        file(CONFIGURE OUTPUT ${name}.cpp CONTENT "") # a target needs a source before it precompiles headers
        add_library(${name} OBJECT ${CMAKE_CURRENT_BINARY_DIR}/${name}.cpp)
        target_link_libraries(${name} PRIVATE ${ARG_LIBRARIES})
        target_precompile_headers(${name} PRIVATE <QtWidgets>)
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
    endif()
endfunction()

# zelto_add_library(<target> FOLDER <folder> EXPORT_NAME <name> SOURCES <files>...)
#
# Adds the shared library of one top-level folder. Its headers are found as <folder/...>, in the source tree and
# installed; <folder/<folder>_export.h> defines ZELTO_<FOLDER>_EXPORT.
function(zelto_add_library target)
    cmake_parse_arguments(ARG "" "FOLDER;EXPORT_NAME" "SOURCES" ${ARGN})
    add_library(${target} SHARED ${ARG_SOURCES})
    add_library(Zelto::${ARG_EXPORT_NAME} ALIAS ${target})
    zelto_set_up_target(${target})

    string(TOUPPER ${ARG_FOLDER} folder_upper)
    generate_export_header(${target}
        EXPORT_MACRO_NAME ZELTO_${folder_upper}_EXPORT
        EXPORT_FILE_NAME ${CMAKE_BINARY_DIR}/include/${ARG_FOLDER}/${ARG_FOLDER}_export.h)
    target_include_directories(${target} PUBLIC
        $<BUILD_INTERFACE:${PROJECT_SOURCE_DIR}>
        $<BUILD_INTERFACE:${CMAKE_BINARY_DIR}/include>
        $<INSTALL_INTERFACE:${ZELTO_INCLUDE_INSTALL_DIR}>)
    target_compile_features(${target} PUBLIC cxx_std_20)
    set_target_properties(${target} PROPERTIES
        EXPORT_NAME ${ARG_EXPORT_NAME}
        VERSION ${PROJECT_VERSION}
        SOVERSION ${ZELTO_SOVERSION})

    install(TARGETS ${target} EXPORT ZeltoViewerComponentsTargets
        LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR}
        RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR}
        ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR})
    install(DIRECTORY ${CMAKE_CURRENT_SOURCE_DIR}/ DESTINATION ${ZELTO_INCLUDE_INSTALL_DIR}/${ARG_FOLDER}
        FILES_MATCHING PATTERN "*.h" PATTERN "*_p.h" EXCLUDE PATTERN "Resources" EXCLUDE)
    install(FILES ${CMAKE_BINARY_DIR}/include/${ARG_FOLDER}/${ARG_FOLDER}_export.h
        DESTINATION ${ZELTO_INCLUDE_INSTALL_DIR}/${ARG_FOLDER})
endfunction()

# Installs the exported targets and the files that make find_package(ZeltoViewerComponents) work.
function(zelto_install_package)
    install(EXPORT ZeltoViewerComponentsTargets NAMESPACE Zelto::
        DESTINATION ${ZELTO_PACKAGE_INSTALL_DIR})
    configure_package_config_file(${PROJECT_SOURCE_DIR}/cmake/ZeltoViewerComponentsConfig.cmake.in
        ${CMAKE_BINARY_DIR}/ZeltoViewerComponentsConfig.cmake
        INSTALL_DESTINATION ${ZELTO_PACKAGE_INSTALL_DIR})
    write_basic_package_version_file(${CMAKE_BINARY_DIR}/ZeltoViewerComponentsConfigVersion.cmake
        COMPATIBILITY SameMinorVersion)
    install(FILES
        ${CMAKE_BINARY_DIR}/ZeltoViewerComponentsConfig.cmake
        ${CMAKE_BINARY_DIR}/ZeltoViewerComponentsConfigVersion.cmake
        DESTINATION ${ZELTO_PACKAGE_INSTALL_DIR})
endfunction()
