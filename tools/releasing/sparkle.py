"""Where Sparkle.framework comes from."""

import configparser
import hashlib
import pathlib
import re

from .steps import Command, Failure, Work

PIN = pathlib.Path("tools/sparkle.ini")
FOLDER = pathlib.Path("build/sparkle")
ADDRESS = "https://github.com/sparkle-project/Sparkle/releases/download/{version}/Sparkle-{version}.tar.xz"

# The parameter of make, which hands it on.
INSTEAD = "SPARKLE=/path/to/Sparkle.framework or SPARKLE=none (of tools/app and tools/release: --sparkle)"

VERSION = re.compile(r"\d+(\.\d+)+")
SHA256 = re.compile(r"[0-9a-f]{64}")
CHUNK = 1 << 20


class Release:
    """The pinned release, fetched once and unpacked into a folder of its own."""

    def __init__(self, version, sha256):
        self.version = version
        self.sha256 = sha256
        self.address = ADDRESS.format(version=version)
        self.archive = FOLDER / f"Sparkle-{version}.tar.xz"
        self.folder = FOLDER / version
        self.framework = self.folder / "Sparkle.framework"
        self.sign_update = self.folder / "bin/sign_update"

    def steps(self):
        fetch = Command(
            *["curl", "--fail", "--location", "--proto", "=https", "--output", self.archive, self.address],
            advice=f"without a network give {INSTEAD}",
        )
        comparison = f"compare the SHA-256 of {self.archive} with {PIN}"
        if not self.sha256:
            comparison += ", which has none yet: nothing begins before it has"
        return [
            Command("mkdir", "-p", self.folder),
            *([] if self.archive.exists() else [fetch]),
            Work(comparison, self.verify),
            Command("tar", "-xf", self.archive, "-C", self.folder),
        ]

    def require_checksum(self):
        if not self.sha256:
            raise Failure(
                f"give {INSTEAD}; {PIN} has no SHA-256 for Sparkle {self.version} yet: to have it fetched, "
                f"download {self.address}, run shasum -a 256 on it and write the result there"
            )

    def verify(self):
        self.require_checksum()
        digest = hashlib.sha256()
        with open(self.archive, "rb") as file:
            for chunk in iter(lambda: file.read(CHUNK), b""):
                digest.update(chunk)
        if digest.hexdigest() != self.sha256:
            self.archive.unlink()
            raise Failure(
                f"{self.archive} had the SHA-256 {digest.hexdigest()}, not the one in {PIN}; it is deleted"
            )


def pinned():
    parser = configparser.ConfigParser()
    try:
        parser.read_string(PIN.read_text(encoding="utf-8"))
        version, sha256 = parser["sparkle"]["version"], parser["sparkle"]["sha256"].lower()
    except (OSError, configparser.Error, KeyError) as error:
        raise Failure(f"{PIN} does not say version and sha256 under [sparkle]: {error}") from None
    if not VERSION.fullmatch(version):
        raise Failure(f"{PIN}: {version!r} is no version")
    if sha256 and not SHA256.fullmatch(sha256):
        raise Failure(f"{PIN}: {sha256!r} is no SHA-256; that has 64 hexadecimal digits")
    return Release(version, sha256)


def require_framework(path):
    if not (pathlib.Path(path) / "Versions/B/Autoupdate").is_file():
        raise Failure(f"--sparkle {path!r} is no framework of Sparkle 2: it has no Versions/B/Autoupdate")
