"""The repository as the checks see it: its files, their text, and the builds that were configured."""

import functools
import json
import os
import pathlib

from . import source

SKIPPED_FOLDERS = {"build", "out", "__pycache__"}
HIDDEN_FOLDERS_OF_OURS = {".ci", ".github"}


class Tree:
    def __init__(self, root, builds=()):
        self.root = pathlib.Path(root).resolve()
        self.builds = [pathlib.Path(build).resolve() for build in builds]

    @functools.cached_property
    def files(self):
        """Paths of all files relative to the root, in order, with forward slashes."""
        found = []
        for folder, folders, names in os.walk(self.root):
            folders[:] = [name for name in folders if self._is_ours(name)]
            found += [pathlib.Path(folder, name).relative_to(self.root).as_posix() for name in names]
        return sorted(found)

    def with_suffix(self, *suffixes):
        return [path for path in self.files if path.endswith(suffixes)]

    @property
    def cpp_files(self):
        return self.with_suffix(".h", ".cpp")

    @functools.cache
    def text(self, path):
        return (self.root / path).read_bytes().decode("utf-8", errors="replace")

    @functools.cache
    def code(self, path):
        """The lines of a C++ file without comments and without the contents of its literals."""
        return source.without_comments_and_literals(self.text(path)).split("\n")

    @functools.cache
    def includes(self, path):
        """The include directives of a C++ file: (line, name, quoted)."""
        return source.includes(self.text(path))

    def relative(self, path):
        """Where a file that a compiler saw, perhaps through an include root's link, is in the repository."""
        real = pathlib.Path(os.path.realpath(path))
        return real.relative_to(self.root).as_posix() if real.is_relative_to(self.root) else None

    @functools.cached_property
    def compiled(self):
        """The compiled files of the repository, each with its entry in the first build that compiles it.

        Of several targets that compile a file, the one of the file's own folder counts.
        """
        files, compiled = set(self.files), {}
        for build in self.builds:
            database = build / "compile_commands.json"
            entries = json.loads(database.read_text(encoding="utf-8")) if database.exists() else []
            found = {}
            for entry in entries:
                path = self.relative(pathlib.Path(entry["directory"], entry["file"]))
                if path in files and (path not in found or _is_of_own_folder(path, entry)):
                    found[path] = entry
            compiled = found | compiled
        return compiled

    @staticmethod
    def _is_ours(folder):
        return folder in HIDDEN_FOLDERS_OF_OURS or not (folder in SKIPPED_FOLDERS or folder.startswith("."))


def _is_of_own_folder(path, entry):
    return entry.get("output", "").startswith(path.split("/")[0] + "/")
