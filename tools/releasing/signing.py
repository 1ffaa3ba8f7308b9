"""Signing from the inside out, so that each signature covers what was signed before it."""

from .parameters import AD_HOC
from .steps import Command

# An ad-hoc signature has no team, so library validation would refuse the framework.
AD_HOC_ENTITLEMENTS = "tools/releasing/ad-hoc.entitlements"

# What is code within the framework. `codesign --deep` would sign it too, with the application's entitlements.
NESTED_CODE = ("Autoupdate", "Updater.app")


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
