"""A picture of a document that is not what the desk draws is found."""

import subprocess
import unittest

from trees import TreeTest
from checks import pictures
from checks.tree import Tree

# Each picture has its name for its contents.
DESK = """#!/usr/bin/env bash
folder=$2
[[ ${*: -1} != --dark ]] && look=light || look=dark
for scene in "${@:3}"; do
    [[ $scene != --dark ]] || continue
    [[ $scene != */nothing ]] || { echo "no scene is called $scene" >&2; exit 2; }
    mkdir -p "$(dirname "$folder/$scene")"
    echo "$scene, $look" > "$folder/$scene-$look.png"
done
"""
DOCUMENT = """# A document

![Held](images/tour/held-light.png) and ![dark](images/settings-dark.png)
"""
CONTENTS = 'echo "$scene, $look"'
FILES = {
    "docs/PAGE.md": DOCUMENT,
    "docs/images/tour/held-light.png": "tour/held, light\n",
    "docs/images/settings-dark.png": "settings, dark\n",
}


class Pictures(TreeTest):
    def check(self, files, system=pictures.SYSTEM, desk=DESK):
        self.write({"build/gcc/desk/kestrune-desk": desk, **files})
        (self.root / "build/gcc/desk/kestrune-desk").chmod(0o755)
        return pictures.run(Tree(self.root, [self.root / "build/check", self.root / "build/gcc"]), system)

    def assert_found(self, files, *expected, system=pictures.SYSTEM):
        self.assertEqual([str(finding) for finding in self.check(files, system).findings], list(expected))

    def test_are_what_the_desk_draws(self):
        self.assertEqual(self.check(FILES).examined, "2 pictures of the documents")
        self.assert_found(FILES)

    def test_are_found_when_they_are_not(self):
        other = {"docs/images/settings-dark.png": "as it was once\n"}
        message = "docs/images/settings-dark.png:1: is not what the desk draws; run: make pictures"
        self.assert_found(FILES | other, message)

    def test_may_be_rounded_differently(self):
        picture = "docs/images/tour/held-light.png"
        files = {"README.md": f"![Held]({picture})\n", picture: ""}
        for drawn, is_found in (
            ("4x4 xc:#808080", False),
            ("4x4 xc:#818080", False),
            ("4x4 xc:#888080", True),
            ("5x4 xc:#808080", True),
        ):
            with self.subTest(drawn):
                self.write(files)
                subprocess.run(
                    ["convert", "-size", "4x4", "xc:#808080", str(self.root / picture)], check=True
                )
                desk = DESK.replace(f"{CONTENTS} >", f"convert -size {drawn}")
                findings = self.check({}, desk=desk).findings
                self.assertEqual(len(findings), is_found, findings)

    def test_are_found_when_they_are_not_there(self):
        files = {"README.md": "![Menu](docs/images/tour/menu-light.png)\n"}
        message = "docs/images/tour/menu-light.png:1: is not what the desk draws; run: make pictures"
        self.assert_found(FILES | files, message)

    def test_are_found_when_nobody_shows_them(self):
        extra = {"docs/images/wizard-light.png": "wizard, light\n"}
        self.assert_found(FILES | extra, "docs/images/wizard-light.png:1: no document shows it; remove it")

    def test_have_names_that_the_desk_knows(self):
        files = {"README.md": "\n![A desk](docs/images/desk.png)\n", "docs/images/desk.png": ""}
        message = "has no name like docs/images/tour/held-light.png; show another"
        self.assert_found(FILES | files, f"README.md:2: docs/images/desk.png {message}")

    def test_are_scenes(self):
        files = {"README.md": "![Nothing](docs/images/tour/nothing-light.png)\n"}
        self.assert_found(FILES | files, ".:1: no scene is called tour/nothing")

    def test_are_not_compared_on_another_system(self):
        other = FILES | {"docs/images/settings-dark.png": "as another system draws it\n"}
        result = self.check(other, "Debian 13")
        self.assertEqual(result.examined, "2 pictures, not compared as this is no Debian 12")
        self.assertEqual(result.findings, [])

    def test_need_a_desk(self):
        self.write(FILES)
        [finding] = pictures.run(Tree(self.root), pictures.SYSTEM).findings
        self.assertIn("no build has desk/kestrune-desk", str(finding))


class System(TreeTest):
    def test_is_what_it_says_of_itself(self):
        release = self.root / "os-release"
        self.assertEqual(pictures.system_name(release), "")
        self.write({"os-release": 'PRETTY_NAME="Debian"\nVERSION_ID="12"\nID=debian\n\n'})
        self.assertEqual(pictures.system_name(release), "Debian 12")


if __name__ == "__main__":
    unittest.main()
