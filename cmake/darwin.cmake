# The toolchain that builds for a Mac on Linux: Debian's clang, lld and LLVM, the headers of LLVM's C++
# library, and the facts of macOS in mac/sdk. One processor for each build, KESTRUNE_ARCH: arm64 or x86_64.
#
# KESTRUNE_LLVM is where LLVM is installed, KESTRUNE_LIBCXX where its C++ library was unpacked.
set(CMAKE_SYSTEM_NAME Darwin)
set(CMAKE_SYSTEM_PROCESSOR "${KESTRUNE_ARCH}")
list(APPEND CMAKE_TRY_COMPILE_PLATFORM_VARIABLES KESTRUNE_ARCH KESTRUNE_LLVM KESTRUNE_LIBCXX)

set(CMAKE_OSX_DEPLOYMENT_TARGET 13.0)
set(CMAKE_OSX_SYSROOT "${CMAKE_CURRENT_LIST_DIR}/../mac/sdk")
set(CMAKE_OSX_ARCHITECTURES "")
set(CMAKE_CXX_COMPILER "${KESTRUNE_LLVM}/bin/clang++")
set(CMAKE_CXX_COMPILER_TARGET "${KESTRUNE_ARCH}-apple-macos${CMAKE_OSX_DEPLOYMENT_TARGET}")
foreach(tool IN ITEMS AR NM RANLIB STRIP)
    string(TOLOWER "llvm-${tool}" program)
    set(CMAKE_${tool} "${KESTRUNE_LLVM}/bin/${program}")
endforeach()
set(CMAKE_INSTALL_NAME_TOOL "${KESTRUNE_LLVM}/bin/llvm-install-name-tool")

# In this order each finds what it includes next: our configuration of the C++ library, the library, the C
# headers, the compiler's own. Nothing else may be found.
file(GLOB clang_headers "${KESTRUNE_LLVM}/lib/clang/*/include")
set(CMAKE_CXX_FLAGS_INIT "-nostdinc -nostdinc++")
foreach(folder IN ITEMS "${CMAKE_OSX_SYSROOT}/libcxx" "${KESTRUNE_LIBCXX}/include/c++/v1"
        "${CMAKE_OSX_SYSROOT}/usr/include" "${clang_headers}")
    string(APPEND CMAKE_CXX_FLAGS_INIT " \"-isystem${folder}\"")
endforeach()
set(CMAKE_EXE_LINKER_FLAGS_INIT "-fuse-ld=lld -Wl,-fatal_warnings -Wl,-adhoc_codesign")
# The same input gives the same program: its notes for debuggers say when each object was made otherwise.
set(CMAKE_CXX_LINKER_LAUNCHER env ZERO_AR_DATE=1)

set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
