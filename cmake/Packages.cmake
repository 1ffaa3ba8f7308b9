# kestrune_package(NAME MODULE...): what pkg-config says of libraries, as the target PkgConfig::NAME.
#
# For another system than this one the folders of headers are below that system's root. pkg-config does not
# put them there, as it takes no root with a space in its name; where libraries are CMake finds out itself.
find_package(PkgConfig REQUIRED)
function(kestrune_package name)
    pkg_check_modules(${name} REQUIRED IMPORTED_TARGET GLOBAL ${ARGN})
    get_target_property(folders PkgConfig::${name} INTERFACE_INCLUDE_DIRECTORIES)
    if(CMAKE_SYSROOT AND folders)
        list(TRANSFORM folders PREPEND "${CMAKE_SYSROOT}")
        set_target_properties(PkgConfig::${name} PROPERTIES INTERFACE_INCLUDE_DIRECTORIES "${folders}")
    endif()
endfunction()
