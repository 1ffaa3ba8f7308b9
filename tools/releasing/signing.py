"""Signing from the inside out, so that each signature covers what was signed before it."""

import re

from .parameters import AD_HOC
from .steps import Command, Failure

# An ad-hoc signature has no team, so library validation would refuse the framework.
AD_HOC_ENTITLEMENTS = "tools/releasing/ad-hoc.entitlements"

# What is code within the framework. `codesign --deep` would sign it too, with the application's entitlements.
NESTED_CODE = ("Autoupdate", "Updater.app")

# As `security find-identity` lists them: a number, a hash, a name.
CERTIFICATE = re.compile(r'\) (?P<hash>[0-9A-F]{40}) "(?P<name>.*)"')


def search(identity):
    """Before a long build, whether the keychain has what would sign it."""

    def require(output):
        # As codesign takes it: a part of the name is enough.
        certificates = CERTIFICATE.finditer(output)
        if not any(identity == found["hash"] or identity in found["name"] for found in certificates):
            raise Failure(
                f"the keychain has no certificate {identity!r} that signs code; "
                "`security find-identity -p codesigning` lists those it has"
            )

    if identity == AD_HOC:
        return []
    return [Command("security", "find-identity", "-p", "codesigning", judge=require)]


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
