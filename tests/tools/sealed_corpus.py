#!/usr/bin/env python3
"""Writes the corpus of sealed programs, and the bundle that they are sealed in, for a fuzzer.

sealed_corpus.py [FOLDER]; tests/fuzz without one.
"""

import pathlib
import shutil
import sys
import tempfile

from tiny_bundles import IDENTIFIER, information, put_program, write
from trees import REPOSITORY

from releasing import sealing

KINDS = ("arm64", "imports", "universal")
CORPUS, BUNDLE = "corpus/code-seal", "sealed/Tiny.app"


def write_corpus(folder):
    with tempfile.TemporaryDirectory() as temporary:
        app = pathlib.Path(temporary, "Tiny.app")
        program = app / "Contents/MacOS/Tiny"
        write(app / "Contents/Info.plist", information("Tiny", IDENTIFIER))
        for kind in KINDS:
            put_program(program, kind)
            sealing.seal(app)
            write(folder / CORPUS / f"{kind}.macho", program.read_bytes())
        # The program is what the fuzzer puts in.
        shutil.rmtree(program.parent)
        shutil.copytree(app, folder / BUNDLE, dirs_exist_ok=True)


if __name__ == "__main__":
    write_corpus(pathlib.Path(sys.argv[1]) if len(sys.argv) > 1 else REPOSITORY / "tests/fuzz")
