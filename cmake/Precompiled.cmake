# Headers of libraries that are compiled once for many files: by clang++, which makes the same objects with
# them, and by g++ where nothing is optimised, as with optimisation g++ 12 warns of what is right in them.
# Whoever builds with ccache goes without, as it keeps nothing that is compiled with them.
option(KESTRUNE_PRECOMPILE "Compile the headers of libraries once for many files" OFF)

set(KESTRUNE_LIBRARY_HEADERS
    <algorithm> <array> <functional> <map> <memory> <optional> <span> <string> <string_view> <utility>
    <variant> <vector>)

# kestrune_precompile(TARGET KIND HEADER...): targets of a kind are compiled alike.
function(kestrune_precompile target kind)
    if(NOT KESTRUNE_PRECOMPILE OR CMAKE_CXX_COMPILER_LAUNCHER MATCHES "ccache")
        return()
    endif()
    get_property(first GLOBAL PROPERTY KESTRUNE_PRECOMPILED_${kind})
    if(first)
        target_precompile_headers(${target} REUSE_FROM ${first})
    else()
        target_precompile_headers(${target} PRIVATE ${ARGN})
        set_property(GLOBAL PROPERTY KESTRUNE_PRECOMPILED_${kind} ${target})
    endif()
endfunction()
