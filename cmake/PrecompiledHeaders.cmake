# One set of precompiled headers for each Qt module, which all targets of that width share: made once, they cost a build
# seconds and megabytes, and made for every target minutes and gigabytes.
foreach(module Core Gui Widgets)
    set(name schedules_precompiled_${module})
    add_library(${name} OBJECT ${CMAKE_CURRENT_LIST_DIR}/precompiled.cpp)
    set_target_properties(${name} PROPERTIES AUTOMOC OFF)
    target_link_libraries(${name} PRIVATE Qt6::${module})
    target_precompile_headers(${name} PRIVATE <Qt${module}/Qt${module}>)
endforeach()

# schedules_precompile(NAME modules...): the headers of the widest module that the target may use, so that none comes
# within reach of a layer by way of them that it does not link.
function(schedules_precompile name)
    set(widest Core)
    foreach(module Gui Widgets)
        if("Qt6::${module}" IN_LIST ARGN)
            set(widest ${module})
        endif()
    endforeach()
    target_precompile_headers(${name} REUSE_FROM schedules_precompiled_${widest})
endfunction()
