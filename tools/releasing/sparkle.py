"""Where Sparkle.framework comes from."""

import configparser
import hashlib
import pathlib

from .steps import Command, Failure, Work

PIN = pathlib.Path("tools/sparkle.ini")
FOLDER = pathlib.Path("build/sparkle")
ADDRESS = "https://github.com/sparkle-project/Sparkle/releases/download/{version}/{archive}"

# The parameter of make, which hands it on.
INSTEAD = "SPARKLE=/path/to/Sparkle.framework or SPARKLE=none (of tools/app and tools/release: --sparkle)"


class Release:
    """The pinned release, fetched once and unpacked into a folder of its own."""

    def __init__(self, version, sha256):
        self.sha256 = sha256
        self.archive = FOLDER / f"Sparkle-{version}.tar.xz"
        self.fetched = self.archive.with_suffix(".part")
        self.address = ADDRESS.format(version=version, archive=self.archive.name)
        self.folder = FOLDER / version
        self.framework = self.folder / "Sparkle.framework"
        self.tools = self.folder / "bin"

    def steps(self):
        fetch = [
            Command(
                *["curl", "--fail", "--location", "--proto", "=https", "--remove-on-error"],
                *["--output", self.fetched, self.address],
                advice=f"without a network give {INSTEAD}",
            ),
            Work(f"compare the SHA-256 of {self.fetched} with {PIN} and name it {self.archive}", self.accept),
        ]
        return [
            Command("mkdir", "-p", self.folder),
            *([] if self.archive.exists() else fetch),
            Command("tar", "-xf", self.archive, "-C", self.folder),
        ]

    def accept(self):
        found = hashlib.sha256(self.fetched.read_bytes()).hexdigest()
        if found != self.sha256:
            self.fetched.unlink()
            raise Failure(f"{self.address} has the SHA-256 {found}, not the one in {PIN}; it is deleted")
        self.fetched.rename(self.archive)


def pinned():
    parser = configparser.ConfigParser()
    try:
        parser.read_string(PIN.read_text(encoding="utf-8"))
        return Release(parser["sparkle"]["version"], parser["sparkle"]["sha256"])
    except (OSError, configparser.Error, KeyError) as error:
        raise Failure(f"{PIN} does not say version and sha256 under [sparkle]: {error}") from None


def require_framework(path):
    if not (pathlib.Path(path) / "Versions/B/Autoupdate").is_file():
        raise Failure(f"--sparkle {path!r} is no framework of Sparkle 2: it has no Versions/B/Autoupdate")
