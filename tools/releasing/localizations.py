"""Every language of the sources has to be in the bundle: the build names their files one by one."""

import pathlib

from .steps import Failure

SOURCES = pathlib.Path("Kestrune/Resources")


def require_all(application):
    resources = application / "Contents/Resources"
    for path in sorted(SOURCES.glob("*.lproj/**/*")):
        copy = resources / path.relative_to(SOURCES)
        if path.is_file() and not (copy.is_file() and copy.read_bytes() == path.read_bytes()):
            raise Failure(f"{path} is not in {resources} as it is; name it in mac/CMakeLists.txt")
