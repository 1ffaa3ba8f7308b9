"""Tests that sleep are found."""

import unittest

from trees import TreeTest
from checks import sleeping


class Sleeping(TreeTest):
    def test_is_found_in_every_spelling(self):
        for code in (
            "std::this_thread::sleep_for(1s);",
            "std::this_thread::sleep_until(then);",
            "usleep(1);",
            "::sleep(1);",
            "sleep(1);",
            "nanosleep(&a, &b);",
            "SDL_Delay(10);",
        ):
            with self.subTest(code=code):
                files = {"tests/sim/ATest.cpp": f"\n{code}\n"}
                self.assert_found(sleeping, files, "tests/sim/ATest.cpp:2: a test does not sleep")

    def test_is_not_found_in_comments_names_and_other_folders(self):
        self.assert_clean(
            sleeping,
            {
                "tests/sim/ATest.cpp": "// No sleep_for here.\nsession.sleep(300);\noversleep(1);\n",
                "desk/Window.cpp": "SDL_Delay(10);\n",
            },
        )


if __name__ == "__main__":
    unittest.main()
