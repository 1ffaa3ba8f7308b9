#!/usr/bin/env python3
"""Stands in for Sparkle's generate_appcast: enters the one archive of a folder into a feed, last, with notes.

The variable FEED_CHANGE has an expression and what to put in place of its first match in what is written: a
mistake to be found. Without an archive, with two of them or without the version of the build it fails.
"""

import html
import os
import pathlib
import plistlib
import re
import sys

EMPTY = """<?xml version="1.0" encoding="utf-8"?>
<rss version="2.0" xmlns:sparkle="http://www.andymatuschak.org/xml-namespaces/sparkle">
    <channel>
        <title>Kestrune</title>
    </channel>
</rss>
"""
ITEM = """\
        <item>
            <title>{short}</title>
            <sparkle:version>{build}</sparkle:version>
            <sparkle:shortVersionString>{short}</sparkle:shortVersionString>
            <description>{notes}</description>
            <enclosure url="{address}" length="{length}" type="application/octet-stream"
                       sparkle:edSignature="{signature}"/>
        </item>
"""


def main(name, *arguments):
    with open(os.environ["LOG"], "a", encoding="utf-8") as log:
        log.write("".join(f"{word}\x1f" for word in (pathlib.Path(name).name, *arguments)) + "\n")
    prefix = arguments[arguments.index("--download-url-prefix") + 1]
    feed, folder = pathlib.Path(arguments[-2]), pathlib.Path(arguments[-1])
    (archive,) = [path for path in folder.iterdir() if path.suffix in (".zip", ".dmg")]
    text = feed.read_text(encoding="utf-8") if feed.exists() else EMPTY
    place = text.index("    </channel>")
    text = text[:place] + item(archive, prefix) + text[place:]
    if "FEED_CHANGE" in os.environ:
        expression, replacement = os.environ["FEED_CHANGE"].split(" -> ")
        text, count = re.subn(expression, replacement, text, count=1, flags=re.DOTALL)
        assert count, expression
    feed.write_text(text, encoding="utf-8")


def item(archive, prefix):
    (information,) = pathlib.Path("build").glob("*/Kestrune.app/Contents/Info.plist")
    properties = plistlib.loads(information.read_bytes())
    return ITEM.format(
        short=properties["CFBundleShortVersionString"],
        build=properties["CFBundleVersion"],
        notes=html.escape(archive.with_suffix(".md").read_text(encoding="utf-8")),
        address=prefix + archive.name,
        length=archive.stat().st_size,
        signature="QUJD" * 21 + "QQ==",
    )


if __name__ == "__main__":
    main(*sys.argv)
