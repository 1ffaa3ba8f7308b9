"""An ad-hoc signature of a bundle, made without a Mac: what `codesign --sign -` writes, without the hardened
runtime and so without an entitlement against library validation.

Who reads such seals is tests/macho, which shares nothing with this. No Mac has seen one yet.
"""

from .bundles import seal

__all__ = ["seal"]
