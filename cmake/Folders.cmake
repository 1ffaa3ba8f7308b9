# Every source folder is a target of its own and sees only the folders it links: its include root holds one
# link to the folder, so `#include "sim/session/Session.h"` does not compile in a target without sim.
function(kestrune_include_root target scope folder)
    set(root "${PROJECT_BINARY_DIR}/roots/${folder}")
    file(MAKE_DIRECTORY "${root}")
    if(NOT EXISTS "${root}/${folder}")
        file(CREATE_LINK "${PROJECT_SOURCE_DIR}/${folder}" "${root}/${folder}" SYMBOLIC)
    endif()
    target_include_directories(${target} ${scope} "${root}")
    if(KESTRUNE_COVERAGE)
        # gcov reports a header under its own path instead of once more under that of the link.
        target_compile_options(${target} ${scope} "-ffile-prefix-map=${root}/=${PROJECT_SOURCE_DIR}/")
    endif()
endfunction()

# kestrune_folder(NAME SOURCES ... LINKS ...): the static library kestrune_NAME made of the folder NAME.
function(kestrune_folder name)
    cmake_parse_arguments(FOLDER "" "" "SOURCES;LINKS" ${ARGN})
    string(TOLOWER "kestrune_${name}" target)
    add_library(${target} STATIC ${FOLDER_SOURCES})
    # For the program that it becomes part of, and for nobody beside it.
    set_target_properties(${target} PROPERTIES CXX_VISIBILITY_PRESET hidden VISIBILITY_INLINES_HIDDEN ON)
    kestrune_include_root(${target} PUBLIC ${name})
    target_link_libraries(${target} PUBLIC kestrune_options ${FOLDER_LINKS})
    if(KESTRUNE_MUTANTS OR APPLE)
        kestrune_precompile(${target} folder ${KESTRUNE_LIBRARY_HEADERS})
    endif()
endfunction()
