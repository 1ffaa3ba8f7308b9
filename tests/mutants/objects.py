"""A build with Ninja, of which a test program can be linked once more around a source file that has changed.

The build and the sources stay as they are: what is compiled and linked for a mutant goes to a folder of its
own.
"""

import collections
import filecmp
import functools
import pathlib
import shlex
import subprocess

import judging

SECONDS_TO_COMPILE = 300


class DoesNotCompile(Exception):
    pass


class Program:
    """A test program: where it is, how it is linked, and how the objects are compiled that it needs."""

    def __init__(self, commands):
        *before, last = [shlex.split(line) for line in commands.splitlines()]
        # Between a command that does nothing and what finds the program's tests.
        self.link = last[2 : last.index("&&", 2)]
        self.path = self.link[self.link.index("-o") + 1]
        self.compiles = {each[each.index("-o") + 1]: each for each in before if each[-2:-1] == ["-c"]}


class Build:
    def __init__(self, root, folder, targets):
        self.root = root
        self.folder = folder
        self.programs = {target: Program(self._ninja("commands", target)) for target in targets}

    def _ninja(self, tool, *arguments):
        command = ["ninja", "-C", str(self.folder), "-t", tool, *arguments]
        return subprocess.run(command, capture_output=True, text=True, check=True).stdout

    @functools.cached_property
    def compiles(self):
        """The command for each object of the programs."""
        return {name: each for program in self.programs.values() for name, each in program.compiles.items()}

    @functools.cached_property
    def _objects(self):
        objects = collections.defaultdict(list)
        real = functools.cache(lambda path: (self.folder / path).resolve())
        for block in self._ninja("deps").split("\n\n"):
            first, *rest = block.splitlines() or [""]
            name = first.split(": #deps", maxsplit=1)[0]
            if name in self.compiles:
                for path in {real(line.strip()) for line in rest}:
                    objects[path].append(name)
        return objects

    def objects_of(self, file):
        """The programs' objects that a file of the repository goes into, itself or by being included.

        Those of several files at a time come last, as they take the longest to compile.
        """
        objects = self._objects.get((self.root / file).resolve(), [])
        return sorted(objects, key=lambda name: "/Unity/" in name)


class Trial:
    """What a build would be with a mutant in it, as far as somebody asks."""

    def __init__(self, build, mutant, folder):
        self.build = build
        self.mutant = mutant
        self.folder = folder
        self.original = build.root / mutant.file
        self.source = folder / "tree" / mutant.file
        self._is_changed = {}

    def write(self):
        self.source.parent.mkdir(parents=True, exist_ok=True)
        self.source.write_bytes(self.mutant.apply(self.original.read_bytes()))

    def is_different(self):
        """Whether any code is other than without the mutant."""
        return any(self._changes(name) for name in self.build.objects_of(self.mutant.file))

    def link(self, target):
        """The program with the mutant in it, or None when that is no other one."""
        program = self.build.programs[target]
        names = [name for name in self.build.objects_of(self.mutant.file) if name in program.compiles]
        changed = [name for name in names if self._changes(name)]
        if not changed:
            return None
        linked = self.folder / "bin" / target
        linked.parent.mkdir(exist_ok=True)
        known = {name: str(self._object(name)) for name in changed} | {program.path: str(linked)}
        command = [known.get(word, word) for word in program.link]
        # Of an archive nothing is taken for what is there already.
        first = next(index for index, word in enumerate(command) if word.endswith(".o"))
        command[first:first] = [known[name] for name in changed if name not in program.link]
        status, output = judging.run(command, cwd=self.build.folder)
        if status != 0:
            raise DoesNotCompile(output)
        return linked

    def _object(self, name):
        return self.folder / "objects" / name

    def _changes(self, name):
        if name not in self._is_changed:
            made = self._object(name)
            made.parent.mkdir(parents=True, exist_ok=True)
            status, output = judging.run(self._compile(name), SECONDS_TO_COMPILE, cwd=self.build.folder)
            if status != 0:
                raise DoesNotCompile(output)
            self._is_changed[name] = not filecmp.cmp(made, self.build.folder / name, shallow=False)
        return self._is_changed[name]

    def _compile(self, name):
        *command, source = self.build.compiles[name]
        command = [word.replace(name, str(self._object(name))) for word in command]
        first = next(index for index, word in enumerate(command) if word.startswith("-I"))
        # What is left unused then is no reason not to compile.
        command[first:first] = [f"-I{self.folder / 'tree'}", "-w"]
        return [*command, str(self._source_of(name, pathlib.Path(source)))]

    # Several files may be compiled as one, by a file that includes them.
    def _source_of(self, name, source):
        if source.resolve() == self.original.resolve():
            return self.source
        if "Unity" not in source.parts:
            return source
        text = source.read_text(encoding="utf-8")
        joined = self._object(name).with_name(source.name)
        joined.write_text(text.replace(str(self.original), str(self.source)), encoding="utf-8")
        return joined
