# Finds an installed OpenSG 1.8 below OPENSG_ROOT and gives the target Qx::OpenSG.

find_path(OPENSG_INCLUDE_DIR OpenSG/OSGNode.h PATHS ${OPENSG_ROOT}/include NO_DEFAULT_PATH)
foreach(library OSGSystem OSGBase)
    find_library(OPENSG_${library}_LIBRARY ${library}
        PATHS ${OPENSG_ROOT} PATH_SUFFIXES lib lib/opt lib64 NO_DEFAULT_PATH)
endforeach()

include(FindPackageHandleStandardArgs)
find_package_handle_standard_args(OpenSG REQUIRED_VARS
    OPENSG_OSGSystem_LIBRARY OPENSG_OSGBase_LIBRARY OPENSG_INCLUDE_DIR)

if(OpenSG_FOUND AND NOT TARGET Qx::OpenSG)
    add_library(Qx::OpenSG INTERFACE IMPORTED)
    # Its headers include each other without the folder's name, and they use an old hash header.
    target_include_directories(Qx::OpenSG SYSTEM INTERFACE
        ${OPENSG_INCLUDE_DIR} ${OPENSG_INCLUDE_DIR}/OpenSG)
    target_compile_definitions(Qx::OpenSG INTERFACE _GLIBCXX_PERMIT_BACKWARD_HASH)
    # The libraries leave the symbols of GL to their user.
    target_link_libraries(Qx::OpenSG INTERFACE
        ${OPENSG_OSGSystem_LIBRARY} ${OPENSG_OSGBase_LIBRARY} GLU GL pthread dl)
endif()
