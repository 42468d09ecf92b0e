# One target for each folder of the house. A folder's CMakeLists.txt is one line, ostrelum_folder(NAME),
# and what the folder needs beyond the standard library.

add_library(ostrelum_rules INTERFACE)
target_include_directories(ostrelum_rules INTERFACE ${CMAKE_SOURCE_DIR})
target_compile_options(ostrelum_rules INTERFACE
    -Wall -Wextra -Wpedantic $<$<BOOL:${OSTRELUM_STRICT}>:-Werror> -Wshadow -Wconversion -Wsign-conversion -Wnon-virtual-dtor
    -Woverloaded-virtual -Wold-style-cast -Wcast-qual -Wformat=2 -Wmissing-declarations
    -Wno-missing-field-initializers
    # GCC 12 finds overlaps in "literal" + string where there are none (GCC bug 105651).
    $<$<CXX_COMPILER_ID:GNU>:-Wno-restrict>)
# A program is the same wherever it was built and whenever.
target_compile_options(ostrelum_rules INTERFACE $<$<CONFIG:Release>:-ffile-prefix-map=${CMAKE_SOURCE_DIR}/=>)
if(NOT WIN32)
    # What nobody calls, of the C++ library above all, is left out of a program: there is less to be read at its start.
    target_compile_options(ostrelum_rules INTERFACE
        $<$<CONFIG:Release>:-ffunction-sections$<SEMICOLON>-fdata-sections>)
    target_link_options(ostrelum_rules INTERFACE $<$<CONFIG:Release>:LINKER:--gc-sections>)
endif()
if(MINGW)
    # No library of the compiler's has to lie beside a program.
    target_link_options(ostrelum_rules INTERFACE -static LINKER:--no-insert-timestamp)
endif()
if(OSTRELUM_SANITIZE)
    target_compile_options(ostrelum_rules INTERFACE
        -fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
    target_link_options(ostrelum_rules INTERFACE -fsanitize=address,undefined)
endif()

if(OSTRELUM_WHOLE AND NOT CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
    set(OSTRELUM_WHOLE OFF)
endif()
if(OSTRELUM_WHOLE)
    # Each object twice, ready to be linked by itself and as part of a whole: compiling it again would take minutes.
    # What is part of no program, such as the tests, stands beside.
    target_compile_options(ostrelum_rules INTERFACE
        $<$<NOT:$<BOOL:$<TARGET_PROPERTY:OSTRELUM_BESIDE>>>:-flto$<SEMICOLON>-ffat-lto-objects>)
    target_link_options(ostrelum_rules INTERFACE $<IF:$<BOOL:$<TARGET_PROPERTY:OSTRELUM_AS_WHOLE>>,-flto=auto,-fno-lto>)
    add_custom_target(odr)
endif()

# ostrelum_link_whole(PROGRAM...): each program once more, linked as a whole where that is asked for.
function(ostrelum_link_whole)
    if(NOT OSTRELUM_WHOLE)
        return()
    endif()
    foreach(program ${ARGN})
        get_target_property(sources ${program} SOURCES)
        get_target_property(libraries ${program} LINK_LIBRARIES)
        add_executable(whole-${program} EXCLUDE_FROM_ALL ${sources})
        target_link_libraries(whole-${program} PRIVATE ${libraries})
        target_link_options(whole-${program} PRIVATE -Werror=odr -Werror=lto-type-mismatch)
        set_target_properties(whole-${program} PROPERTIES OSTRELUM_AS_WHOLE ON)
        add_dependencies(odr whole-${program})
    endforeach()
endfunction()

include(Hardening)
ostrelum_harden(ostrelum_rules)

# What most sources spend their time of compiling with, read once.
if(OSTRELUM_PRECOMPILE)
    file(CONFIGURE OUTPUT ${CMAKE_BINARY_DIR}/precompiled.cpp CONTENT "")
    add_library(ostrelum_precompiled OBJECT ${CMAKE_BINARY_DIR}/precompiled.cpp)
    target_link_libraries(ostrelum_precompiled PRIVATE ostrelum_rules)
    target_precompile_headers(ostrelum_precompiled PRIVATE <algorithm> <array> <charconv> <cstdint> <functional> <map>
        <memory> <optional> <set> <span> <sstream> <string> <string_view> <utility> <variant> <vector>)
endif()

# ostrelum_folder(NAME): every source of the current folder and its rooms, as the target ostrelum_NAME. Headers are
# checked to compile alone, and for Windows behind the system's own.
function(ostrelum_folder name)
    file(GLOB_RECURSE sources CONFIGURE_DEPENDS ${CMAKE_CURRENT_SOURCE_DIR}/*.cpp)
    file(GLOB_RECURSE headers CONFIGURE_DEPENDS ${CMAKE_CURRENT_SOURCE_DIR}/*.h)
    set(target ostrelum_${name})
    if(sources)
        add_library(${target} STATIC ${sources})
        target_link_libraries(${target} PUBLIC ostrelum_rules)
        if(OSTRELUM_PRECOMPILE AND NOT name STREQUAL "qt")
            target_precompile_headers(${target} REUSE_FROM ostrelum_precompiled)
        endif()
    else()
        add_library(${target} INTERFACE)
        target_link_libraries(${target} INTERFACE ostrelum_rules)
    endif()
    ostrelum_check_headers(${target} ${headers})
endfunction()

function(ostrelum_check_headers target)
    if(WIN32)
        ostrelum_headers_behind_windows(${target} ${ARGN})
    else()
        ostrelum_headers_alone(${target} ${ARGN})
    endif()
endfunction()

# One source for each library that includes all its headers behind <windows.h>, whose macros take many short names.
function(ostrelum_headers_behind_windows target)
    set(includes "#include <windows.h>\n\n")
    foreach(header ${ARGN})
        file(RELATIVE_PATH path ${CMAKE_SOURCE_DIR} ${header})
        string(APPEND includes "#include \"${path}\"\n")
    endforeach()
    set(source ${CMAKE_BINARY_DIR}/headers/${target}.cpp)
    file(GENERATE OUTPUT ${source} CONTENT "${includes}")
    add_library(${target}_headers OBJECT ${source})
    target_link_libraries(${target}_headers PRIVATE ${target})
endfunction()

# One source that includes nothing but the header, for each header that no source of the same name includes before
# anything else.
function(ostrelum_headers_alone target)
    set(alone)
    foreach(header ${ARGN})
        file(RELATIVE_PATH path ${CMAKE_SOURCE_DIR} ${header})
        string(REGEX REPLACE "\\.h$" ".cpp" own ${header})
        if(EXISTS ${own})
            file(STRINGS ${own} first REGEX "^#include" LIMIT_COUNT 1)
            if(first STREQUAL "#include \"${path}\"")
                continue()
            endif()
        endif()
        string(REPLACE "/" "_" stem ${path})
        set(source ${CMAKE_BINARY_DIR}/headers/${stem}.cpp)
        if(NOT EXISTS ${source})
            file(WRITE ${source} "#include \"${path}\"\n")
        endif()
        list(APPEND alone ${source})
    endforeach()
    # Once is enough: the sanitizers find nothing more in them.
    if(alone AND OSTRELUM_TESTS AND NOT OSTRELUM_SANITIZE)
        add_library(${target}_headers OBJECT ${alone})
        target_link_libraries(${target}_headers PRIVATE ${target})
        set_target_properties(${target}_headers PROPERTIES OSTRELUM_BESIDE ON)
    endif()
endfunction()
