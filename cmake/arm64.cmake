# The toolchain that builds for Linux on arm64 elsewhere, and runs what it built in an emulator: Debian's
# clang and lld, and its packages for that processor.
#
# KESTRUNE_LLVM is where LLVM is installed, KESTRUNE_SYSROOT where tools/setup put the packages and the
# emulator.
set(CMAKE_SYSTEM_NAME Linux)
set(CMAKE_SYSTEM_PROCESSOR aarch64)
list(APPEND CMAKE_TRY_COMPILE_PLATFORM_VARIABLES KESTRUNE_LLVM KESTRUNE_SYSROOT)

set(CMAKE_SYSROOT "${KESTRUNE_SYSROOT}/root")
foreach(language IN ITEMS CXX ASM)
    set(CMAKE_${language}_COMPILER "${KESTRUNE_LLVM}/bin/clang++")
    set(CMAKE_${language}_COMPILER_TARGET aarch64-linux-gnu)
endforeach()
foreach(kind IN ITEMS EXE SHARED MODULE)
    set(CMAKE_${kind}_LINKER_FLAGS_INIT -fuse-ld=lld)
endforeach()
# Libraries of libraries are not looked for before they are loaded.
string(APPEND CMAKE_EXE_LINKER_FLAGS_INIT " -Wl,--allow-shlib-undefined")
set(CMAKE_CROSSCOMPILING_EMULATOR "${KESTRUNE_SYSROOT}/qemu" -L "${CMAKE_SYSROOT}")

set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
foreach(kind IN ITEMS LIBRARY INCLUDE PACKAGE)
    set(CMAKE_FIND_ROOT_PATH_MODE_${kind} ONLY)
endforeach()
# Where the libraries are, cmake/Packages.cmake sees to.
set(ENV{PKG_CONFIG_LIBDIR}
    "${CMAKE_SYSROOT}/usr/lib/aarch64-linux-gnu/pkgconfig:${CMAKE_SYSROOT}/usr/share/pkgconfig")
