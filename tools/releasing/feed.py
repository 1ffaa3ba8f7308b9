"""The feed that installed copies look for updates in, which Sparkle calls an appcast.

Sparkle's generate_appcast writes it. Here it is read: before a build, whether that would be the newest, and
after generate_appcast, whether the item is there as it has to be.
"""

import base64
import binascii
import pathlib
import xml.etree.ElementTree as ElementTree
from dataclasses import dataclass

from . import information
from .steps import Command, Failure, Work

SPARKLE = "{http://www.andymatuschak.org/xml-namespaces/sparkle}"
SIGNATURE_BYTES = 64  # of EdDSA
GENERATE_APPCAST, GENERATE_KEYS = "generate_appcast", "generate_keys"
# Of release notes, as generate_appcast finds them beside an archive of the same name.
NOTES_SUFFIXES = (".html", ".md", ".txt")


@dataclass(frozen=True)
class Item:
    build: str
    short_version: str
    address: str  # of the archive
    length: str  # of the archive, in bytes
    signature: str  # base64
    notes: str


def items_in(path):
    """None of a feed that is not there yet."""
    if not path.exists():
        return []
    try:
        channel = ElementTree.parse(path).getroot().find("channel")
    except (OSError, ElementTree.ParseError, LookupError, ValueError) as error:
        raise Failure(f"{path} is no appcast: {error}") from None
    if channel is None:
        raise Failure(f"{path} is no appcast: it has no channel")
    return [_item(element) for element in channel.findall("item")]


def require_newer(path, build):
    """Sparkle offers the item with the highest build, so a lower one would never be seen."""
    for present in items_in(path):
        if _numbers(present.build, path) >= _numbers(build, path):
            raise Failure(
                f"{path} has build {present.build} already and this one is {build}; "
                "raise CFBundleVersion in Info.plist"
            )


class Feed:
    """The feed with one more item, in a folder with nothing but what generate_appcast has to read."""

    def __init__(self, path, folder, tools):
        self.path = pathlib.Path(path)
        self.folder = folder
        self.tools = tools
        self.entered = folder / "appcast.xml"
        # In the folder of the feed: what is moved within one is there at once or not at all.
        self.new = self.path.with_name(f"{self.path.name}.new")
        self.before = items_in(self.path)

    def require(self, is_fetched):
        """Tools that the build fetches are not there before it."""
        if not self.path.parent.is_dir():
            raise Failure(f"--appcast {str(self.path)!r} is in no folder that is there")
        for name in (GENERATE_APPCAST, GENERATE_KEYS):
            if not is_fetched and not (self.tools / name).is_file():
                raise Failure(
                    f"--sparkle-tools {str(self.tools)!r} has no {name}; give the folder bin of Sparkle's "
                    "archive"
                )

    def key_comparison(self, public_key):
        """Installed copies take no update that was signed with another key than theirs."""

        def require(output):
            if public_key not in output.split():
                raise Failure(
                    f"the keychain would sign updates for {' '.join(output.split())!r}, and --public-key is "
                    f"{public_key!r}"
                )

        return Command(self.tools / GENERATE_KEYS, "-p", judge=require)

    def steps(self, versions, archive, notes, download_url):
        prefix = f"{download_url.rstrip('/')}/"
        generate = [self.tools / GENERATE_APPCAST, "--download-url-prefix", prefix]
        return [
            Command("cp", notes, archive.with_suffix(notes.suffix)),
            *([Command("cp", self.path, self.entered)] if self.path.exists() else []),
            # 0 keeps every item that was there.
            Command(
                *[*generate, "--embed-release-notes", "--maximum-versions", "0"],
                *["-o", self.entered, self.folder],
            ),
            Work(
                f"find {versions.short}, build {versions.build}, at {prefix}{archive.name} in "
                f"{self.entered}, signed and with its notes, and every item that was there",
                lambda: self._require_entry(versions, archive, f"{prefix}{archive.name}"),
            ),
        ]

    def _require_entry(self, versions, archive, address):
        items = items_in(self.entered)
        before, after = (sorted(item.build for item in some) for some in (self.before, items))
        if after != sorted([*before, versions.build]):
            raise Failure(f"generate_appcast was to add build {versions.build} to {before} and left {after}")
        item = next(item for item in items if item.build == versions.build)
        for name, found, expected in (
            ("version", item.short_version, versions.short),
            ("address", item.address, address),
            ("length", item.length, str(archive.stat().st_size)),
        ):
            if found != expected:
                raise Failure(f"generate_appcast wrote the {name} {found!r} instead of {expected!r}")
        if not _is_signature(item.signature):
            raise Failure(
                f"generate_appcast left build {versions.build} without a signature that could be checked "
                f"({item.signature!r}); is the private key of generate_keys in this keychain?"
            )
        if not item.notes:
            raise Failure(f"generate_appcast left build {versions.build} without its release notes")


def _item(element):
    """Older ones say their versions in attributes of the enclosure."""
    enclosure = element.find("enclosure")
    attributes = {} if enclosure is None else enclosure.attrib

    def text(name):
        return (element.findtext(f"{SPARKLE}{name}") or attributes.get(f"{SPARKLE}{name}", "")).strip()

    return Item(
        build=text("version"),
        short_version=text("shortVersionString"),
        address=attributes.get("url", ""),
        length=attributes.get("length", ""),
        signature=attributes.get(f"{SPARKLE}edSignature", ""),
        notes=(element.findtext("description") or "").strip(),
    )


def _numbers(build, path):
    if not all(part.isdecimal() for part in build.split(".")):
        raise Failure(f"{path} has an item whose sparkle:version {build!r} is not made of numbers")
    return information.numbers(build)


def _is_signature(text):
    try:
        return len(base64.b64decode(text, validate=True)) == SIGNATURE_BYTES
    except (binascii.Error, ValueError):
        return False
