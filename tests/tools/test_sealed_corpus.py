"""What the fuzzers of the checker of seals start from is what the signer makes today."""

import pathlib
import tempfile
import unittest

from sealed_corpus import BUNDLE, CORPUS, LISTS, write_corpus
from trees import REPOSITORY

KEPT = REPOSITORY / "tests/fuzz"


def files_in(folder):
    return {
        path.relative_to(folder).as_posix(): path.read_bytes() for path in folder.rglob("*") if path.is_file()
    }


class SealedCorpus(unittest.TestCase):
    def test_is_what_the_signer_writes(self):
        with tempfile.TemporaryDirectory() as temporary:
            write_corpus(pathlib.Path(temporary))
            for folder in (CORPUS, LISTS, BUNDLE):
                written = files_in(pathlib.Path(temporary, folder))
                self.assertTrue(written)
                self.assertEqual(files_in(KEPT / folder), written, "run tests/tools/sealed_corpus.py")


if __name__ == "__main__":
    unittest.main()
