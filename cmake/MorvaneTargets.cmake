# SPDX-FileCopyrightText: 2026 The Morvane authors
# SPDX-License-Identifier: MIT

include(GenerateExportHeader)

# How Morvane's own code is compiled. None of this is passed on to consumers.
add_library(morvane-build-flags INTERFACE)
target_compile_definitions(morvane-build-flags INTERFACE
    QT_NO_KEYWORDS QT_NO_FOREACH QT_NO_NARROWING_CONVERSIONS_IN_CONNECT
    $<$<EQUAL:${MORVANE_QT_MAJOR},6>:QT_DISABLE_DEPRECATED_BEFORE=0x060000>)
if(MSVC)
    target_compile_options(morvane-build-flags INTERFACE
        /W4 /utf-8 /permissive- $<$<BOOL:${MORVANE_WARNINGS_AS_ERRORS}>:/WX>)
else()
    target_compile_options(morvane-build-flags INTERFACE
        -Wall -Wextra -Wpedantic -Wshadow -Woverloaded-virtual -Wcast-align -Wformat=2
        # For GoogleTest's macros for typed suites.
        $<$<CXX_COMPILER_ID:Clang>:-Wno-gnu-zero-variadic-macro-arguments>
        # The system's COM interfaces, which our objects implement, have no virtual destructors.
        $<$<NOT:$<BOOL:${WIN32}>>:-Wnon-virtual-dtor>
        $<$<BOOL:${MORVANE_WARNINGS_AS_ERRORS}>:-Werror>)
endif()
if(MORVANE_SANITIZE OR MORVANE_BUILD_FUZZERS)
    set(sanitizers -fsanitize=undefined,float-cast-overflow -fno-sanitize-recover=undefined,float-cast-overflow
        -fno-omit-frame-pointer)
    if(CMAKE_CXX_COMPILER_ID STREQUAL Clang AND NOT MORVANE_BUILD_FUZZERS)
        # Overflow of unsigned integers and conversions that lose something: only clang checks them.
        list(APPEND sanitizers -fsanitize=integer,nullability -fno-sanitize-recover=integer,nullability
            -fsanitize-ignorelist=${CMAKE_CURRENT_LIST_DIR}/sanitizer-ignorelist.txt)
    else()
        list(APPEND sanitizers -fsanitize=address)
    endif()
    if(MORVANE_BUILD_FUZZERS)
        list(APPEND sanitizers -fsanitize=fuzzer-no-link)
    endif()
    target_compile_options(morvane-build-flags INTERFACE ${sanitizers})
    target_compile_definitions(morvane-build-flags INTERFACE _GLIBCXX_ASSERTIONS)
    target_link_options(morvane-build-flags INTERFACE ${sanitizers})
endif()
if(MORVANE_COVERAGE)
    target_compile_options(morvane-build-flags INTERFACE --coverage -fprofile-update=atomic)
    target_link_options(morvane-build-flags INTERFACE --coverage)
endif()

# Compiles TARGET the way all of Morvane's own code is compiled.
function(morvane_own_code target)
    # Copied rather than linked: a static library would pass what it links on to its users.
    target_compile_definitions(${target} PRIVATE $<TARGET_PROPERTY:morvane-build-flags,INTERFACE_COMPILE_DEFINITIONS>)
    target_compile_options(${target} PRIVATE $<TARGET_PROPERTY:morvane-build-flags,INTERFACE_COMPILE_OPTIONS>)
    target_link_options(${target} PRIVATE $<TARGET_PROPERTY:morvane-build-flags,INTERFACE_LINK_OPTIONS>)
    target_compile_features(${target} PUBLIC cxx_std_17)
    set_target_properties(${target} PROPERTIES
        CXX_EXTENSIONS OFF CXX_VISIBILITY_PRESET hidden VISIBILITY_INLINES_HIDDEN ON)
endfunction()

# ccache requires this option for precompiled headers; see also MorvaneOptions.cmake.
set(morvane_precompiled_options $<$<CXX_COMPILER_ID:GNU>:-fpch-preprocess>)

