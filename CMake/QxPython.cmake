# Gives the target Qx::Python: an embeddable Python and the Boost.Python built for it.
#
# Python 3 of the system, or, with QX_PYTHON27_ROOT, the Python 2.7 that Tools/install-python27 put
# there.

set(QX_PYTHON27_ROOT "" CACHE PATH "A Python 2.7 with Boost.Python to use instead of Python 3")

add_library(Qx::Python INTERFACE IMPORTED)
# Boost.Python itself includes what other parts of Boost tell its users to avoid.
target_compile_definitions(Qx::Python INTERFACE
    BOOST_BIND_GLOBAL_PLACEHOLDERS BOOST_ALLOW_DEPRECATED_HEADERS)
if(QX_PYTHON27_ROOT)
    foreach(library python2.7 boost_python27)
        find_library(QX_${library}_LIBRARY ${library} PATHS ${QX_PYTHON27_ROOT}/lib
            REQUIRED NO_DEFAULT_PATH)
        target_link_libraries(Qx::Python INTERFACE ${QX_${library}_LIBRARY})
    endforeach()
    target_include_directories(Qx::Python SYSTEM INTERFACE ${QX_PYTHON27_ROOT}/include/python2.7)
    # It lies inside the project, where CMake does not see that it stays.
    list(APPEND CMAKE_INSTALL_RPATH ${QX_PYTHON27_ROOT}/lib)
    target_compile_definitions(Qx::Python INTERFACE QX_PYTHON_HOME="${QX_PYTHON27_ROOT}")
else()
    # The system's own is the one that its Boost.Python is built for; another may come first in PATH.
    set(Python3_ROOT_DIR /usr CACHE PATH "Where the Python 3 of the system's Boost.Python is")
    find_package(Python3 3.9 REQUIRED COMPONENTS Interpreter Development.Embed)
    find_package(Boost 1.74 REQUIRED
        COMPONENTS python${Python3_VERSION_MAJOR}${Python3_VERSION_MINOR})
    target_link_libraries(Qx::Python INTERFACE Python3::Python
        Boost::python${Python3_VERSION_MAJOR}${Python3_VERSION_MINOR})
endif()

# qx_python_classes(sources...): marks the current folder's sources that define classes for scripts.
# Boost.Python asks such an object for its type once more after its destructor; where the sanitizer
# watches the types of objects, that would be a crash.
function(qx_python_classes)
    if(CMAKE_CXX_FLAGS MATCHES "-fsanitize=")
        set_source_files_properties(${ARGN} PROPERTIES COMPILE_OPTIONS -fno-sanitize=vptr)
    endif()
endfunction()
