"""The Info.plist of the application."""

import pathlib
import plistlib
import re
from dataclasses import dataclass

from .steps import Failure

PATH = pathlib.Path("Kestrune/Resources/Info.plist")
BUILD_NUMBER = re.compile(r"\d+(\.\d+){0,2}")


@dataclass(frozen=True)
class Versions:
    short: str  # what people read
    build: str  # what Sparkle compares
    minimum_system: str


def versions(path=PATH):
    properties = _read(path)
    keys = ("CFBundleShortVersionString", "CFBundleVersion", "LSMinimumSystemVersion")
    for key in keys:
        value = properties.get(key)
        # A number would show as a question mark in the application, and Sparkle would not start.
        if not isinstance(value, str) or not BUILD_NUMBER.fullmatch(value):
            raise Failure(f"{path}: {key} is {value!r}; make it a string of one to three numbers")
    return Versions(*(properties[key] for key in keys))


def identifier(path=PATH):
    return _read(path)["CFBundleIdentifier"]


def numbers(version):
    """As versions are compared: 13.0 is 13, and less than 13.0.1."""
    found = [int(number) for number in version.split(".")]
    while found and not found[-1]:
        found.pop()
    return found


def with_updates(properties, feed_url, public_key):
    """The properties with the address and the key that Sparkle reads, each only when it is given."""
    given = {"SUFeedURL": feed_url, "SUPublicEDKey": public_key}
    others = {key: value for key, value in properties.items() if key not in given}
    return {**others, **{key: value for key, value in given.items() if value}}


def add_updates(path, feed_url, public_key):
    versions(path)
    data = plistlib.dumps(with_updates(_read(path), feed_url, public_key))
    path.write_bytes(data)


def _read(path):
    try:
        properties = plistlib.loads(path.read_bytes())
    except Exception as error:  # The library passes on whatever its parsers raise.
        raise Failure(f"{path} cannot be read: {error}") from None
    if not isinstance(properties, dict):
        raise Failure(f"{path} is no dictionary")
    return properties
