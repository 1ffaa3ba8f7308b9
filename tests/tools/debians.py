"""A Debian made of stand-ins, for the tests of tools/setup: what is installed and what is to be had."""

import os
import re
import shutil
import subprocess

from trees import REPOSITORY, TreeTest

# Each package with what else it provides, as dpkg tells it. These have the same name in every release.
COMMON = dict.fromkeys(
    """ca-certificates clang clang-format clang-tidy cmake curl fonts-inter g++ gcovr git gnustep-base-runtime
    imagemagick libbenchmark-dev libcairo2-dev libclang-rt-dev libcli11-dev libgmock-dev
    libgnustep-gui-dev libgtest-dev libpango1.0-dev libplist-dev librapidcheck-dev librsvg2-bin libssl-dev
    libyaml-cpp-dev llvm ninja-build nodejs npm python3 python3-clang python3-yaml shellcheck valgrind
    x11-utils xauth xdotool xvfb xz-utils""".split(),
    "",
)
SDL_AND_PKG_CONFIG = {"libsdl2-dev": "", "pkg-config": ""}
BOOKWORM = SDL_AND_PKG_CONFIG | {"gnustep-back0.29": "gnustep-back"}
TRIXIE = SDL_AND_PKG_CONFIG | {"gnustep-back0.32": "gnustep-back", "g++-14": "c++-compiler, c++abi2-dev"}
NOBLE = SDL_AND_PKG_CONFIG | {"gnustep-back0.30": "gnustep-back"}
# A release to come: what had a package of its own is provided by its successor.
LATER = {
    "gnustep-back0.33": "gnustep-back",
    "pkgconf": "pkg-config (= 2.3.0-1), pkgconfig",
    "libsdl2-compat-dev": "libsdl2-dev (= 2.32.50-1)",
}

TOOLS = "bash cat cp dirname env grep ln mkdir mv readlink realpath rm tr".split()
LOGGED = 'echo "${0##*/} $*" >> "$LOG"\n'

# The lists of packages are what the server has, as it was when they were updated.
APT_GET = (
    LOGGED
    + """while [[ $1 != update && $1 != install && $1 != download ]]; do shift; done
for name in "${@:2}"; do
    if [[ $1 == install ]]; then
        [[ $name == -* ]] || echo "installed $name" >> "$SYSTEM/installed"
    else
        package=$(grep "^$name " "$SYSTEM/lists") && grep -qx "$package" "$SYSTEM/server" || exit 100
        echo "$package" > "${package/ /_}_all.deb"
    fi
done
[[ $1 != update ]] || cp "$SYSTEM/server" "$SYSTEM/lists"
"""
)
# Of a name that is only mentioned it shows nothing, and is content.
APT_CACHE = LOGGED + """grep -qx "$2" "$SYSTEM/mentioned" || grep "^$2 " "$SYSTEM/lists" """
# What it extracts is the package itself.
DPKG_DEB = (
    LOGGED
    + """name=${2##*/}
[[ $name =~ ^(.*)-([0-9]+)-dev_ ]]
mkdir -p "$3/usr/lib/llvm-${BASH_REMATCH[2]}/include"
cp "$2" "$3/usr/lib/llvm-${BASH_REMATCH[2]}/include/${BASH_REMATCH[1]}"
"""
)


def cxx_library(version, revision=1):
    """The packages of LLVM's C++ library, as a server has them."""
    return [f"{name}-{version}-dev {revision}" for name in ("libc++", "libc++abi")]


def llvm(version):
    """The packages of LLVM's programs, as a release has them."""
    return {f"{name}-{version}": "" for name in ("clang", "lld", "llvm")}


