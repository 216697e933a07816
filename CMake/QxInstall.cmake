# What `cmake --install` makes of the libraries: each is a component of find_package(qxVariants CONFIG).

include(CMakePackageConfigHelpers)

set(QX_INSTALL_CMAKE ${CMAKE_INSTALL_LIBDIR}/cmake/qxVariants)
set(QX_INSTALL_INCLUDE ${CMAKE_INSTALL_INCLUDEDIR}/qxVariants)
# Programs find our libraries beside them, also those they load by name.
file(RELATIVE_PATH libraries_from_programs
    ${CMAKE_INSTALL_FULL_BINDIR} ${CMAKE_INSTALL_FULL_LIBDIR})
set(CMAKE_INSTALL_RPATH "$ORIGIN;$ORIGIN/${libraries_from_programs}")

# qx_install_library(<name> <component> <folder> <patterns>): with the headers below the folder that fit
# the patterns, or with all of them.
function(qx_install_library name component folder patterns)
    if(patterns)
        list(TRANSFORM patterns PREPEND ${folder}/)
        file(GLOB headers CONFIGURE_DEPENDS ${patterns})
    else()
        file(GLOB_RECURSE headers CONFIGURE_DEPENDS ${folder}/*.h)
    endif()
    set(visibility PUBLIC)
    get_target_property(kind ${name} TYPE)
    if(kind STREQUAL INTERFACE_LIBRARY)
        set(visibility INTERFACE)
    endif()
    target_sources(${name} ${visibility} FILE_SET HEADERS BASE_DIRS ${folder} FILES ${headers})
    set_target_properties(${name} PROPERTIES EXPORT_NAME ${component}
        VERSION ${PROJECT_VERSION} SOVERSION ${PROJECT_VERSION_MAJOR})
    install(TARGETS ${name} EXPORT qxVariants${component}
        COMPONENT ${component}
        INCLUDES DESTINATION ${QX_INSTALL_INCLUDE}/${component}
        FILE_SET HEADERS DESTINATION ${QX_INSTALL_INCLUDE}/${component})
    install(EXPORT qxVariants${component} NAMESPACE qxVariants::
        DESTINATION ${QX_INSTALL_CMAKE} COMPONENT ${component})
endfunction()

# qx_install_package(): what finds the installed components, for CMake and for pkg-config.
function(qx_install_package)
    set(package ${PROJECT_BINARY_DIR}/package)
    configure_package_config_file(${PROJECT_SOURCE_DIR}/CMake/qxVariantsConfig.cmake.in
        ${package}/qxVariantsConfig.cmake INSTALL_DESTINATION ${QX_INSTALL_CMAKE})
    # Until 1.0 a minor version may change what a program was compiled with.
    write_basic_package_version_file(${package}/qxVariantsConfigVersion.cmake
        COMPATIBILITY SameMinorVersion)
    file(RELATIVE_PATH QX_PREFIX_FROM_PKGCONFIG
        ${CMAKE_INSTALL_FULL_LIBDIR}/pkgconfig ${CMAKE_INSTALL_PREFIX})
    set(opensg_cflags "-I\${includedir}/OpenSG")
    set(opensg_libs -lqxOpenSG)
    if(OPENSG_ROOT)
        list(TRANSFORM OPENSG_DEFINITIONS PREPEND " -D" OUTPUT_VARIABLE definitions)
        string(CONCAT definitions ${definitions})
        set(opensg_cflags "-D_GLIBCXX_PERMIT_BACKWARD_HASH${definitions} -Wno-narrowing -I${OPENSG_INCLUDE_DIR} -I${OPENSG_INCLUDE_DIR}/OpenSG")
        set(opensg_libs "${OPENSG_OSGSystem_LIBRARY} ${OPENSG_OSGBase_LIBRARY}")
    endif()
    configure_file(${PROJECT_SOURCE_DIR}/CMake/qxvariants.pc.in ${package}/qxvariants.pc @ONLY)

    install(FILES ${package}/qxVariantsConfig.cmake ${package}/qxVariantsConfigVersion.cmake
        DESTINATION ${QX_INSTALL_CMAKE} COMPONENT Module)
    install(FILES ${package}/qxvariants.pc
        DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig COMPONENT Module)
endfunction()
