"""Which mutants are judged: a part of them that a seed chooses, whatever else has changed meanwhile.

Whether a mutant is drawn depends on the seed and on what it is called, not on those of other files.
"""

import collections
import hashlib
import math

# Of each file so many are drawn before the next one's: to find its mutants takes longer than to judge one.
FROM_A_FILE = 3


def _chance(seed, *words):
    digest = hashlib.blake2b(repr((seed, *words)).encode(), digest_size=8).digest()
    return (int.from_bytes(digest, "big") + 1) / (2**64 + 1)


def in_order(files, seed, size_of):
    """The files at random, the longer ones sooner."""
    return sorted(files, key=lambda file: -math.log(_chance(seed, file)) / max(1, size_of(file)))


def drawn(files, seed, places_in):
    """The mutants of all files, a few of each at a time; `places_in` gives a file's, with their places."""
    rest = collections.deque()
    for file in files:
        places = places_in(file)
        mutants = sorted(places, key=lambda mutant: _chance(seed, places[mutant]))
        yield from mutants[:FROM_A_FILE]
        rest.append(mutants[FROM_A_FILE:])
    while rest:
        mutants = rest.popleft()
        yield from mutants[:FROM_A_FILE]
        if len(mutants) > FROM_A_FILE:
            rest.append(mutants[FROM_A_FILE:])


class Sample:
    """The mutants of a group, one after the other, until enough of them count."""

    def __init__(self, group, mutants, count):
        self.group = group
        self.killed = 0
        self.survived = 0
        self._mutants = mutants
        self._count = count
        self._pending = 0

    def next(self):
        """A mutant whose verdict is asked for next, or none when there is no need now."""
        if self.killed + self.survived + self._pending >= self._count:
            return None
        mutant = next(self._mutants, None)
        self._pending += mutant is not None
        return mutant

    def count(self, verdict):
        """Takes a verdict: whether the mutant was killed, or None when it does not count."""
        self._pending -= 1
        self.killed += verdict is True
        self.survived += verdict is False