class DebianTest(TreeTest):
    """Runs set-up in a folder with a space in its name."""

    def setUp(self):
        super().setUp()
        self.folder = self.root / "a folder"
        self.system = self.root / "system"
        # It touches the builds of the repository that it lies in, so it runs as a copy.
        (self.folder / "tools").mkdir(parents=True)
        self.script = self.folder / "tools/setup"
        shutil.copy(REPOSITORY / "tools/setup", self.script)
        self.path = str(self.root / "bin")
        (self.root / "bin").mkdir()
        for tool in TOOLS:
            (self.root / "bin" / tool).symlink_to(shutil.which(tool))

    def program(self, name, text):
        # Some are links to the system's own.
        (self.root / "bin" / name).unlink(missing_ok=True)
        self.write({f"bin/{name}": f"#!/bin/bash\n{text}\n"})
        (self.root / "bin" / name).chmod(0o755)

    def set_up(self, *groups, name=None):
        """Runs it with the stand-ins only, and returns what they, with paths in the folder, and it said."""
        log = self.root / "log"
        log.write_text("", encoding="utf-8")
        result = subprocess.run(
            [name or self.script, *groups],
            cwd=self.folder,
            env={"PATH": self.path, "LOG": str(log), "SYSTEM": str(self.system), "LANG": "C"},
            capture_output=True,
            text=True,
            # It can be interrupted with all that it has started.
            start_new_session=True,
        )
        return result, log.read_text(encoding="utf-8").replace(f"{self.folder}/", "").splitlines()

    def debian(self, missing=(), user=1000, release=BOOKWORM, half_done=()):
        """A system that has every package that the release has for the groups, but for the missing ones."""
        self.program("uname", "echo Linux")
        self.program("id", f"echo {user}")
        self.program("apt-get", APT_GET)
        self.program("apt-cache", APT_CACHE)
        self.program("dpkg", LOGGED)
        self.program("dpkg-deb", DPKG_DEB)
        self.program("dpkg-query", 'cat "$SYSTEM/installed"')
        self.program("sleep", LOGGED)
        self.program("sudo", LOGGED + '"$@"')
        self.write(
            {
                "system/installed": "".join(
                    f"{'half-configured' if package in half_done else 'installed'} {package} {provided}\n"
                    for package, provided in (COMMON | release).items()
                    if package not in missing
                )
            }
        )
        self.serve(*cxx_library(19))

    def serve(self, *packages, lists=None, mentioned=()):
        """Packages with their versions that are to be had, and those in the lists where these are old."""
        for name, lines in (("server", packages), ("lists", packages if lists is None else lists)):
            self.write({f"system/{name}": "".join(f"{line}\n" for line in lines)})
        self.write({"system/mentioned": "".join(f"{name}\n" for name in mentioned)})

    def install(self, *packages, status="installed"):
        with open(self.system / "installed", "a", encoding="utf-8") as file:
            file.writelines(f"{status} {package}\n" for package in packages)

    def without_sudo(self):
        (self.root / "bin/sudo").unlink()

    def without_permission(self):
        self.program("sudo", "exit 1")

    def allow_interruptions(self):
        """Each program is preceded by one that ends set-up with all that it has started, once it is time."""
        folder = self.root / "interruptions"
        for name in set(os.listdir(self.root / "bin")) - {"bash"}:
            self.write(
                {
                    f"interruptions/{name}": f"""#!/bin/bash
left=$(<"$SYSTEM/left")
((left)) || kill -9 0
echo $((left - 1)) > "$SYSTEM/left"
exec "{self.path}/{name}" "$@"
"""
                }
            )
            (folder / name).chmod(0o755)
        self.path = f"{folder}:{self.path}"

    def interrupt_after(self, commands):
        self.write({"system/left": str(commands)})

    def configured(self, build):
        self.write({f"a folder/build/{build}/{name}": "" for name in ("CMakeCache.txt", "build.ninja")})

    def looks_again(self, build):
        """Whether a build is to be configured from scratch. Until then it stays as ninja needs it."""
        folder = self.folder / "build" / build
        self.assertTrue((folder / "CMakeCache.txt").exists() and (folder / "build.ninja").exists())
        return (folder / "configure-afresh").exists()

    def remove_builds(self):
        shutil.rmtree(self.folder / "build", ignore_errors=True)

    def stand(self, version):
        """Leaves LLVM in build/llvm, as set-up does."""
        place = self.folder / "build/llvm"
        shutil.rmtree(place, ignore_errors=True)
        for package in cxx_library(version):
            name = package.split(f"-{version}")[0]
            self.write({f"a folder/build/llvm/usr/lib/llvm-{version}/include/{name}": f"{package}\n"})
        (place / "tools").symlink_to(f"/usr/lib/llvm-{version}")
        (place / "libcxx").symlink_to(f"usr/lib/llvm-{version}")

    def stand_actionlint(self):
        """Leaves the actionlint that is pinned in build/actionlint, or what says that it is."""
        sha256 = re.search(r"(?m)^actionlint_sha256=(\w+)$", self.script.read_text(encoding="utf-8"))[1]
        self.write({"a folder/build/actionlint/sha256": f"{sha256}\n"})

    def assert_stands(self, version, revision=1, leftovers=()):
        """LLVM of a version, all of it and nothing else."""
        place = self.folder / "build/llvm"
        self.assertEqual(os.readlink(place / "tools"), f"/usr/lib/llvm-{version}")
        self.assertEqual(os.readlink(place / "libcxx"), f"usr/lib/llvm-{version}")
        packages = [path.read_text(encoding="utf-8") for path in sorted(place.glob("libcxx/include/*"))]
        self.assertEqual(packages, [f"{package}\n" for package in cxx_library(version, revision)])
        self.assertEqual(sorted(os.listdir(place)), ["libcxx", "tools", "usr"])
        self.assertEqual(os.listdir(place / "usr/lib"), [f"llvm-{version}"])
        beside = [path.name for path in place.parent.glob("llvm*") if path != place]
        self.assertEqual(beside, list(leftovers))
