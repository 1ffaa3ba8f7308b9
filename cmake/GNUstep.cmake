# GNUstep, an independent AppKit and Foundation on GCC's Objective-C runtime: the target GNUstep::gui, and
# GNUstep_FOUND. Its own headers are not needed; the runtime's come with GCC.
find_library(GNUSTEP_GUI_LIBRARY gnustep-gui)
find_library(GNUSTEP_BASE_LIBRARY gnustep-base)
mark_as_advanced(GNUSTEP_GUI_LIBRARY GNUSTEP_BASE_LIBRARY)

# Of the runtime gcc knows where it is, or who compiles for another processor with gcc's libraries.
if(CMAKE_CROSSCOMPILING)
    set(gcc "${CMAKE_CXX_COMPILER}" --target=${CMAKE_CXX_COMPILER_TARGET} "--sysroot=${CMAKE_SYSROOT}")
else()
    find_program(GNUSTEP_GCC gcc)
    mark_as_advanced(GNUSTEP_GCC)
    set(gcc "${GNUSTEP_GCC}")
endif()
if(gcc)
    execute_process(COMMAND ${gcc} -print-file-name=libobjc.so
        OUTPUT_VARIABLE objc_library OUTPUT_STRIP_TRAILING_WHITESPACE)
    cmake_path(GET objc_library PARENT_PATH gcc_folder)
    set(gcc_headers "${gcc_folder}/include")
endif()

set(GNUstep_FOUND FALSE)
if(GNUSTEP_GUI_LIBRARY AND GNUSTEP_BASE_LIBRARY AND EXISTS "${gcc_headers}/objc/runtime.h"
        AND EXISTS "${objc_library}")
    set(GNUstep_FOUND TRUE)
    add_library(GNUstep::gui INTERFACE IMPORTED GLOBAL)
    # C++ names no class as a symbol, so nothing seems to need the libraries; and they look for symbols of the
    # program, as those of blocks.
    target_link_options(GNUstep::gui INTERFACE -Wl,--no-as-needed -rdynamic)
    target_link_libraries(GNUstep::gui INTERFACE
        "${GNUSTEP_GUI_LIBRARY}" "${GNUSTEP_BASE_LIBRARY}" "${objc_library}")
    # That gcc's g++ looks there anyway. Every other compiler has headers of its own for everything else.
    target_compile_options(GNUstep::gui INTERFACE "-idirafter${gcc_headers}")
endif()
