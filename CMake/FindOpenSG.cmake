# Finds an installed OpenSG 1.8 below OPENSG_ROOT and gives the target Qx::OpenSG.
#
# OPENSG_ROOT         folder with include/OpenSG and the libraries OSGSystem and OSGBase, which may
#                     have the names of a debug build (OSGSystemD, or lib/dbg)
# OPENSG_DEFINITIONS  list of definitions that this OpenSG was built with and that its headers ask
#                     for, such as OSG_DEBUG;OSG_FIXED_MFIELDSYNC;_OSG_HAVE_CONFIGURED_H_

if(NOT DEFINED OPENSG_DEFINITIONS)
    set(OPENSG_DEFINITIONS "" CACHE STRING "Definitions that the installed OpenSG was built with")
endif()

# What was found below another root is worth nothing.
if(NOT "${OPENSG_ROOT}" STREQUAL "${OPENSG_FOUND_ROOT}")
    unset(OPENSG_INCLUDE_DIR CACHE)
    unset(OPENSG_OSGSystem_LIBRARY CACHE)
    unset(OPENSG_OSGBase_LIBRARY CACHE)
    set(OPENSG_FOUND_ROOT "${OPENSG_ROOT}" CACHE INTERNAL "The OPENSG_ROOT of the last search")
endif()

find_path(OPENSG_INCLUDE_DIR OpenSG/OSGNode.h PATHS ${OPENSG_ROOT}/include NO_DEFAULT_PATH)
foreach(library OSGSystem OSGBase)
    find_library(OPENSG_${library}_LIBRARY NAMES ${library} ${library}D
        PATHS ${OPENSG_ROOT} PATH_SUFFIXES lib/opt lib lib64/opt lib64 lib/dbg lib64/dbg
        NO_DEFAULT_PATH)
endforeach()

unset(OpenSG_VERSION)
if(EXISTS "${OPENSG_INCLUDE_DIR}/OpenSG/OSGConfig.h")
    set(OpenSG_VERSION unknown)
    set(pattern "^[ \t]*#[ \t]*define[ \t]+OSG_(MAJOR|MINOR|RELEASE)_VERSION[ \t]+([0-9]+).*")
    file(STRINGS ${OPENSG_INCLUDE_DIR}/OpenSG/OSGConfig.h lines REGEX "${pattern}")
    foreach(line IN LISTS lines)
        string(REGEX REPLACE "${pattern}" "\\1" part "${line}")
        string(REGEX REPLACE "${pattern}" "\\2" OpenSG_VERSION_${part} "${line}")
    endforeach()
    if(DEFINED OpenSG_VERSION_MAJOR AND DEFINED OpenSG_VERSION_MINOR)
        set(OpenSG_VERSION
            ${OpenSG_VERSION_MAJOR}.${OpenSG_VERSION_MINOR}.${OpenSG_VERSION_RELEASE})
    endif()
endif()

include(FindPackageHandleStandardArgs)
find_package_handle_standard_args(OpenSG HANDLE_VERSION_RANGE VERSION_VAR OpenSG_VERSION
    REQUIRED_VARS OPENSG_OSGSystem_LIBRARY OPENSG_OSGBase_LIBRARY OPENSG_INCLUDE_DIR
    REASON_FAILURE_MESSAGE "OPENSG_ROOT is \"${OPENSG_ROOT}\"")

if(OpenSG_FOUND AND NOT TARGET Qx::OpenSG)
    message(STATUS "OpenSG has to be built with -O1 -fno-devirtualize: with -Ofast, current compilers "
        "break its functors, and walks over the scene do nothing or crash")
    add_library(Qx::OpenSG INTERFACE IMPORTED GLOBAL)
    # Its headers include each other without the folder's name, and they use an old hash header.
    target_include_directories(Qx::OpenSG SYSTEM INTERFACE
        ${OPENSG_INCLUDE_DIR} ${OPENSG_INCLUDE_DIR}/OpenSG)
    target_compile_definitions(Qx::OpenSG INTERFACE
        _GLIBCXX_PERMIT_BACKWARD_HASH ${OPENSG_DEFINITIONS})
    # Its fields narrow constants wherever they are instantiated, also as system headers.
    target_compile_options(Qx::OpenSG INTERFACE -Wno-narrowing)
    # The libraries leave the symbols of GL to their user.
    target_link_libraries(Qx::OpenSG INTERFACE
        ${OPENSG_OSGSystem_LIBRARY} ${OPENSG_OSGBase_LIBRARY} GLU GL pthread dl)
endif()
