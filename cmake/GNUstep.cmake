# GNUstep, an independent AppKit and Foundation on GCC's Objective-C runtime: the target GNUstep::gui, and
# GNUstep_FOUND. Its own headers are not needed; the runtime's come with GCC.
find_library(GNUSTEP_GUI_LIBRARY gnustep-gui)
find_library(GNUSTEP_BASE_LIBRARY gnustep-base)
find_program(GNUSTEP_GCC gcc)
mark_as_advanced(GNUSTEP_GUI_LIBRARY GNUSTEP_BASE_LIBRARY GNUSTEP_GCC)

if(GNUSTEP_GCC)
    execute_process(COMMAND "${GNUSTEP_GCC}" -print-file-name=include
        OUTPUT_VARIABLE gcc_headers OUTPUT_STRIP_TRAILING_WHITESPACE)
    execute_process(COMMAND "${GNUSTEP_GCC}" -print-file-name=libobjc.so
        OUTPUT_VARIABLE objc_library OUTPUT_STRIP_TRAILING_WHITESPACE)
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
    # g++ looks there anyway; clang++ has headers of its own for everything else.
    target_compile_options(GNUstep::gui INTERFACE $<$<CXX_COMPILER_ID:Clang>:-idirafter${gcc_headers}>)
endif()
