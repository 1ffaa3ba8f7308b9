"""A checkout of its own for each test of tools/app and tools/release, and stand-ins for a Mac's programs.

Each stand-in writes down how it was called and does no more than the next step needs.
"""

import base64
import hashlib
import os
import plistlib
import shlex
import shutil
import subprocess
import sys
import tarfile

from trees import REPOSITORY, TreeTest

COPIED = (
    "Makefile",
    ".gitignore",
    "Kestrune/Resources/Info.plist",
    "tools/app",
    "tools/configure",
    "tools/release",
    "tools/run",
    "tools/setup",
    "tools/sparkle.ini",
    "tools/releasing",
)
SYSTEM_PROGRAMS = "bash cat cp dirname env git ln make mkdir mv rm sh tar".split()

SIGNED_PROGRAM = REPOSITORY / "tests/fuzz/corpus/code-seal/universal.macho"

REAL_IDENTITY = "Developer ID Application: Some One (TEAM123456)"
PUBLIC_KEY = base64.b64encode(bytes(range(32))).decode()
ACCEPTED = '{"id": "6bd8", "message": "Processing complete", "status": "Accepted"}'

LOG = r"""printf '%s\x1f' "${0##*/}" "$@" >> "$LOG"; echo >> "$LOG"
"""
STAND_INS = {
    "uname": "echo Darwin",
    "xcode-select": "exit 0",
    "brew": "exit 1",
    "cmake": '[[ $1 != --version ]] || { echo "cmake version 3.25.1"; exit; }\n'
    + LOG
    + """[[ $1 == --build ]] || exit 0
contents=build/$3/mac/Kestrune.app/Contents
mkdir -p $contents/MacOS
cp Kestrune/Resources/Info.plist $contents
echo program with symbols > $contents/MacOS/Kestrune
ln -sf "$(type -p kestrune-self-check)" build/$3/mac""",
    "kestrune-self-check": LOG,
    "dsymutil": LOG + 'mkdir -p "$4/Contents"; echo lines > "$4/Contents/lines"',
    # What is left is signed already, which codesign's stand-in does not do.
    "strip": LOG + f'cp "{SIGNED_PROGRAM}" "$1"',
    "dwarfdump": LOG + 'echo "UUID: 40 (arm64) $2"; echo "UUID: 41 (x86_64) $2"',
    "ditto": LOG
    + """source=${@: -2:1} target=${@: -1}
if [[ $1 == -c ]]; then echo "archive of $source" > "$target"; else cp -RP "$source" "$target"; fi""",
    "codesign": LOG + '[[ -e ${@: -1} && ! -e ${@: -1}/XPCServices && ! -L ${@: -1}/XPCServices ]]',
    "hdiutil": LOG + '[[ -L $5/Applications ]] && (cd "$5"; echo image of *) > "${@: -1}"',
    "security": LOG + f"""echo '  1) {"0123456789" * 4} "{REAL_IDENTITY}"'""",
    "open": LOG + '[[ -f $3/Contents/MacOS/Kestrune ]] && echo "what it says" > "$2"',
    "osascript": LOG,
    "spctl": LOG,
    "xcrun": LOG + f"[[ $1 != notarytool ]] || echo '{ACCEPTED}'",
    "curl": LOG + 'while [[ $1 != --output ]]; do shift; done; cp "$ARCHIVE" "$2"',
}
SPARKLE_TOOLS = {
    "generate_appcast": (REPOSITORY / "tests/tools/generate_appcast.py").read_text(encoding="utf-8"),
    "generate_keys": f"#!/usr/bin/env bash\n{LOG}echo {PUBLIC_KEY}\n",
}

FEED_URL = "https://example.org/appcast.xml"
DOWNLOAD_URL = "https://example.org/downloads/"
SIGNED = ["--identity", REAL_IDENTITY, "--keychain-profile", "kestrune"]
AD_HOC = ["--identity", "-"]
UPDATES = ["--feed-url", FEED_URL, "--public-key", PUBLIC_KEY, "--download-url", DOWNLOAD_URL]


