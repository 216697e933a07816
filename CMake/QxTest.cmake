# qx_test: one GoogleTest program per folder of Tests.

include(GoogleTest)
find_package(Python3 REQUIRED COMPONENTS Interpreter)

# Every test runs, and is listed, without a display and with one locale. The rest of the environment,
# QX_SCENES (a folder of real scenes) above all, reaches the test as it is when CTest runs. What the
# programs remember of their user stays in the build, and that of tests with a folder in that one.
set(QX_TEST_ENVIRONMENT env QT_QPA_PLATFORM=offscreen LC_ALL=C.UTF-8 UBSAN_OPTIONS=print_stacktrace=1
    XDG_DATA_HOME=${PROJECT_BINARY_DIR}/test-data-home
    XDG_CACHE_HOME=${PROJECT_BINARY_DIR}/test-cache-home
    XDG_STATE_HOME=${PROJECT_BINARY_DIR}/test-state-home
    "LSAN_OPTIONS=suppressions=${PROJECT_SOURCE_DIR}/Tools/leaks-of-others.txt:print_suppressions=0")

set(QX_TEST_PATHS ${PROJECT_BINARY_DIR}/test-paths)
configure_file(${PROJECT_SOURCE_DIR}/CMake/qxTestPaths.h.in ${QX_TEST_PATHS}/qxTestPaths.h @ONLY)

# Builds the tests labelled Scripting: those that depend on which Python is embedded.
add_custom_target(qxScriptingTests)

# qx_test(<name> [LIBS deps...] [LABEL label])
#
# Builds the current folder as the test program <name> and gives CTest each of its tests. `main` is the
# one of qxTestSupport where that is linked, else GoogleTest's own.
function(qx_test name)
    cmake_parse_arguments(PARSE_ARGV 1 arg "" "LABEL" "LIBS")
    qx_glob_sources(sources)
    add_executable(${name} ${sources})
    qx_compile_options(${name})
    target_include_directories(${name} PRIVATE ${CMAKE_CURRENT_SOURCE_DIR} ${QX_TEST_PATHS})
    target_link_libraries(${name} PRIVATE ${arg_LIBS} GTest::gtest GTest::gtest_main)
    set_target_properties(${name} PROPERTIES
        RUNTIME_OUTPUT_DIRECTORY ${PROJECT_BINARY_DIR}/tests
        CROSSCOMPILING_EMULATOR "${QX_TEST_ENVIRONMENT}")
    if(arg_LABEL STREQUAL Scripting)
        add_dependencies(qxScriptingTests ${name})
    endif()
    # Listed when CTest starts: a test program that cannot start does not break the build.
    # One label only: a list would not arrive as one.
    if(NOT arg_LABEL)
        set(arg_LABEL ${name})
    endif()
    gtest_discover_tests(${name} DISCOVERY_MODE PRE_TEST DISCOVERY_TIMEOUT 60
        PROPERTIES TIMEOUT 300 LABELS ${arg_LABEL})
endfunction()
