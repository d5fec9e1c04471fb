# SPDX-FileCopyrightText: 2026 The Morvane authors
# SPDX-License-Identifier: MIT

# Writes what the build consists of, with the versions that were found, as an SPDX 2.3 document, and installs it.

# sbom_package(ID NAME VERSION LICENCE [RELATIONSHIP]): a package and its relationship to Morvane.
function(sbom_package id name version licence)
    if(NOT version)
        set(version NOASSERTION)
    endif()
    set(package [[{"downloadLocation": "NOASSERTION", "filesAnalyzed": false, "copyrightText": "NOASSERTION"}]])
    foreach(pair IN ITEMS "name|${name}" "SPDXID|SPDXRef-${id}" "versionInfo|${version}"
            "licenseConcluded|${licence}" "licenseDeclared|${licence}")
        string(REGEX MATCH "^([^|]+)\\|(.*)$" pair "${pair}")
        string(JSON package SET "${package}" ${CMAKE_MATCH_1} "\"${CMAKE_MATCH_2}\"")
    endforeach()
    string(JSON count LENGTH "${sbom}" packages)
    string(JSON sbom SET "${sbom}" packages ${count} "${package}")
    if(ARGC GREATER 4)
        sbom_relationship(${id} ${ARGV4})
    endif()
    set(sbom "${sbom}" PARENT_SCOPE)
endfunction()

# Morvane DEPENDS_ON the package; the other kinds point from the package to Morvane.
function(sbom_relationship id kind)
    set(from Morvane)
    set(to ${id})
    if(NOT kind STREQUAL "DEPENDS_ON")
        set(from ${id})
        set(to Morvane)
    endif()
    string(JSON count LENGTH "${sbom}" relationships)
    string(JSON sbom SET "${sbom}" relationships ${count} "{\"spdxElementId\": \"SPDXRef-${from}\",
        \"relationshipType\": \"${kind}\", \"relatedSpdxElement\": \"SPDXRef-${to}\"}")
    set(sbom "${sbom}" PARENT_SCOPE)
endfunction()

function(morvane_write_sbom file)
    set(sbom [[{"spdxVersion": "SPDX-2.3", "dataLicense": "CC0-1.0", "SPDXID": "SPDXRef-DOCUMENT",
        "documentDescribes": ["SPDXRef-Morvane"], "packages": [], "relationships": [
            {"spdxElementId": "SPDXRef-DOCUMENT", "relationshipType": "DESCRIBES", "relatedSpdxElement": "SPDXRef-Morvane"}
        ]}]])
    string(JSON sbom SET "${sbom}" name "\"morvane${MORVANE_SUFFIX}-${PROJECT_VERSION}\"")

    sbom_package(Morvane Morvane ${PROJECT_VERSION} MIT)
    set(qt_licence "LGPL-3.0-only OR GPL-2.0-only OR GPL-3.0-only")
    foreach(module IN ITEMS Core Gui Widgets)
        sbom_package(${MORVANE_QT}${module} "Qt ${module}" "${${MORVANE_QT}${module}_VERSION}" "${qt_licence}" DEPENDS_ON)
    endforeach()
    sbom_package(BoostFilesystem Boost.Filesystem "${Boost_VERSION_STRING}" BSL-1.0 DEPENDS_ON)
    sbom_package(BoostHeaders "Boost headers" "${Boost_VERSION_STRING}" BSL-1.0 DEPENDS_ON)
    get_property(uses_ctk GLOBAL PROPERTY MORVANE_CTK_VERSION SET)
    get_property(ctk_version GLOBAL PROPERTY MORVANE_CTK_VERSION)
    get_property(uses_qxt GLOBAL PROPERTY MORVANE_USES_QXT)
    if(uses_ctk)
        sbom_package(CTK CTK "${ctk_version}" Apache-2.0 DEPENDS_ON)
    endif()
    if(uses_qxt)
        sbom_package(Qxt Qxt "" NOASSERTION DEPENDS_ON)
    endif()
    sbom_package(CMake CMake ${CMAKE_VERSION} BSD-3-Clause BUILD_TOOL_OF)
    sbom_package(Compiler "${CMAKE_CXX_COMPILER_ID} C++ compiler and its standard library"
        "${CMAKE_CXX_COMPILER_VERSION}" NOASSERTION BUILD_TOOL_OF)

    # The same content always gets the same name; different content gets a different name.
    string(UUID id NAMESPACE 6ba7b811-9dad-11d1-80b4-00c04fd430c8 NAME "${sbom}" TYPE SHA1)
    string(TIMESTAMP created "%Y-%m-%dT%H:%M:%SZ" UTC)
    string(JSON sbom SET "${sbom}" documentNamespace "\"urn:uuid:${id}\"")
    string(JSON sbom SET "${sbom}" creationInfo "{\"created\": \"${created}\", \"creators\": [\"Tool: CMake-${CMAKE_VERSION}\"]}")
    file(WRITE ${file} "${sbom}\n")
endfunction()

morvane_write_sbom(${PROJECT_BINARY_DIR}/morvane${MORVANE_SUFFIX}.spdx.json)
install(FILES ${PROJECT_BINARY_DIR}/morvane${MORVANE_SUFFIX}.spdx.json
        DESTINATION ${CMAKE_INSTALL_DATADIR}/doc/morvane${MORVANE_SUFFIX} COMPONENT Runtime)