class ReleaseTest(TreeTest):
    def setUp(self):
        super().setUp()
        self.checkout = self.root / "checkout"
        for path in COPIED:
            target = self.checkout / path
            target.parent.mkdir(parents=True, exist_ok=True)
            copy = shutil.copytree if (REPOSITORY / path).is_dir() else shutil.copy
            copy(REPOSITORY / path, target)
        self.information_path = self.checkout / "Kestrune/Resources/Info.plist"
        self.log_path = self.root / "log"
        self.environment = {"LOG": str(self.log_path), "ARCHIVE": str(self.root / "archive")}
        self.use_programs({})
        self.framework = self.make_framework(self.root / "given")
        self.sparkle_tools = self.root / "given/bin"

    def use_programs(self, stand_ins):
        """From now on these stand-ins and plain tools are all that there is to run."""
        folder = self.root / "bin"
        shutil.rmtree(folder, ignore_errors=True)
        folder.mkdir()
        for name in SYSTEM_PROGRAMS:
            (folder / name).symlink_to(shutil.which(name))
        for name, text in {**stand_ins, "python3": f'exec {shlex.quote(sys.executable)} "$@"'}.items():
            (folder / name).write_text(f"#!/usr/bin/env bash\n{text}\n", encoding="utf-8")
            (folder / name).chmod(0o755)

    def use_mac(self, **changes):
        self.use_programs({**STAND_INS, **changes})

    def make_framework(self, folder):
        """As Sparkle 2 is unpacked, with its links."""
        framework = folder / "Sparkle.framework"
        version = framework / "Versions/B"
        for name in ("Updater.app/Contents/MacOS", "XPCServices/Installer.xpc", "XPCServices/Downloader.xpc"):
            (version / name).mkdir(parents=True)
        for name in ("Autoupdate", "Sparkle", "Updater.app/Contents/MacOS/Updater"):
            shutil.copy(SIGNED_PROGRAM, version / name)
        (framework / "Versions/Current").symlink_to("B")
        for name in ("Autoupdate", "Updater.app", "XPCServices"):
            (framework / name).symlink_to(f"Versions/Current/{name}")
        (folder / "bin").mkdir()
        for name, text in SPARKLE_TOOLS.items():
            (folder / "bin" / name).write_text(text, encoding="utf-8")
            (folder / "bin" / name).chmod(0o755)
        return framework

    def pin_archive(self, sha256=None):
        """Puts an archive where the stand-in for curl finds it, and its checksum where it belongs."""
        archive = self.root / "archive"
        with tarfile.open(archive, "w") as file:
            file.add(self.root / "given", arcname=".")
        digest = sha256 or hashlib.sha256(archive.read_bytes()).hexdigest()
        self.write({"checkout/tools/sparkle.ini": f"[sparkle]\nversion = 2.10.0\nsha256 = {digest}\n"})

    def call(self, *command, **environment):
        # Nothing of the settings of whoever runs the tests, the parameters of make among them.
        everything = {
            "PATH": str(self.root / "bin"),
            "HOME": str(self.root),
            "GIT_CONFIG_NOSYSTEM": "1",
            **self.environment,
            **environment,
        }
        return subprocess.run(
            [str(part) for part in command], cwd=self.checkout, env=everything, capture_output=True, text=True
        )

    def commit(self, *tags):
        git = ["git", "-c", "user.name=A", "-c", "user.email=a@example.org"]
        for command in (["init", "--quiet"], ["add", "--all"], ["commit", "--quiet", "--message", "All"]):
            self.assertEqual(self.call(*git, *command).returncode, 0)
        for tag in tags:
            self.assertEqual(self.call(*git, "tag", tag).returncode, 0)

    def commands(self, text):
        """The commands that a dry run printed, in order and without the work between them."""
        lines = [line.strip() for line in text.splitlines()]
        return [shlex.split(line) for line in lines if not line.startswith("#")]

    def calls(self):
        """How the stand-ins were called, in order."""
        if not self.log_path.exists():
            return []
        lines = self.log_path.read_text(encoding="utf-8").splitlines()
        return [line.split("\x1f")[:-1] for line in lines]

    def logged(self, commands):
        """Those of the commands that a stand-in writes down, by the program's name alone."""
        names = {name for name, text in STAND_INS.items() if LOG in text} | SPARKLE_TOOLS.keys()
        short = [[os.path.basename(program), *arguments] for program, *arguments in commands]
        return [command for command in short if command[0] in names]

    def change_information(self, **changes):
        properties = plistlib.loads(self.information_path.read_bytes())
        properties.update(changes)
        self.information_path.write_bytes(plistlib.dumps(properties))

    def assert_fails(self, result, *parts, status=1):
        """With that exit status and one line that holds the parts."""
        self.assertEqual(result.returncode, status, result.stdout + result.stderr)
        self.assertEqual(len(result.stderr.splitlines()), 1, result.stderr)
        for part in parts:
            self.assertIn(part, result.stderr)


class ReleaseToolTest(ReleaseTest):
    def setUp(self):
        super().setUp()
        self.notes = self.checkout / "docs/releases/0.1.0.md"
        self.write({self.notes: "- The *first* one <so far>\n"})
        self.appcast = self.root / "site/appcast.xml"
        self.appcast.parent.mkdir()
        self.updates = [*UPDATES, "--appcast", self.appcast]

    def release(self, *arguments, **environment):
        return self.call("tools/release", *arguments, **environment)

    def given_sparkle(self):
        return ["--sparkle", self.framework, "--sparkle-tools", self.sparkle_tools]

    def assert_made(self, *arguments, **environment):
        result = self.release(*arguments, **environment)
        self.assertEqual((result.returncode, result.stderr), (0, ""), result.stdout)
        return result.stdout

    def made(self):
        """What is in the folder of the release, and beside the feed."""
        folders = (self.checkout / "out/release", self.appcast.parent)
        return sorted(path.name for folder in folders if folder.exists() for path in folder.iterdir())
