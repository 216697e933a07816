# qx_library and qx_program: how every target of this project is built.

include(QxInstall)

# What all our own code is compiled with.
function(qx_compile_options target)
    target_compile_options(${target} PRIVATE
        -Wall -Wextra -Wpedantic -Wshadow -Werror -fno-semantic-interposition)
    # Python has members called like a keyword of Qt.
    target_compile_definitions(${target} PRIVATE QT_NO_KEYWORDS)
    qx_unity_of_folders(${target})
endfunction()

# With CMAKE_UNITY_BUILD the sources of one folder are compiled as one, because most of the time goes
# into headers and templates. A source with options of its own stays alone. Names in unnamed
# namespaces differ within a folder; presets without it check that each source compiles alone.
function(qx_unity_of_folders target)
    if(NOT CMAKE_UNITY_BUILD)
        return()
    endif()
    # What is right in a source that is compiled alone: a local variable called like another source's
    # constant, a nested class with a member of a type of this source only.
    target_compile_options(${target} PRIVATE
        -Wno-shadow $<$<CXX_COMPILER_ID:GNU>:-Wno-subobject-linkage>)
    set_target_properties(${target} PROPERTIES UNITY_BUILD_MODE GROUP)
    get_target_property(sources ${target} SOURCES)
    foreach(source IN LISTS sources)
        cmake_path(RELATIVE_PATH source BASE_DIRECTORY ${CMAKE_CURRENT_SOURCE_DIR})
        cmake_path(GET source PARENT_PATH folder)
        string(MAKE_C_IDENTIFIER "${target}/${folder}" group)
        set_property(SOURCE ${source} PROPERTY UNITY_GROUP ${group})
    endforeach()
endfunction()

# All C++ files below the current folder; the build looks again when files come or go.
macro(qx_glob_sources result)
    file(GLOB_RECURSE ${result} CONFIGURE_DEPENDS
        ${CMAKE_CURRENT_SOURCE_DIR}/*.cpp ${CMAKE_CURRENT_SOURCE_DIR}/*.h)
endmacro()

# The folder that users of the current folder's headers search: include/, or the folder itself.
function(qx_include_folder result)
    set(folder ${CMAKE_CURRENT_SOURCE_DIR})
    if(IS_DIRECTORY ${folder}/include)
        set(folder ${folder}/include)
    endif()
    set(${result} ${folder} PARENT_SCOPE)
endfunction()

# qx_library(<name> [SHARED|INTERFACE|HOST_SERVICES] [COMPONENT component] [HEADERS patterns...]
#            [PUBLIC deps...] [PRIVATE deps...])
#
# Builds the current folder, statically unless said otherwise, and gives it the alias Qx::<name>.
# HOST_SERVICES is a shared library that calls what its host defines: whoever links a program with it
# links a library that defines HostApi, too, and the linker names what that misses.
# With a component the library is installed as qxVariants::<component>, with those of its headers that
# fit the patterns (all of them without HEADERS).
function(qx_library name)
    cmake_parse_arguments(PARSE_ARGV 1 arg
        "SHARED;INTERFACE;HOST_SERVICES" "COMPONENT" "HEADERS;PUBLIC;PRIVATE")
    qx_glob_sources(sources)
    qx_include_folder(include_folder)

    if(arg_INTERFACE)
        add_library(${name} INTERFACE ${sources})
        target_include_directories(${name} INTERFACE $<BUILD_INTERFACE:${include_folder}>)
        target_link_libraries(${name} INTERFACE ${arg_PUBLIC})
    else()
        set(kind STATIC)
        if(arg_SHARED OR arg_HOST_SERVICES)
            set(kind SHARED)
        endif()
        add_library(${name} ${kind} ${sources})
        qx_compile_options(${name})
        target_include_directories(${name} PUBLIC $<BUILD_INTERFACE:${include_folder}>)
        target_link_libraries(${name} PUBLIC ${arg_PUBLIC} PRIVATE ${arg_PRIVATE})
        if(arg_HOST_SERVICES)
            # Linkers that drop libraries nobody needs so far would drop a host that stands before it.
            target_link_options(${name} INTERFACE LINKER:--no-as-needed)
        endif()
        # A shared library that misses a definition fails here, not when it is loaded. With clang's
        # sanitizers the program defines what they add.
        if(arg_SHARED AND NOT QX_FUZZ)
            target_link_options(${name} PRIVATE LINKER:--no-undefined)
        endif()
    endif()
    add_library(Qx::${name} ALIAS ${name})
    if(arg_COMPONENT)
        qx_install_library(${name} ${arg_COMPONENT} ${include_folder} "${arg_HEADERS}")
    endif()
endfunction()

# qx_program(<name> LIBS deps...): the current folder as a program.
function(qx_program name)
    cmake_parse_arguments(PARSE_ARGV 1 arg "" "" "LIBS")
    qx_glob_sources(sources)
    add_executable(${name} ${sources})
    qx_compile_options(${name})
    target_include_directories(${name} PRIVATE ${CMAKE_CURRENT_SOURCE_DIR})
    target_link_libraries(${name} PRIVATE ${arg_LIBS})
endfunction()
