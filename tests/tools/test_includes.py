"""The include rules hold for each folder."""

import unittest

from trees import TreeTest
from checks import includes


class Includes(TreeTest):
    def test_pass_a_tree_that_keeps_to_them(self):
        self.assert_clean(
            includes,
            {
                "base/Geometry.h": "#include <limits>\n",
                "platform/Event.h": '#include <cstdint>\n#include "base/Geometry.h"\n',
                "Kestrune/Guard.cpp": '#include <chrono>\n#include "platform/Event.h"\n',
                "sim/Session.h": '#include <random>\n#include <map>\n#include "platform/Event.h"\n',
                "desk/Window.cpp": '#include <SDL.h>\n#include <iostream>\n#include "sim/Session.h"\n',
                "mac/Event.cpp": '#include <dlfcn.h>\n#include "platform/Event.h"\n',
                "mac/main.cpp": '#include "Kestrune/Guard.h"\n',
                "Kestrune/Guard.h": "",
                "tests/sim/SessionTest.cpp": '#include <gtest/gtest.h>\n#include "sim/Session.h"\n',
            },
        )

    def test_count_what_they_saw(self):
        include = '#include "base/A.h"\n'
        files = {"base/A.h": "", "sim/B.cpp": include, "sim/C.cpp": include, "elsewhere/D.cpp": ""}
        self.assertEqual(
            self.run_check(includes, files).examined, "3 files, 1 arrows between 2 folders"
        )

    def test_keep_folders_apart(self):
        folders = ("base", "ui", "platform", "Kestrune", "mac", "sim", "replay", "desk")
        headers = {f"{folder}/X.h": "" for folder in folders}
        forbidden = {
            "base": ["ui", "platform", "Kestrune", "mac", "sim", "replay", "desk"],
            "ui": ["platform", "Kestrune", "mac", "sim", "replay", "desk"],
            "platform": ["Kestrune", "mac", "sim", "replay", "desk"],
            "Kestrune": ["mac", "sim", "replay", "desk"],
            "mac": ["Kestrune", "sim", "replay", "desk"],
            "sim": ["Kestrune", "mac", "replay", "desk"],
            "replay": ["mac", "desk"],
            "desk": ["mac"],
        }
        for folder, others in forbidden.items():
            for other in others:
                with self.subTest(folder=folder, other=other):
                    self.write(headers)
                    self.assert_found(
                        includes,
                        {f"{folder}/X.h": f'\n#include "{other}/X.h"\n'},
                        f"{folder}/X.h:2: {folder}/ may not include {other}/",
                    )
                    self.write({f"{folder}/X.h": ""})

    def test_are_rooted_at_the_repository(self):
        self.assert_found(
            includes,
            {
                "sim/Dock.h": "",
                "sim/Dock.cpp": '#include "Dock.h"\n#include "../base/A.h"\n#include "sim/../sim/Dock.h"\n',
            },
            'sim/Dock.cpp:1: "Dock.h" is not rooted',
            'sim/Dock.cpp:2: "../base/A.h" is not rooted',
            'sim/Dock.cpp:3: "sim/../sim/Dock.h" is not rooted',
        )

    def test_name_files_that_exist_with_quotes(self):
        self.assert_found(
            includes,
            {"sim/Dock.cpp": '#include "sim/Duck.h"\n#include <sim/Dock.cpp>\n'},
            'sim/Dock.cpp:1: "sim/Duck.h" does not exist',
            "sim/Dock.cpp:2: <sim/Dock.cpp> is a file of this repository",
        )

    def test_keep_to_the_portable_subset(self):
        for folder in ("base", "ui", "platform", "Kestrune", "mac"):
            for header in ("iostream", "sstream", "format", "regex", "locale", "filesystem", "random"):
                with self.subTest(folder=folder, header=header):
                    self.assert_found(
                        includes,
                        {f"{folder}/A.cpp": f"#include <{header}>\n"},
                        f"{folder}/A.cpp:1: <{header}> is outside the portable subset",
                    )
                    (self.root / folder / "A.cpp").unlink()

    def test_keep_system_headers_out(self):
        for folder in ("base", "ui", "platform", "Kestrune", "sim", "replay"):
            for header in ("unistd.h", "CoreGraphics/CoreGraphics.h", "SDL.h", "cairo.h", "pango/pango.h"):
                with self.subTest(folder=folder, header=header):
                    self.assert_found(
                        includes,
                        {f"{folder}/A.h": f"#include <{header}>\n"},
                        f"{folder}/A.h:1: {folder}/ may include only itself and the C++ standard library",
                    )
                    (self.root / folder / "A.h").unlink()

    def test_keep_threads_out_of_the_application(self):
        self.assert_found(
            includes,
            {"Kestrune/A.cpp": "#include <thread>\n#include <mutex>\n"},
            "Kestrune/A.cpp:1: Kestrune/ runs on one thread",
            "Kestrune/A.cpp:2: Kestrune/ runs on one thread",
        )


