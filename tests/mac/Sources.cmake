# What a Mac's own world of the contract tests and the stories consists of, for whoever builds it: a Mac, and
# the tests of it elsewhere.
set(files
    tests/gnustep/world/ShippedBundle.cpp
    tests/mac/CrashReport.cpp
    tests/mac/EventLoop.cpp
    tests/mac/Pictures.cpp
    tests/mac/Preparation.cpp
    tests/mac/SharedWorld.cpp
    tests/mac/Skips.cpp
    tests/mac/StatusItems.cpp
    tests/mac/Unarranged.cpp
    tests/mac/WindowPicture.cpp
    tests/mac/World.cpp)
list(TRANSFORM files PREPEND "${PROJECT_SOURCE_DIR}/" OUTPUT_VARIABLE KESTRUNE_WORLD_ON_A_MAC)

# And the program that draws the windows.
set(files tests/mac/EventLoop.cpp tests/mac/PicturesProgram.cpp tests/mac/WindowPicture.cpp)
list(TRANSFORM files PREPEND "${PROJECT_SOURCE_DIR}/" OUTPUT_VARIABLE KESTRUNE_PICTURES_ON_A_MAC)

# kestrune_own_bundle(PROGRAM TARGET RESOURCES): writes PROGRAM.plist, the Info.plist of the bundle that a
# test program has on a Mac, for the TARGET of its sources. It is that among the RESOURCES, but for its name,
# and with an identifier of its own: what the tests store must not become the user's settings of the
# application.
function(kestrune_own_bundle program target resources)
    set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS "${resources}/Info.plist")
    file(READ "${resources}/Info.plist" information)
    string(REPLACE "<string>org.kestrune.Kestrune</string>" "<string>org.kestrune.Contract</string>"
        information "${information}")
    string(REPLACE "<string>Kestrune</string>" "<string>${program}</string>" information "${information}")
    file(WRITE "${CMAKE_CURRENT_BINARY_DIR}/${program}.plist" "${information}")
    target_compile_definitions(${target} PRIVATE
        "KESTRUNE_INFORMATION=\"${CMAKE_CURRENT_BINARY_DIR}/${program}.plist\""
        "KESTRUNE_RESOURCES=\"${resources}\"")
endfunction()
