# Compiler settings shared by every target.
option(KESTRUNE_SANITIZE "Build with AddressSanitizer and UndefinedBehaviorSanitizer" OFF)
option(KESTRUNE_COVERAGE "Build with gcov instrumentation" OFF)
option(KESTRUNE_JOIN "Compile files several at a time, but for those of the application" OFF)
option(KESTRUNE_MUTANTS
    "Build deliberate mistakes, each of which must be found, and file by file what they are made in" OFF)

add_library(kestrune_options INTERFACE)
target_compile_features(kestrune_options INTERFACE cxx_std_20)
target_compile_options(kestrune_options INTERFACE
    -Wall -Wextra -Wpedantic -Wconversion -Wsign-conversion -Wshadow -Wnon-virtual-dtor
    -Wold-style-cast -Wcast-qual -Woverloaded-virtual -Wdouble-promotion -Wformat=2 -Wundef
    -Wimplicit-fallthrough
    # g++ 12 sees overlapping copies in plain string concatenation (its bug 105651).
    $<$<CXX_COMPILER_ID:GNU>:-Wno-restrict>
    # libstdc++ 12 calls a function of its own that it declares deprecated, and newer clangs tell.
    $<$<AND:$<CXX_COMPILER_ID:Clang>,$<NOT:$<BOOL:${APPLE}>>>:-Wno-deprecated-declarations>
    # A fused multiply-add would round once where the platform rounds twice.
    -ffp-contract=off)

# Crash reports of a Mac name addresses. The lines behind them are taken out of the program and kept; no path
# of the machine that built it is in either.
if(APPLE)
    target_compile_options(kestrune_options INTERFACE
        $<$<CONFIG:Release>:-gline-tables-only> "-ffile-prefix-map=${PROJECT_SOURCE_DIR}/=")
    target_link_options(kestrune_options INTERFACE "LINKER:-oso_prefix,${PROJECT_BINARY_DIR}/")
endif()

if(KESTRUNE_SANITIZE)
    target_compile_options(kestrune_options INTERFACE
        -fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
    target_link_options(kestrune_options INTERFACE -fsanitize=address,undefined)
    # With the sanitizers' own code in between, g++ 12 takes members of moved variants for uninitialized.
    target_compile_options(kestrune_options INTERFACE
        $<$<CXX_COMPILER_ID:GNU>:-Wno-maybe-uninitialized>)
endif()

if(KESTRUNE_COVERAGE)
    target_compile_options(kestrune_options INTERFACE --coverage -O0 -fno-inline -fprofile-update=single)
    target_compile_definitions(kestrune_options INTERFACE KESTRUNE_COVERAGE)
    target_link_options(kestrune_options INTERFACE --coverage)
endif()

# For a folder whose files take most of their time for headers.
macro(kestrune_join)
    if(KESTRUNE_JOIN)
        set(CMAKE_UNITY_BUILD ON)
        set(CMAKE_UNITY_BUILD_BATCH_SIZE 12)
        # A test of a file that is included derives from what only that file knows.
        add_compile_options($<$<CXX_COMPILER_ID:GNU>:-Wno-subobject-linkage>)
    endif()
endmacro()

# The same for a folder of which a file may be replaced by one with a mistake.
macro(kestrune_join_unless_mutated)
    if(NOT KESTRUNE_MUTANTS)
        kestrune_join()
    endif()
endmacro()
