"""Signing from the inside out, so that each signature covers what was signed before it."""

import re

from .parameters import AD_HOC
from .steps import Command, Failure

# An ad-hoc signature has no team, so library validation would refuse the framework.
AD_HOC_ENTITLEMENTS = "tools/releasing/ad-hoc.entitlements"

# What is code within the framework. `codesign --deep` would sign it too, with the application's entitlements.
NESTED_CODE = ("Autoupdate", "Updater.app")

# A line of what `security find-identity` prints: the SHA-1 of a certificate and its name.
CERTIFICATE = re.compile(r'^ *\d+\) ([0-9A-F]{40}) "(.*)"', re.MULTILINE)


def certificate(identity, *options):
    """Before a long build: whether the keychain has what codesign will look for, a part of a name or the
    whole SHA-1. With "-v" it has to be one that is trusted and has not run out, which a certificate of one's
    own need not be to sign."""
    if identity == AD_HOC:
        return []

    def require(output):
        if not any(
            identity in (sha1, sha1.lower()) or identity in name for sha1, name in CERTIFICATE.findall(output)
        ):
            raise Failure(
                f"the keychain has no certificate {identity!r} to sign with; {command} lists those it has"
            )

    command = Command("security", "find-identity", *options, "-p", "codesigning", judge=require)
    return [command]


def for_debugging(application, identity):
    """Without the hardened runtime, which lets no debugger in, and a time stamp, which wants a network."""
    return [
        Command("codesign", "--force", "--sign", identity, "--timestamp=none", application),
        Command("codesign", "--verify", "--strict", "--verbose=2", application),
    ]


def steps(application, framework, identity):
    """`framework` is the one inside the application, or None without."""
    is_ad_hoc = identity == AD_HOC
    timestamp = "--timestamp=none" if is_ad_hoc else "--timestamp"
    sign = ["codesign", "--force", "--sign", identity, "--options", "runtime", timestamp]
    entitlements = ["--entitlements", AD_HOC_ENTITLEMENTS] if is_ad_hoc else []
    nested = []
    if framework:
        version = framework / "Versions/B"
        nested = [*(version / name for name in NESTED_CODE), version]
    return [
        *(Command(*sign, path) for path in nested),
        Command(*sign, *entitlements, application),
        Command("codesign", "--verify", "--strict", "--deep", "--verbose=2", application),
    ]


def image_steps(image, identity):
    return [
        Command("codesign", "--sign", identity, "--timestamp", image),
        Command("codesign", "--verify", "--strict", "--verbose=2", image),
    ]
