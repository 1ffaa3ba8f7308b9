"""What a Mac would refuse, the build for Macs refuses here: tiny programs, each with one mistake."""

import json
import subprocess
import unittest

from trees import REPOSITORY, TreeTest

LLVM = REPOSITORY / "build/llvm"

PROJECT = f"""
cmake_minimum_required(VERSION 3.25)
project(Refused CXX)
set(CMAKE_CXX_STANDARD 20)
add_library(archive STATIC right.cpp)
file(GLOB sources *.cpp)
foreach(source IN LISTS sources)
    cmake_path(GET source STEM name)
    add_executable(${{name}} ${{source}})
    target_compile_options(${{name}} PRIVATE -Wall)
endforeach()
"""

PROGRAMS = {
    "right": """
        #include <string>
        int main() { return static_cast<int>(std::to_string(7U).size()) - 1; }
    """,
    "undefined": """
        extern "C" void nobodyHasThis();
        int main() { nobodyHasThis(); }
    """,
    # In LLVM's library from 15 on, and in macOS from 13.3 on.
    "too_new_a_symbol": """
        namespace std { inline namespace __1 { void __libcpp_verbose_abort(const char*, ...); } }
        int main() { std::__libcpp_verbose_abort("no"); }
    """,
    # In a later macOS 13, as the library's headers say.
    "too_new_a_function": """
        #include <charconv>
        int main() {
            char text[32];
            return std::to_chars(text, text + 32, 1.5).ptr == text ? 1 : 0;
        }
    """,
    "warning": """
        int main() { int unused; }
    """,
}


@unittest.skipUnless(LLVM.is_dir(), "tools/setup app has not been run")
class CrossBuild(TreeTest):
    def setUp(self):
        super().setUp()
        # Where a checkout may be: its name has capital letters and a space.
        self.checkout = self.root / "A Checkout"
        self.checkout.symlink_to(REPOSITORY)
        self.write({"project/CMakeLists.txt": PROJECT})
        self.write({f"project/{name}.cpp": text for name, text in PROGRAMS.items()})

    def configure(self, processor):
        build = self.root / f"build {processor}"
        command = ["cmake", "-G", "Ninja", "-S", self.root / "project", "-B", build]
        presets = json.loads((REPOSITORY / "CMakePresets.json").read_text(encoding="utf-8"))
        (cross,) = (preset for preset in presets["configurePresets"] if preset["name"] == "cross")
        settings = cross["cacheVariables"] | {"CMAKE_BUILD_TYPE": "Release", "KESTRUNE_ARCH": processor}
        command += ["--toolchain", self.checkout / "cmake/darwin.cmake"]
        for name, value in settings.items():
            command.append(f"-D{name}={value.replace('${sourceDir}', str(self.checkout))}")
        subprocess.run(command, check=True, capture_output=True)
        return build

    def assert_refused(self, build, program, reason):
        result = subprocess.run(["ninja", "-C", build, program], capture_output=True, encoding="utf-8")
        self.assertNotEqual(result.returncode, 0, program)
        self.assertRegex(result.stdout, reason)

    def test_refuses_each_mistake_and_takes_what_is_right(self):
        for processor in ("arm64", "x86_64"):
            with self.subTest(processor):
                build = self.configure(processor)
                subprocess.run(["ninja", "-C", build, "right", "archive"], check=True, capture_output=True)
                self.assert_refused(build, "undefined", "undefined symbol: nobodyHasThis")
                self.assert_refused(build, "too_new_a_symbol", "undefined symbol: std::.*verbose_abort")
                message = "'to_chars' is unavailable: introduced in macOS 13"
                self.assert_refused(build, "too_new_a_function", message)
                self.assert_refused(build, "warning", "error: unused variable 'unused'")


if __name__ == "__main__":
    unittest.main()