class Circles(TreeTest):
    def test_of_folders_are_found_where_they_are_thinnest(self):
        self.assert_found(
            includes,
            {
                "ui/View.h": "",
                "ui/Node.h": '\n#include "ui/layout/Layout.h"\n',
                "ui/layout/Layout.h": '#include "ui/View.h"\n',
                "ui/layout/Stack.cpp": '#include "ui/View.h"\n',
            },
            'ui/Node.h:2: "ui/layout/Layout.h" closes a circle of folders, ui -> ui/layout -> ui;',
        )

    def test_are_found_over_several_folders(self):
        self.assert_found(
            includes,
            {
                "sim/a/A.h": '#include "sim/b/B.h"\n',
                "sim/b/B.h": "",
                "sim/b/B.cpp": '#include "sim/c/C.h"\n',
                "sim/b/D.cpp": '#include "sim/c/C.h"\n',
                "sim/c/C.h": "",
                "sim/c/C.cpp": '#include "sim/a/A.h"\n',
                "sim/c/D.cpp": '#include "sim/a/A.h"\n',
            },
            'sim/a/A.h:1: "sim/b/B.h" closes a circle of folders, sim/a -> sim/b -> sim/c -> sim/a;',
        )

    def test_are_all_found_with_each_include_that_closes_them(self):
        self.assert_found(
            includes,
            {
                "sim/a/A.h": '#include "sim/b/B.h"\n#include "sim/c/C.h"\n',
                "sim/a/B.h": '#include "sim/b/B.h"\n#include "sim/c/C.h"\n',
                "sim/b/B.h": '#include "sim/a/A.h"\n#include "sim/a/B.h"\n',
                "sim/c/C.h": '#include "sim/a/A.h"\n',
            },
            'sim/a/A.h:1: "sim/b/B.h" closes a circle of folders, sim/a -> sim/b -> sim/a;',
            'sim/a/B.h:1: "sim/b/B.h" closes a circle of folders, sim/a -> sim/b -> sim/a;',
            'sim/c/C.h:1: "sim/a/A.h" closes a circle of folders, sim/a -> sim/c -> sim/a;',
        )

    def test_are_none_where_files_include_others_of_their_folder_or_folders_meet_again(self):
        self.assert_clean(
            includes,
            {
                "sim/a/A.h": '#include "sim/a/B.h"\n#include "sim/b/B.h"\n#include "sim/c/C.h"\n',
                "sim/a/B.h": '#include "sim/a/A.h"\n',
                "sim/b/B.h": '#include "base/A.h"\n',
                "sim/c/C.h": '#include "sim/b/B.h"\n#include "base/A.h"\n',
                "base/A.h": "",
            },
        )


class Facilities(TreeTest):
    def test_real_clocks_stay_out_of_the_application_and_the_simulation(self):
        for folder in ("base", "ui", "platform", "Kestrune", "sim", "replay"):
            for code in (
                "std::chrono::steady_clock::now()",
                "std::chrono::system_clock::now()",
                "using Clock = std::chrono::high_resolution_clock;",
                "std::time(nullptr)",
            ):
                with self.subTest(folder=folder, code=code):
                    self.assert_found(
                        includes,
                        {f"{folder}/A.cpp": f"int a;\n{code}\n"},
                        f"{folder}/A.cpp:2: reads a real clock",
                    )
                    (self.root / folder / "A.cpp").unlink()

    def test_real_randomness_stays_out_of_the_simulation(self):
        for folder in ("sim", "replay"):
            with self.subTest(folder=folder):
                self.assert_found(
                    includes,
                    {f"{folder}/A.cpp": "std::random_device device;\nint a = rand();\nint b = operand(1);\n"},
                    f"{folder}/A.cpp:1: draws real randomness",
                    f"{folder}/A.cpp:2: draws real randomness",
                )
                (self.root / folder / "A.cpp").unlink()

    def test_conditional_compilation_stays_behind_the_seam(self):
        self.assert_found(
            includes,
            {
                "platform/A.h": "#pragma once\n#ifdef __APPLE__\n#  if 1\n#endif\n#endif\n",
                "mac/B.cpp": "#if 1\n#endif\n",
            },
            "platform/A.h:2: compiles conditionally",
            "platform/A.h:3: compiles conditionally",
        )

    def test_comments_and_texts_may_name_them(self):
        code = '// Not steady_clock.\nconst char* name = "random_device";\nauto t = wake.time(0);\n'
        self.assert_clean(includes, {"sim/A.cpp": code})


if __name__ == "__main__":
    unittest.main()
