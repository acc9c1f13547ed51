# SPDX-FileCopyrightText: 2026 The Sonaphex authors
# SPDX-License-Identifier: GPL-3.0-or-later
# Settings of all targets: language, warnings, sanitizers, precompiled headers, the compiler cache.

set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)
# The modules are shared objects that link the same static libraries as the program.
set(CMAKE_POSITION_INDEPENDENT_CODE ON)
set(CMAKE_RUNTIME_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/bin)

option(SONAPHEX_WERROR "Treat warnings as errors" OFF)
option(SONAPHEX_PCH "Use precompiled headers" ON)
option(SONAPHEX_UNITY "Compile the libraries in batches of files: half the time from nothing, more after an edit" OFF)
set(SONAPHEX_SANITIZE "" CACHE STRING "Sanitizers, as for -fsanitize= (address,undefined or thread)")

find_program(CCACHE_PROGRAM ccache)
if(CCACHE_PROGRAM AND NOT CMAKE_CXX_COMPILER_LAUNCHER)
    # A base folder and no hashed folder, so that another checkout or build folder hits the same cache. ccache requires
    # this sloppiness for precompiled headers.
    set(CMAKE_CXX_COMPILER_LAUNCHER
        ${CMAKE_COMMAND} -E env CCACHE_BASEDIR=${CMAKE_SOURCE_DIR} CCACHE_NOHASHDIR=1
        CCACHE_SLOPPINESS=pch_defines,time_macros,include_file_mtime,include_file_ctime ${CCACHE_PROGRAM})
endif()

add_library(sonaphex_flags INTERFACE)
target_compile_options(sonaphex_flags INTERFACE -Wall -Wextra -Wpedantic $<$<BOOL:${SONAPHEX_WERROR}>:-Werror>)
target_compile_definitions(sonaphex_flags INTERFACE
    QT_NO_KEYWORDS QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII QT_NO_FOREACH QT_DISABLE_DEPRECATED_BEFORE=0x060400
    _FILE_OFFSET_BITS=64 SONAPHEX_VERSION="${PROJECT_VERSION}")
target_include_directories(sonaphex_flags INTERFACE ${CMAKE_SOURCE_DIR})
if(SONAPHEX_SANITIZE)
    target_compile_options(sonaphex_flags INTERFACE -fsanitize=${SONAPHEX_SANITIZE} -fno-omit-frame-pointer)
    target_link_options(sonaphex_flags INTERFACE -fsanitize=${SONAPHEX_SANITIZE})
endif()
if(SONAPHEX_SANITIZE MATCHES "thread")
    add_library(sonaphex_thread_sanitizer OBJECT ${CMAKE_CURRENT_LIST_DIR}/ThreadSanitizerClone.cpp)
    target_compile_options(sonaphex_thread_sanitizer PRIVATE -fsanitize=${SONAPHEX_SANITIZE})
    target_link_libraries(sonaphex_flags INTERFACE $<TARGET_OBJECTS:sonaphex_thread_sanitizer>)
endif()