# morvane_build_quickly(TARGET header...)
# If MORVANE_BUILD_QUICKLY is on, compiles several sources of TARGET at once, and precompiles the headers, also for its
# internal sources. Those are compiled one by one: the programs that link their archive take only what they use.
function(morvane_build_quickly target)
    get_target_property(type ${target} TYPE)
    if(NOT MORVANE_BUILD_QUICKLY OR (MORVANE_BUILD_QUICKLY STREQUAL "TESTS" AND NOT type STREQUAL "EXECUTABLE"))
        return()
    endif()
    set_target_properties(${target} PROPERTIES UNITY_BUILD ON)
    target_compile_options(${target} PRIVATE ${morvane_precompiled_options})
    if(TARGET ${target}-objects)
        target_compile_options(${target}-objects PRIVATE ${morvane_precompiled_options})
        target_precompile_headers(${target}-objects PRIVATE ${ARGN})
        target_precompile_headers(${target} REUSE_FROM ${target}-objects)
    else()
        target_precompile_headers(${target} PRIVATE ${ARGN})
    endif()
endfunction()

# morvane_uses_regex(source...): with sanitizers, GCC takes parts of <regex> for uninitialized.
function(morvane_uses_regex)
    if(MORVANE_SANITIZE AND CMAKE_CXX_COMPILER_ID STREQUAL GNU)
        set_property(SOURCE ${ARGN} APPEND PROPERTY COMPILE_OPTIONS -Wno-maybe-uninitialized)
    endif()
endfunction()

# morvane_library(NAME morvane-ui EXPORT_NAME Ui EXPORT_HEADER ui/qt/MorvaneUiExport.h EXPORT_MACRO MORVANE_UI_EXPORT
#                 PUBLIC_HEADERS ... SOURCES ...)
# A versioned shared library with its export header; header paths are relative to the include root. If some of the
# SOURCES are internal, there is also NAME-internals; see morvane_internals.
function(morvane_library)
    cmake_parse_arguments(arg "" "NAME;EXPORT_NAME;EXPORT_HEADER;EXPORT_MACRO" "PUBLIC_HEADERS;SOURCES" ${ARGN})
    list(TRANSFORM arg_PUBLIC_HEADERS PREPEND ${PROJECT_SOURCE_DIR}/common/src/ OUTPUT_VARIABLE header_files)
    morvane_split_sources(public internal ${arg_SOURCES})
    add_library(${arg_NAME} SHARED ${public} ${header_files})
    add_library(Morvane::${arg_EXPORT_NAME} ALIAS ${arg_NAME})
    morvane_own_code(${arg_NAME})
    set_target_properties(${arg_NAME} PROPERTIES AUTOMOC ON)
    morvane_describe_classes(${arg_NAME})
    if(internal)
        morvane_internals(${arg_NAME} ${internal})
    endif()
    # The libraries find each other in whatever directory they are installed or unpacked.
    set_target_properties(${arg_NAME} PROPERTIES
        EXPORT_NAME ${arg_EXPORT_NAME} VERSION ${PROJECT_VERSION} SOVERSION ${PROJECT_VERSION_MAJOR}
        INSTALL_RPATH "$ORIGIN"
        OUTPUT_NAME ${arg_NAME}${MORVANE_SUFFIX})

    set(generated ${PROJECT_BINARY_DIR}/generated)
    generate_export_header(${arg_NAME}
        EXPORT_MACRO_NAME ${arg_EXPORT_MACRO} EXPORT_FILE_NAME ${generated}/${arg_EXPORT_HEADER})
    target_include_directories(${arg_NAME} PUBLIC
        $<BUILD_INTERFACE:${PROJECT_SOURCE_DIR}/common/src> $<BUILD_INTERFACE:${generated}>
        $<INSTALL_INTERFACE:${CMAKE_INSTALL_INCLUDEDIR}/morvane${MORVANE_SUFFIX}>)
    morvane_public_headers(${arg_NAME} ${arg_PUBLIC_HEADERS})
    morvane_install_headers(BASE ${generated} ${arg_EXPORT_HEADER})
endfunction()

