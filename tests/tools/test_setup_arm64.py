"""tools/setup unpacks Linux on arm64 and an emulator, seen with stand-ins for Debian's programs."""

import unittest

from debians import BOOKWORM, LOGGED, DebianTest, llvm

# With a configuration of its own apt leaves the packages where that says, for which processor it says.
APT_GET = (
    LOGGED
    + """last=${*: -1} all=$*
if [[ -n ${APT_CONFIG-} ]]; then
    grep -q '^APT::Architecture "arm64";$' "$APT_CONFIG" || exit 100
    [[ $* != *" install "* ]] || for name in ${all##*--download-only}; do
        grep -qx "$name" "$SYSTEM/arm64" || exit 100
        echo > "${APT_CONFIG%/*}/archives/${name}_1_arm64.deb"
    done
elif [[ $last == update ]]; then
    cp "$SYSTEM/server" "$SYSTEM/emulators"
elif [[ $* == *" download qemu"* ]]; then
    grep -qx "$last" "$SYSTEM/emulators" && echo > "${last}_1_amd64.deb"
fi
"""
)
DPKG_DEB = (
    LOGGED
    + """name=${2##*/}
name=${name%%_*}
mkdir -p "$3/usr/bin" "$3/$(<"$SYSTEM/libraries")"
echo "$name" > "$3/usr/bin/$name"
[[ $name != qemu-user-static ]] || echo "static" > "$3/usr/bin/qemu-aarch64-static"
[[ $name != qemu-user ]] || echo "later" > "$3/usr/bin/qemu-aarch64"
"""
)
NAMES = """g++ libsdl2-dev libcairo2-dev libpango1.0-dev libgtest-dev libgmock-dev libbenchmark-dev
    librapidcheck-dev libplist-dev libssl-dev libyaml-cpp-dev libcli11-dev libgnustep-gui-dev gnustep-back
    gnustep-base-runtime libc++-19-dev libc++abi-19-dev""".split()
NO_EMULATOR = "no emulator of arm64 is to be had in any of: qemu-user-static qemu-user"


class Arm64(DebianTest):
    def setUp(self):
        super().setUp()
        self.place = self.folder / "build/sysroot-arm64"
        self.stand(19)
        self.debian(release=BOOKWORM | llvm(19))
        self.program("apt-get", APT_GET)
        self.program("dpkg-deb", DPKG_DEB)
        self.system_has(server="", emulators="qemu-user-static qemu-user")
        self.system_has(libraries="lib", arm64=" ".join(NAMES))

    def system_has(self, **names):
        for what, of in names.items():
            self.write({f"system/{what}": "".join(f"{name}\n" for name in of.split())})

    def assert_stands(self, emulator="static"):
        self.assertEqual(
            sorted(path.name for path in self.place.iterdir()), ["libcxx", "packages", "qemu", "root"]
        )
        self.assertEqual((self.place / "qemu").read_text(encoding="utf-8"), f"{emulator}\n")
        self.assertEqual(sorted(path.name for path in (self.place / "root/usr/bin").iterdir()), sorted(NAMES))
        self.assertEqual((self.place / "packages").read_text(encoding="utf-8"), f"{' '.join(NAMES)}\n")
        self.assertFalse((self.folder / "build/sysroot-arm64.new").exists())

    def test_is_unpacked_once_and_without_root(self):
        result, log = self.set_up("arm64")
        self.assertEqual((result.returncode, result.stderr), (0, ""))
        self.assertFalse([line for line in log if line.startswith("sudo")])
        self.assert_stands()
        self.assertEqual(self.set_up("arm64")[1], [])

    def test_is_looked_at_again_by_the_build_for_it_alone(self):
        for build in ("gcc", "arm64"):
            self.configured(build)
        self.set_up("arm64")
        marked = [path.parent.name for path in self.folder.glob("build/*/configure-afresh")]
        self.assertEqual(marked, ["arm64"])

    def test_is_unpacked_by_no_other_group(self):
        self.set_up("test", "app", "gcc")
        self.assertFalse(self.place.exists())

    def test_takes_nothing_from_an_attempt_that_was_interrupted(self):
        self.write({"a folder/build/sysroot-arm64.new/root/usr/bin/half": ""})
        self.set_up("arm64")
        self.assert_stands()

    def test_is_unpacked_again_for_other_packages(self):
        self.set_up("arm64")
        self.write({"a folder/build/sysroot-arm64/packages": "libsdl2-dev\n"})
        self.assertTrue(self.set_up("arm64")[1])
        self.assert_stands()

    def test_has_a_folder_of_libraries_where_releases_have_a_link(self):
        self.set_up("arm64")
        self.assertFalse((self.place / "root/lib").is_symlink())
        self.write({"a folder/build/sysroot-arm64/packages": ""})
        self.system_has(libraries="usr/lib")
        self.set_up("arm64")
        self.assertTrue((self.place / "root/lib").is_symlink())

    def test_finds_the_emulator_under_either_name(self):
        self.system_has(emulators="qemu-user")
        self.set_up("arm64")
        self.assert_stands(emulator="later")

    def test_has_an_emulator_after_one_update_of_old_lists(self):
        self.debian(user=0, release=BOOKWORM | llvm(19))
        self.program("apt-get", APT_GET)
        self.program("dpkg-deb", DPKG_DEB)
        self.system_has(emulators="", server="qemu-user")
        log = self.set_up("arm64")[1]
        self.assertEqual(len([line for line in log if line.endswith(" update")]), 2)
        self.assert_stands(emulator="later")

    def test_says_what_is_not_to_be_had(self):
        self.debian(user=0, release=BOOKWORM | llvm(19))
        self.program("apt-get", APT_GET)
        self.program("dpkg-deb", DPKG_DEB)
        self.system_has(emulators="")
        result = self.set_up("arm64")[0]
        self.assertEqual(result.returncode, 1)
        self.assertIn(NO_EMULATOR, result.stderr)
        self.system_has(emulators="qemu-user", arm64="g++")
        result = self.set_up("arm64")[0]
        self.assertEqual(result.returncode, 1)
        self.assertIn("the packages for arm64 are not to be had", result.stderr)
        self.assertFalse(self.place.exists())


if __name__ == "__main__":
    unittest.main()
