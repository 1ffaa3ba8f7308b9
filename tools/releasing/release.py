"""A release: checked, built, notarized, archived, signed for Sparkle and entered into the appcast."""

import email.utils
import pathlib

from . import appcast, information, sparkle
from .mac import Mac
from .parameters import AD_HOC, NO_SPARKLE, flag
from .steps import Command, Failure, Work

FOLDER = pathlib.Path("out/release")
FOR_NOTARIZATION = FOLDER / "notarization.zip"

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
            wanted.append("sign_update")
    missing = [flag(name) for name in wanted if not getattr(options, name)]
    if missing:
        raise Failure(f"missing {', '.join(missing)}; --help explains the parameters")
    if options.identity == AD_HOC and options.keychain_profile:
        raise Failure("an ad-hoc signature cannot be notarized; leave out --keychain-profile")
    unused = [flag(name) for name in (*UPDATES, "sign_update") if getattr(options, name)]
    if options.sparkle == NO_SPARKLE and unused:
        raise Failure(f"without Sparkle there are no updates; leave out {', '.join(unused)}")


class Release:
    def __init__(self, options):
        self.options = options
        self.mac = Mac(["xcrun"])
        self.versions = information.versions()
        self.tag = f"v{self.versions.short}"
        self.archive = FOLDER / f"Kestrune-{self.versions.short}.zip"
        self.has_updates = options.sparkle != NO_SPARKLE
        if self.has_updates:
            self.sign_update = options.sign_update or sparkle.pinned().sign_update
            self.address = f"{options.download_url.rstrip('/')}/{self.archive.name}"
            self.signature = ""
            appcast.require_newer(options.appcast, self.versions.build)

    def steps_before(self):
        return [
            Command("git", "status", "--porcelain", judge=require_clean),
            Command("git", "tag", "--points-at", "HEAD", judge=self.require_tag),
        ]

    def make(self):
        """The build as a command of its own; what that runs is application.steps()."""
        # All of them, also those that are empty: make would take what the environment has otherwise.
        names = ("identity", "sparkle", "feed_url", "public_key")
        values = [f"{name.upper()}={getattr(self.options, name) or ''}" for name in names]
        return Command("make", "app", *values)

    def steps_after(self):
        is_notarized = self.options.identity != AD_HOC
        return [
            Command("mkdir", "-p", FOLDER),
            Command("rm", "-f", FOR_NOTARIZATION, self.archive),
            *(self._notarization() if is_notarized else []),
            _zip(self.archive),
            *(self._entry() if self.has_updates else []),
        ]

    def closing_words(self):
        lines = [f"{self.archive} is ready. Nothing has been published."]
        if self.has_updates:
            lines.append(f"First upload it to {self.address},")
            lines.append(f"then {self.options.appcast} to {self.options.feed_url}.")
        return "\n".join(lines)

    def require_tag(self, output):
        if self.tag not in output.split():
            raise Failure(
                f"the commit does not have the tag {self.tag}, which is the version in {information.PATH}"
            )

    def _notarization(self):
        submit = ["xcrun", "notarytool", "submit", FOR_NOTARIZATION]
        return [
            _zip(FOR_NOTARIZATION),
            Command(*submit, "--keychain-profile", self.options.keychain_profile, "--wait"),
            # Fails when the notarization was refused: then there is no ticket to staple.
            Command("xcrun", "stapler", "staple", Mac.application),
            Command("xcrun", "stapler", "validate", Mac.application),
        ]

    def _entry(self):
        return [
            Command(self.sign_update, self.archive, judge=self._take_signature),
            Work(
                f"add an item for {self.versions.short}, build {self.versions.build}, at {self.address} "
                f"to {self.options.appcast}",
                self._add_item,
            ),
        ]

    def _take_signature(self, output):
        self.signature = appcast.signature_in(output, self.archive.stat().st_size)

    def _add_item(self):
        item = appcast.Item(
            short_version=self.versions.short,
            build=self.versions.build,
            minimum_system=self.versions.minimum_system,
            address=self.address,
            length=self.archive.stat().st_size,
            signature=self.signature,
            date=email.utils.formatdate(usegmt=True),
        )
        appcast.add(self.options.appcast, item)


def require_clean(output):
    if output.strip():
        raise Failure(f"the checkout has changes: {'; '.join(output.splitlines())}")


def _zip(archive):
    return Command("ditto", "-c", "-k", "--sequesterRsrc", "--keepParent", Mac.application, archive)
