# What every target of the project shares: language, warnings, where programs land, and how a layer is declared.

set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)
set(CMAKE_AUTOMOC ON)
# The meta-object compiler of Qt 6.4 cannot read the standard library's <concepts>; the guard macro keeps it out.
set(CMAKE_AUTOMOC_MOC_OPTIONS -D_GLIBCXX_CONCEPTS)
set(CMAKE_RUNTIME_OUTPUT_DIRECTORY ${PROJECT_BINARY_DIR}/bin)
set(CMAKE_LIBRARY_OUTPUT_DIRECTORY ${PROJECT_BINARY_DIR}/bin)
set(CMAKE_BUILD_RPATH_USE_ORIGIN ON)

add_compile_options(-Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wno-sign-conversion -Wno-missing-field-initializers -Wnon-virtual-dtor)
add_compile_definitions(QT_NO_KEYWORDS QT_NO_CAST_TO_ASCII QT_NO_FOREACH)

# Precompiled headers need the same flags everywhere, and libraries of some layers bring this one.
add_compile_options(-pthread)

# Within another project its launcher is that project's business.
if(PROJECT_IS_TOP_LEVEL)
    find_program(CCACHE ccache)
    if(CCACHE AND NOT CMAKE_CXX_COMPILER_LAUNCHER)
        set(CMAKE_CXX_COMPILER_LAUNCHER ${CCACHE})
    endif()
endif()

# schedules_layer(NAME ROOMS folders... LINK libraries...): all sources of the current folder and of its rooms, as objects
# that the component, the tests and the benchmarks share, so that each file is compiled once. A folder is a layer, so its
# files need no second list.
function(schedules_layer name)
    cmake_parse_arguments(LAYER "" "" "ROOMS;LINK" ${ARGN})
    set(patterns *.cpp *.h)
    foreach(room IN LISTS LAYER_ROOMS)
        list(APPEND patterns ${room}/*.cpp ${room}/*.h)
    endforeach()
    file(GLOB sources CONFIGURE_DEPENDS ${patterns})
    add_library(${name} OBJECT ${sources})
    target_include_directories(${name} PUBLIC ${PROJECT_SOURCE_DIR}/src)
    target_link_libraries(${name} PUBLIC ${LAYER_LINK})
    schedules_precompile(${name} ${LAYER_LINK})
endfunction()