# morvane_describe_classes(TARGET): with the debug information from which tests/abi reads the classes. -g1 has none.
function(morvane_describe_classes target)
    if(MORVANE_BUILD_TESTS AND CMAKE_CXX_COMPILER_ID STREQUAL GNU AND NOT CMAKE_CROSSCOMPILING
            AND NOT MORVANE_SANITIZE AND NOT MORVANE_COVERAGE)
        target_compile_options(${target} PRIVATE $<$<CONFIG:Debug>:-g2>)
    endif()
endfunction()

# morvane_split_sources(PUBLIC INTERNAL source...): the internal ones have no public header, NAME.h, beside them.
function(morvane_split_sources public internal)
    set(public_sources)
    set(internal_sources)
    foreach(source IN LISTS ARGN)
        string(REGEX REPLACE "\\.cpp>?$" ".h" header ${source})
        if(NOT header MATCHES "_p\\.h$" AND EXISTS ${CMAKE_CURRENT_SOURCE_DIR}/${header})
            list(APPEND public_sources ${source})
        else()
            list(APPEND internal_sources ${source})
        endif()
    endforeach()
    set(${public} ${public_sources} PARENT_SCOPE)
    set(${internal} ${internal_sources} PARENT_SCOPE)
endfunction()

# morvane_internals(LIBRARY source...)
# Compiles the internal sources of LIBRARY once, as LIBRARY-objects. They become a part of LIBRARY, which does not export
# them. The tests, the benchmarks and the fuzzers find them in the archive LIBRARY-internals: a program that links it takes
# only the objects that it uses, so that no other static variables exist twice.
function(morvane_internals library)
    set(objects ${library}-objects)
    add_library(${objects} OBJECT ${ARGN})
    morvane_own_code(${objects})
    set_target_properties(${objects} PROPERTIES AUTOMOC ON POSITION_INDEPENDENT_CODE ON)
    # The definition makes what the headers declare exported rather than imported.
    string(MAKE_C_IDENTIFIER ${library} identifier)
    target_compile_definitions(${objects} PRIVATE ${identifier}_EXPORTS)
    target_include_directories(${objects} PRIVATE $<TARGET_PROPERTY:${library},INCLUDE_DIRECTORIES>)
    set(links $<TARGET_GENEX_EVAL:${library},$<TARGET_PROPERTY:${library},LINK_LIBRARIES>>)
    target_link_libraries(${objects} PRIVATE ${links})
    target_sources(${library} PRIVATE $<TARGET_OBJECTS:${objects}>)

    add_library(${library}-internals STATIC EXCLUDE_FROM_ALL $<TARGET_OBJECTS:${objects}>)
    set_target_properties(${library}-internals PROPERTIES LINKER_LANGUAGE CXX)
    target_link_libraries(${library}-internals PUBLIC ${library} PRIVATE ${links})
endfunction()

# morvane_public_headers(TARGET header... [COMPONENT name])
# Declares headers, relative to the include root, as public headers of TARGET. They are installed, and each is tested on its
# own.
function(morvane_public_headers target)
    cmake_parse_arguments(arg "" "COMPONENT" "" ${ARGN})
    set_property(TARGET ${target} APPEND PROPERTY MORVANE_PUBLIC_HEADERS ${arg_UNPARSED_ARGUMENTS})
    morvane_install_headers(${ARGN})
endfunction()

# Installs headers under include/morvane or include/morvane-qt6, keeping their paths below BASE (the include root unless given), with COMPONENT
# (Development unless given).
function(morvane_install_headers)
    if(NOT MORVANE_INSTALL)
        return()
    endif()
    cmake_parse_arguments(arg "" "BASE;COMPONENT" "" ${ARGN})
    if(NOT arg_COMPONENT)
        set(arg_COMPONENT Development)
    endif()
    if(NOT arg_BASE)
        set(arg_BASE ${PROJECT_SOURCE_DIR}/common/src)
    endif()
    foreach(header IN LISTS arg_UNPARSED_ARGUMENTS)
        cmake_path(GET header PARENT_PATH directory)
        install(FILES ${arg_BASE}/${header}
                DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/morvane${MORVANE_SUFFIX}/${directory} COMPONENT ${arg_COMPONENT})
    endforeach()
endfunction()
