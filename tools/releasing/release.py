"""A release: checked, built, notarized, packed in an archive and a disk image, and entered into the feed.

Everything is made in a folder of its own and moved to its place at the end, the feed last.
"""

import pathlib

from . import archive, feed, image, information, notarization, signing, sparkle
from .mac import Mac
from .parameters import AD_HOC, NO_SPARKLE, flag
from .steps import Command, Failure, Work
from .symbols import Symbols

FOLDER = pathlib.Path("out/release")
MAKING = FOLDER / "making"
LOG = FOLDER / "notarization-log.json"
# generate_appcast takes every archive and every image in its folder for a release.
UPDATES_FOLDER = MAKING / "updates"
NOTES = pathlib.Path("docs/releases")

# What a release with updates cannot do without, and one without Sparkle has no use for.
UPDATES = ("feed_url", "public_key", "download_url", "appcast")


def check(options):
    """Raises Failure for parameters that are missing or do not go together."""
    wanted = ["identity"]
    if options.identity != AD_HOC:
        wanted.append("keychain_profile")
    if options.sparkle != NO_SPARKLE:
        wanted += UPDATES
        if options.sparkle:
            wanted.append("sparkle_tools")
    missing = [flag(name) for name in wanted if not getattr(options, name)]
    if missing:
        raise Failure(f"missing {', '.join(missing)}; --help explains the parameters")
    if options.identity == AD_HOC and options.keychain_profile:
        raise Failure("an ad-hoc signature cannot be notarized; leave out --keychain-profile")
    unused = [flag(name) for name in (*UPDATES, "sparkle_tools", "notes") if getattr(options, name)]
    if options.sparkle == NO_SPARKLE and unused:
        raise Failure(f"without Sparkle there are no updates; leave out {', '.join(unused)}")


class Release:
    def __init__(self, options):
        self.options = options
        self.mac = Mac(["hdiutil", "security", "spctl", "xcrun"])
        self.versions = information.versions()
        self.tag = f"v{self.versions.short}"
        name = f"Kestrune-{self.versions.short}"
        self.archive, self.image, self.symbols = (
            FOLDER / f"{name}{suffix}" for suffix in (".zip", ".dmg", ".dSYM.zip")
        )
        # Where each is until everything is done.
        self.making = {path: MAKING / path.name for path in (self.image, self.symbols)}
        self.making[self.archive] = UPDATES_FOLDER / self.archive.name
        is_ad_hoc = options.identity == AD_HOC
        self.notary = None if is_ad_hoc else notarization.Notary(options.keychain_profile, LOG)
        self.feed = None
        if options.sparkle != NO_SPARKLE:
            tools = pathlib.Path(options.sparkle_tools) if options.sparkle_tools else sparkle.pinned().tools
            self.feed = feed.Feed(options.appcast, UPDATES_FOLDER, tools)
            feed.require_newer(self.feed.path, self.versions.build)
            self.notes = pathlib.Path(options.notes or NOTES / f"{self.versions.short}.md")
            _require_notes(self.notes)

    def require(self):
        """Before a long build, what the release would end with."""
        self.mac.require(self.options)
        if self.feed:
            self.feed.require(is_fetched=not self.options.sparkle_tools)

    @property
    def made(self):
        """What is there when the release is made, or in the making, and nothing of it otherwise."""
        return [MAKING, self.archive, self.image, self.symbols, *([self.feed.new] if self.feed else [])]

    def steps_before(self):
        return [
            Command("git", "status", "--porcelain", judge=require_clean),
            Command("git", "tag", "--points-at", "HEAD", judge=self.require_tag),
            *signing.certificate(self.options.identity, "-v"),
            # As `make app` does. make itself would have its say after a failure.
            Command("tools/setup", "app", reports=True),
        ]

    def build(self):
        """The build as a command of its own; what that runs is application.steps()."""
        names = ("identity", "sparkle", "feed_url", "public_key")
        values = [(flag(name), getattr(self.options, name)) for name in names]
        given = [word for name, value in values if value for word in (name, value)]
        return Command("tools/app", "--system", "Darwin", *given, reports=True)

    def steps_after(self):
        archived = self.making[self.archive]
        return [
            Command("rm", "-rf", MAKING, LOG, self.archive, self.image, self.symbols),
            Command("mkdir", "-p", UPDATES_FOLDER),
            *([self.feed.key_comparison(self.options.public_key)] if self.feed else []),
            *self._notarize_application(),
            _zip(archived),
            *self._make_image(),
            Work(
                f"pack {self.symbols.name} of what make app left beside the application", self._pack_symbols
            ),
            *(self._enter(archived) if self.feed else []),
            *self._put_in_place(),
        ]

    def closing_words(self):
        names = f"{self.archive}, {self.image.name} and {self.symbols.name}"
        lines = [
            f"{names} are ready. Nothing has been published.",
            f"{self.image.name} is for people. Keep {self.symbols.name}: it reads their crash reports.",
        ]
        if self.feed:
            lines.append(f"First upload {self.archive.name} to {self.options.download_url},")
            lines.append(f"then {self.options.appcast} to {self.options.feed_url}.")
        return "\n".join(lines)

    def require_tag(self, output):
        if self.tag not in output.split():
            raise Failure(
                f"the commit does not have the tag {self.tag}, which is the version in {information.PATH}"
            )

    def _notarize_application(self):
        if not self.notary:
            return []
        submitted = MAKING / "notarization.zip"
        return [
            _zip(submitted),
            *self.notary.steps(submitted, Mac.application, notarization.APPLICATION),
        ]

    def _make_image(self):
        """With the stapled application in it, so that this opens without a network wherever it is copied."""
        made = self.making[self.image]
        return [
            *image.steps(Mac.application, self.mac.copy, MAKING / "image", made),
            *(signing.image_steps(made, self.options.identity) if self.notary else []),
            *(self.notary.steps(made, made, notarization.IMAGE) if self.notary else []),
        ]

    def _pack_symbols(self):
        archive.pack(Symbols(Mac.application).folder, self.making[self.symbols])

    def _enter(self, archived):
        return self.feed.steps(self.versions, archived, self.notes, self.options.download_url)

    def _put_in_place(self):
        return [
            *([Command("cp", self.feed.entered, self.feed.new)] if self.feed else []),
            *(Command("mv", self.making[path], path) for path in (self.archive, self.image, self.symbols)),
            Command("rm", "-rf", MAKING),
            *([Command("mv", self.feed.new, self.feed.path)] if self.feed else []),
        ]


def require_clean(output):
    if output.strip():
        raise Failure(f"the checkout has changes: {'; '.join(output.splitlines())}")


def _require_notes(path):
    if path.suffix not in feed.NOTES_SUFFIXES:
        raise Failure(f"--notes {str(path)!r} ends in none of {', '.join(feed.NOTES_SUFFIXES)}")
    try:
        text = path.read_text(encoding="utf-8")
    except (OSError, UnicodeDecodeError) as error:
        raise Failure(
            f"{path} with the release notes cannot be read: {error}; write it, or name another with --notes"
        ) from None
    if not text.strip():
        raise Failure(f"{path} has no release notes")


def _zip(archive):
    return Command("ditto", "-c", "-k", "--sequesterRsrc", "--keepParent", Mac.application, archive)
