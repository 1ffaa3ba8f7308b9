"""Every file of a language has to be in the bundle: the build takes those that it has a pattern for."""

import pathlib

from .steps import Failure

SOURCES = pathlib.Path("Kestrune/Resources")


def require_all(application):
    resources = application / "Contents/Resources"
    for path in sorted(SOURCES.glob("*.lproj/**/*")):
        copy = resources / path.relative_to(SOURCES)
        if path.is_file() and not (copy.is_file() and copy.read_bytes() == path.read_bytes()):
            raise Failure(f"{path} is not in {resources} as it is; mac/CMakeLists.txt says what is taken")
