"""Seals from the inside out: nested code before what holds it, whose seal names it."""

import dataclasses
import os
import pathlib
import plistlib

from ..steps import Failure
from . import machofile, resources, signature


@dataclasses.dataclass(frozen=True)
class Seal:
    """What a seal is known by: the cdhash of each half, in the order of the file."""

    hashes: tuple  # of (processor, cdhash)

    @property
    def cdhash(self):
        """The one that a Mac of today would run."""
        return dict(self.hashes).get("arm64", self.hashes[0][1])

    @property
    def requirement(self):
        return " or ".join(f'cdhash H"{cdhash.hex()}"' for _, cdhash in self.hashes)


@dataclasses.dataclass(frozen=True)
class Bundle:
    folder: pathlib.Path  # that the seal covers
    information: pathlib.Path
    program: str  # in the folder

    @property
    def properties(self):
        try:
            return plistlib.loads(self.information.read_bytes())
        except Exception as error:  # The library passes on whatever its parsers raise.
            raise Failure(f"{self.information} cannot be read: {error}") from None


def seal(path):
    """Seals a bundle or a program by itself, with all code in it."""
    path = pathlib.Path(path)
    if path.is_dir():
        return _seal_bundle(_bundle_at(path))
    return _seal_program(path)


def _bundle_at(path):
    if path.suffix == ".framework":
        version = path / "Versions" / _link(path / "Versions/Current")
        return _bundle(version, version / "Resources/Info.plist", "")
    contents = path / "Contents"
    return _bundle(contents, contents / "Info.plist", "MacOS/")


def _bundle(folder, information, programs):
    if not information.is_file():
        raise Failure(f"{information} is missing: it would say what is to be sealed")
    bundle = Bundle(folder, information, "")
    for key in ("CFBundleExecutable", "CFBundleIdentifier"):
        if not isinstance(bundle.properties.get(key), str):
            raise Failure(f"{information} has no {key}")
    return dataclasses.replace(bundle, program=programs + bundle.properties["CFBundleExecutable"])


def _seal_bundle(bundle):
    contents = resources.Contents(bundle.folder, bundle.program)
    nested = {path: seal(bundle.folder / path) for path in contents.nested}
    sealed = resources.code_resources(contents, nested)
    folder = bundle.folder / resources.SEAL
    folder.mkdir(exist_ok=True)
    for stale in folder.iterdir():
        stale.unlink()
    (folder / "CodeResources").write_bytes(sealed)
    identifier = bundle.properties["CFBundleIdentifier"]
    return _sign(bundle.folder / bundle.program, identifier, bundle.information.read_bytes(), sealed)


def _seal_program(path):
    """One without a bundle; an Info.plist may be in the program itself."""
    halves = _halves(path)
    information = halves[0].section(b"__TEXT", b"__info_plist")
    identifier = path.name
    if information:
        identifier = plistlib.loads(information).get("CFBundleIdentifier", identifier)
    return _sign(path, identifier, information, b"")


def _sign(path, identifier, information, sealed):
    halves = _halves(path)
    hashes = []
    try:
        for half in halves:
            hashes.append((half.processor, signature.sign(half, identifier, information, sealed)))
    except Failure as failure:
        raise Failure(f"{path} {failure}") from None
    _replace(path, machofile.joined(halves, machofile.is_universal(path.read_bytes())))
    return Seal(tuple(hashes))


def _halves(path):
    try:
        if not path.is_file():
            raise Failure("is missing")
        data = path.read_bytes()
        if not machofile.is_mach_o(data):
            raise Failure("lies among code and is no Mach-O file")
        return machofile.halves_of(data)
    except Failure as failure:
        raise Failure(f"{path} {failure}") from None


def _replace(path, data):
    """In a new file: the kernel of a Mac remembers the seal of the one that it has seen."""
    new = path.with_name(f"{path.name}.sealed")
    new.write_bytes(data)
    new.chmod(path.stat().st_mode)
    os.replace(new, path)


def _link(path):
    if not path.is_symlink():
        raise Failure(f"{path} is no link to the version of the framework that counts")
    return os.readlink(path)
