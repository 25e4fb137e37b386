# Build helpers shared by every folder.

function(qs_set_warnings target)
    target_compile_options(${target} PRIVATE -Wall -Wextra -Wpedantic)
    if(QS_WARNINGS_AS_ERRORS)
        target_compile_options(${target} PRIVATE -Werror)
    endif()
endfunction()

# qs_add_library(name folder deps...): a static library of every .cpp/.h in src/<folder>.
function(qs_add_library name folder)
    file(GLOB _srcs CONFIGURE_DEPENDS
        ${CMAKE_CURRENT_SOURCE_DIR}/${folder}/*.cpp
        ${CMAKE_CURRENT_SOURCE_DIR}/${folder}/*.h
        ${CMAKE_CURRENT_SOURCE_DIR}/${folder}/*.qrc)
    list(FILTER _srcs INCLUDE REGEX "\\.cpp$")
    if(NOT _srcs)
        # A folder that holds only headers so far.
        add_library(${name} INTERFACE)
        target_include_directories(${name} INTERFACE ${CMAKE_CURRENT_SOURCE_DIR}/${folder})
        target_link_libraries(${name} INTERFACE ${ARGN})
        return()
    endif()
    file(GLOB _all CONFIGURE_DEPENDS
        ${CMAKE_CURRENT_SOURCE_DIR}/${folder}/*.cpp
        ${CMAKE_CURRENT_SOURCE_DIR}/${folder}/*.h
        ${CMAKE_CURRENT_SOURCE_DIR}/${folder}/*.qrc)
    add_library(${name} STATIC ${_all})
    target_include_directories(${name} PUBLIC ${CMAKE_CURRENT_SOURCE_DIR}/${folder})
    target_link_libraries(${name} PUBLIC ${ARGN})
    qs_set_warnings(${name})
endfunction()

# qs_add_gui(name folders...): one object library of the window subsystems under src/<folder>.
# QS_GUI_FOLDERS lists the folders that have sources.
function(qs_add_gui name)
    set(_all "")
    set(_dirs "")
    set(_folders "")
    foreach(_folder ${ARGN})
        file(GLOB _srcs CONFIGURE_DEPENDS ${CMAKE_CURRENT_SOURCE_DIR}/src/${_folder}/*.cpp
                                          ${CMAKE_CURRENT_SOURCE_DIR}/src/${_folder}/*.h
                                          ${CMAKE_CURRENT_SOURCE_DIR}/src/${_folder}/*.qrc)
        if(_srcs)
            list(APPEND _all ${_srcs})
            list(APPEND _dirs ${CMAKE_CURRENT_SOURCE_DIR}/src/${_folder})
            list(APPEND _folders ${_folder})
        endif()
    endforeach()
    add_library(${name} OBJECT ${_all})
    target_include_directories(${name} PUBLIC ${_dirs})
    target_link_libraries(${name} PUBLIC qs_platform qs_dataservice)
    qs_set_warnings(${name})
    set(QS_GUI_FOLDERS ${_folders} PARENT_SCOPE)
endfunction()

# qs_add_test_folder(folder libs...): one GoogleTest executable of tests/<folder>/*.cpp, run
# offscreen under a private home with a time limit and the folder as label.
function(qs_add_test_folder folder)
    file(GLOB _srcs CONFIGURE_DEPENDS ${CMAKE_CURRENT_SOURCE_DIR}/${folder}/*.cpp
                                       ${CMAKE_CURRENT_SOURCE_DIR}/${folder}/*.h)
    if(NOT _srcs)
        return()
    endif()
    set(_exe tests_${folder})
    add_executable(${_exe} ${_srcs})
    target_link_libraries(${_exe} PRIVATE qs_testsupport ${ARGN})
    target_include_directories(${_exe} PRIVATE ${CMAKE_CURRENT_SOURCE_DIR}/${folder})
    qs_set_warnings(${_exe})
    qs_discover_tests(${_exe} ${folder})
endfunction()

# qs_discover_tests(target label): registers every GoogleTest case of the target with the label,
# a time limit and the test environment: offscreen, and under the sanitizers a report halts the
# test.  gtest_discover_tests splits a list given as a property value, so the environment is set
# by a file of its own, read after the discovered cases.
function(qs_discover_tests target label)
    gtest_discover_tests(${target} DISCOVERY_TIMEOUT 60 PROPERTIES LABELS ${label} TIMEOUT 300)
    set(_env QT_QPA_PLATFORM=offscreen)
    if(QS_SANITIZE)
        list(APPEND _env UBSAN_OPTIONS=halt_on_error=1:print_stacktrace=1
                         ASAN_OPTIONS=halt_on_error=1)
    endif()
    set(_file ${CMAKE_CURRENT_BINARY_DIR}/${target}_environment.cmake)
    file(WRITE ${_file} "if(${target}_TESTS)\n"
                        "  set_tests_properties(\${${target}_TESTS} PROPERTIES ENVIRONMENT \"${_env}\")\n"
                        "endif()\n")
    set_property(DIRECTORY APPEND PROPERTY TEST_INCLUDE_FILES ${_file})
endfunction()
