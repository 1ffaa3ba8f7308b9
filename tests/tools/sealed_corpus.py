#!/usr/bin/env python3
"""Writes the corpora of sealed programs and of lists of resources, and the bundle of both, for fuzzers.

sealed_corpus.py [FOLDER]; tests/fuzz without one.
"""

import pathlib
import plistlib
import shutil
import sys
import tempfile

from tiny_bundles import make_application, put_program, write
from trees import REPOSITORY

from releasing import sealing

KINDS = ("arm64", "imports", "universal")
CORPUS, LISTS, BUNDLE = "corpus/code-seal", "corpus/resource-seal", "sealed/Tiny.app"


def write_corpus(folder):
    with tempfile.TemporaryDirectory() as temporary:
        app = make_application(pathlib.Path(temporary, "Tiny.app"))
        program = app / "Contents/MacOS/Tiny"
        put_program(program.with_name("other"), "x86_64")
        for kind in KINDS:
            put_program(program, kind)
            sealing.seal(app)
            write(folder / CORPUS / f"{kind}.macho", program.read_bytes())
        # The program is what a fuzzer puts in.
        program.unlink()
        shutil.rmtree(folder / BUNDLE, ignore_errors=True)
        shutil.copytree(app, folder / BUNDLE, symlinks=True)
        write_lists(folder / LISTS, app / "Contents")


def write_lists(folder, contents):
    """In both forms of property lists, and the Info.plist beside them."""
    resources = (contents / "_CodeSignature/CodeResources").read_bytes()
    write(folder / "xml.plist", resources)
    write(folder / "binary.plist", plistlib.dumps(plistlib.loads(resources), fmt=plistlib.FMT_BINARY))
    write(folder / "information.plist", (contents / "Info.plist").read_bytes())


if __name__ == "__main__":
    write_corpus(pathlib.Path(sys.argv[1]) if len(sys.argv) > 1 else REPOSITORY / "tests/fuzz")