# All sources and headers below the given folders. Headers are listed because moc only reads listed headers.
function(sonaphex_sources out)
    set(found)
    foreach(folder IN LISTS ARGN)
        file(GLOB_RECURSE files CONFIGURE_DEPENDS ${CMAKE_SOURCE_DIR}/${folder}/*.cpp ${CMAKE_SOURCE_DIR}/${folder}/*.h)
        list(APPEND found ${files})
    endforeach()
    set(${out} ${found} PARENT_SCOPE)
endfunction()

# Divides sources into those of the core and those of the window floor, by the list in cmake/WindowFloor.txt.
function(sonaphex_sort_floors sources core_out ui_out)
    set(list_file ${CMAKE_SOURCE_DIR}/cmake/WindowFloor.txt)
    set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${list_file})
    file(STRINGS ${list_file} entries REGEX "^[^#]")
    set(core)
    set(ui)
    foreach(source IN LISTS sources)
        file(RELATIVE_PATH path ${CMAKE_SOURCE_DIR} ${source})
        get_filename_component(folder ${path} DIRECTORY)
        string(REGEX REPLACE "\\.[^./]*$" "" stem ${path})
        if("${folder}/" IN_LIST entries OR stem IN_LIST entries)
            list(APPEND ui ${source})
        else()
            list(APPEND core ${source})
        endif()
    endforeach()
    set(${core_out} ${core} PARENT_SCOPE)
    set(${ui_out} ${ui} PARENT_SCOPE)
endfunction()

# moc and uic run again when a known file changes. They do not know a file that is new since the last configuration, so
# their stamp is removed when the list of files changes.
function(sonaphex_look_at_new_files target)
    string(SHA1 files "${ARGN}")
    if(NOT "${${target}_files}" STREQUAL files)
        file(REMOVE ${CMAKE_CURRENT_BINARY_DIR}/${target}_autogen/timestamp)
        set(${target}_files ${files} CACHE INTERNAL "The sources of ${target} at the last configuration")
    endif()
endfunction()

function(sonaphex_floor name)
    add_library(${name} STATIC ${ARGN})
    target_link_libraries(${name} PUBLIC sonaphex_flags)
    sonaphex_look_at_new_files(${name} ${ARGN})
    # Each command of the program has a run() of its own, so those files stay apart.
    if(SONAPHEX_UNITY AND NOT name STREQUAL "sonaphex_program")
        set_target_properties(${name} PROPERTIES UNITY_BUILD ON UNITY_BUILD_BATCH_SIZE 16)
        # A batch includes its files, and g++ warns of types from an unnamed namespace in what is included.
        target_compile_options(${name} PRIVATE -Wno-subobject-linkage)
        # Files that need Qt Gui stay apart too: the linker takes whole batches, and each command would load Qt Gui.
        set_source_files_properties(
            Platform/Desktop/linux/LinuxActivation.cpp Platform/Desktop/linux/LinuxStatusBars.cpp
            Platform/Media/linux/tags/BasicID3ChangeArtwork.cpp RingtoneMaker/WaveImage.cpp
            Source/Control/ID3ChangeControlPictures.cpp Source/Control/ToolControlPictures.cpp
            PROPERTIES SKIP_UNITY_BUILD_INCLUSION ON)
        file(STRINGS ${CMAKE_SOURCE_DIR}/cmake/ProgramSources.txt program_sources REGEX "^[^#]")
        set_source_files_properties(${program_sources} PROPERTIES SKIP_UNITY_BUILD_INCLUSION ON)
    endif()
    if(SONAPHEX_PCH)
        target_precompile_headers(${name} PRIVATE
            <algorithm> <array> <atomic> <chrono> <cmath> <cstdint> <functional> <map> <memory> <mutex> <optional> <span>
            <string> <thread> <vector> <QByteArray> <QDateTime> <QDebug> <QDir> <QFile> <QFileInfo> <QHash> <QList>
            <QObject> <QString> <QStringList> <QVariant>)
        if(name STREQUAL "sonaphex_ui" OR name STREQUAL "sonaphex_program")
            target_precompile_headers(${name} PRIVATE <QAction> <QApplication> <QBoxLayout> <QPainter> <QWidget>)
        endif()
    endif()
endfunction()

# The program looks for its resources beside itself: bin/Resources in the build tree, share/sonaphex when installed.
function(sonaphex_resources)
    file(GLOB_RECURSE files CONFIGURE_DEPENDS ${CMAKE_SOURCE_DIR}/Resources/*)
    set(stamp ${CMAKE_BINARY_DIR}/resources.stamp)
    add_custom_command(OUTPUT ${stamp}
        COMMAND ${CMAKE_COMMAND} -E copy_directory ${CMAKE_SOURCE_DIR}/Resources
                ${CMAKE_RUNTIME_OUTPUT_DIRECTORY}/Resources
        COMMAND ${CMAKE_COMMAND} -E touch ${stamp}
        DEPENDS ${files}
        COMMENT "Laying the resources beside the program" VERBATIM)
    add_custom_target(sonaphex_resource_files ALL DEPENDS ${stamp})
    add_dependencies(sonaphex sonaphex_resource_files)
endfunction()

# Makes Resources/translations/*.ts into the files that the program loads. The target `translations` brings the .ts files up
# to date with the texts of the sources. The .ts files contain no line numbers: each edit of a source would change them.
function(sonaphex_translations)
    file(GLOB files CONFIGURE_DEPENDS ${CMAKE_SOURCE_DIR}/Resources/translations/*.ts)
    set(out ${CMAKE_RUNTIME_OUTPUT_DIRECTORY}/Resources/translations)
    set(made)
    foreach(file IN LISTS files)
        get_filename_component(name ${file} NAME_WE)
        add_custom_command(OUTPUT ${out}/${name}.qm
            COMMAND ${CMAKE_COMMAND} -E make_directory ${out}
            COMMAND Qt6::lrelease -silent ${file} -qm ${out}/${name}.qm
            DEPENDS ${file} VERBATIM)
        list(APPEND made ${out}/${name}.qm)
    endforeach()
    add_custom_target(sonaphex_translation_files ALL DEPENDS ${made})
    add_dependencies(sonaphex sonaphex_translation_files)
    add_custom_target(translations
        COMMAND ${CMAKE_SOURCE_DIR}/scripts/translations $<TARGET_FILE:Qt6::lupdate>
        COMMENT "Collecting the texts of the sources" VERBATIM)
endfunction()
