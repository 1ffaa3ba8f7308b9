"""The appcast: the list of releases that Sparkle reads.

An item is inserted as text before the end of the channel, so that whatever else the file holds stays as it
is, comments and white space included.
"""

import os
import pathlib
import re
import xml.etree.ElementTree as ElementTree
from dataclasses import dataclass
from xml.sax.saxutils import escape, quoteattr

from .steps import Failure

SPARKLE = "http://www.andymatuschak.org/xml-namespaces/sparkle"
VERSION = f"{{{SPARKLE}}}version"
END_OF_CHANNEL = "</channel>"

EMPTY = f"""<?xml version="1.0" encoding="utf-8"?>
<rss version="2.0" xmlns:sparkle="{SPARKLE}">
  <channel>
    <title>Kestrune</title>
  </channel>
</rss>
"""


@dataclass(frozen=True)
class Item:
    short_version: str
    build: str
    minimum_system: str
    address: str  # of the archive
    length: int  # of the archive, in bytes
    signature: str  # EdDSA, base64
    date: str  # as in RFC 2822

    def __str__(self):
        return f"""\
    <item>
      <title>{escape(self.short_version)}</title>
      <pubDate>{escape(self.date)}</pubDate>
      <sparkle:version>{escape(self.build)}</sparkle:version>
      <sparkle:shortVersionString>{escape(self.short_version)}</sparkle:shortVersionString>
      <sparkle:minimumSystemVersion>{escape(self.minimum_system)}</sparkle:minimumSystemVersion>
      <enclosure url={quoteattr(self.address)} length="{self.length}"
                 type="application/octet-stream" sparkle:edSignature={quoteattr(self.signature)}/>
    </item>
"""


def text_of(path):
    """The appcast as it stands, or an empty one when there is none yet."""
    path = pathlib.Path(path)
    try:
        return path.read_bytes().decode("utf-8") if path.exists() else EMPTY
    except (OSError, UnicodeDecodeError) as error:
        raise Failure(f"{path} cannot be read: {error}") from None


def require_newer(path, build):
    """Sparkle offers the item with the highest build, so a lower one would never be seen."""
    for present in _builds(text_of(path), path):
        if _numbers(present, path) >= _numbers(build, path):
            raise Failure(
                f"{path} has build {present} already and this one is {build}; "
                "raise CFBundleVersion in Info.plist"
            )


def add(path, item):
    require_newer(path, item.build)
    before = text_of(path)
    # The channel's own end, on a line with its indentation or right after an item.
    place = before.rfind(END_OF_CHANNEL)
    line = before.rfind("\n", 0, place) + 1
    if not before[line:place].strip():
        place = line
    separator = "" if place == 0 or before[place - 1] == "\n" else "\n"
    after = before[:place] + separator + str(item) + before[place:]
    if _builds(after, path) != [*_builds(before, path), item.build]:
        raise Failure(f"{path} ends in a way that is not understood; it is left as it is")
    # All or nothing: a feed that is half written would end every update.
    temporary = f"{path}.new"
    with open(temporary, "w", encoding="utf-8", newline="") as file:
        file.write(after)
    os.replace(temporary, path)


def signature_in(output, length):
    """The signature that sign_update printed for an archive of that many bytes."""
    found = re.search(r'edSignature="(?P<signature>[^"]+)"', output)
    measured = re.search(r'length="(?P<length>\d+)"', output)
    if not found:
        raise Failure(f"sign_update printed no edSignature: {' '.join(output.split())!r}")
    if measured and int(measured["length"]) != length:
        raise Failure(f"sign_update signed {measured['length']} bytes of an archive of {length}")
    return found["signature"]


def _builds(text, path):
    try:
        channel = ElementTree.fromstring(text.encode("utf-8")).find("channel")
    except ElementTree.ParseError as error:
        raise Failure(f"{path} is no appcast: {error}") from None
    if channel is None:
        raise Failure(f"{path} is no appcast: it has no channel")
    return [_build(item) for item in channel.findall("item")]


def _build(item):
    """An item says its build in an element or, as older ones do, in an attribute."""
    element, enclosure = item.find(VERSION), item.find("enclosure")
    if element is not None:
        return (element.text or "").strip()
    return enclosure.get(VERSION, "") if enclosure is not None else ""


def _numbers(build, path):
    parts = build.split(".")
    if not all(part.isdecimal() for part in parts):
        raise Failure(f"{path} has an item whose sparkle:version {build!r} is not made of numbers")
    numbers = [int(part) for part in parts]
    while numbers and not numbers[-1]:
        numbers.pop()
    return numbers
