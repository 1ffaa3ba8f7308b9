"""A build with Ninja, of which a test program can be linked once more around a source file that has changed.

The build and the sources stay as they are: what is compiled and linked for a mutant goes to a folder of its
own.
"""

import collections
import filecmp
import functools
import pathlib
import re
import shlex
import subprocess

import judging

SECONDS_TO_COMPILE = 300
# Of an object of several files that are compiled as one, in those of a small file.
JOINED_EFFORT = 8
# What the linker says, asked twice, of a member that it takes out of an archive.
MEMBER = re.compile(r"^\((?P<archive>.*)\)(?P<member>.*)$", re.MULTILINE)


class DoesNotCompile(Exception):
    pass


class Program:
    """A test program: where it is, how it is linked, and how the objects are compiled that it is made of."""

    def __init__(self, folder, commands):
        *before, last = [shlex.split(line) for line in commands.splitlines()]
        # Between a command that does nothing and what finds the program's tests.
        self.link = last[2 : last.index("&&", 2)]
        self.path = self.link[self.link.index("-o") + 1]
        self.compiles = {each[each.index("-o") + 1]: each for each in before if each[-2:-1] == ["-c"]}
        members = self._members(folder)
        self.objects = {name for name in self.compiles if name in self.link or _archived(name) in members}

    def _members(self, folder):
        """What the linker takes out of archives, as `_archived` names it."""
        status, output = judging.run([*self.link, "-Wl,-t,-t", "-o", "/dev/null"], cwd=folder)
        if status != 0:
            raise SystemExit(f"{self.path} cannot be linked:\n{output[-2000:]}")
        return {(match["archive"], match["member"]) for match in MEMBER.finditer(output)}


def _archived(name):
    """The archive that an object is put into, if any, and what it is called there."""
    folder, _, rest = name.partition("CMakeFiles/")
    target = rest.split(".dir/")[0]
    return f"{folder}lib{target}.a", pathlib.PurePath(name).name


class Build:
    def __init__(self, root, folder, targets):
        self.root = root
        self.folder = folder
        self.programs = {target: Program(folder, self._ninja("commands", target)) for target in targets}

    def _ninja(self, tool, *arguments):
        command = ["ninja", "-C", str(self.folder), "-t", tool, *arguments]
        return subprocess.run(command, capture_output=True, text=True, check=True).stdout

    @functools.cached_property
    def compiles(self):
        """The command for each object of the programs."""
        return {name: each for program in self.programs.values() for name, each in program.compiles.items()}

    @functools.cached_property
    def _linked(self):
        return {name for program in self.programs.values() for name in program.objects}

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

    def effort_of(self, file):
        """What it takes to compile the objects that a file goes into, a small one being 1."""
        return sum(JOINED_EFFORT if "/Unity/" in name else 1 for name in self.objects_of(file))

    def size_of(self, file):
        return (self.root / file).stat().st_size

    def objects_of(self, file):
        """The programs' objects that a file of the repository goes into, itself or by being included.

        When no program is made of any of them, those that are compiled for one.
        """
        compiled = sorted(self._objects.get((self.root / file).resolve(), []))
        return [name for name in compiled if name in self._linked] or compiled


class Trial:
    """What a build would be with a mutant in it, as far as somebody asks."""

    def __init__(self, build, mutant, folder):
        self.build = build
        self.mutant = mutant
        self.folder = folder
        self.original = build.root / mutant.file
        self.source = folder / "tree" / mutant.file
        self._is_changed = {}
        self._programs = {}

    def write(self):
        self.source.parent.mkdir(parents=True, exist_ok=True)
        self.source.write_bytes(self.mutant.apply(self.original.read_bytes()))

    def is_different(self):
        """Whether any code is other than without the mutant."""
        return any(self._changes(name) for name in self.build.objects_of(self.mutant.file))

    def is_different_when_optimised(self):
        """Whether any code stays other than without the mutant when the compiler looks for what it does."""
        changed = [name for name, is_changed in self._is_changed.items() if is_changed]
        return any(self._changes_when_optimised(name) for name in changed)

    def link(self, target):
        """The program with the mutant in it, or None when that is no other one."""
        if target not in self._programs:
            self._programs[target] = self._link(target)
        return self._programs[target]

    def _link(self, target):
        program = self.build.programs[target]
        names = [name for name in self.build.objects_of(self.mutant.file) if name in program.objects]
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
            self._compile(name, made)
            self._is_changed[name] = not filecmp.cmp(made, self.build.folder / name, shallow=False)
        return self._is_changed[name]

    def _changes_when_optimised(self, name):
        objects = [self._object(name).with_suffix(suffix) for suffix in (".mutant", ".original")]
        self._compile(name, objects[0], "-O2")
        *command, source = self.build.compiles[name]
        self._run([*self._into(objects[1], name, command), "-w", "-O2", source])
        return not filecmp.cmp(*objects, shallow=False)

    def _compile(self, name, made, *flags):
        *command, source = self.build.compiles[name]
        command = self._into(made, name, command)
        first = next(index for index, word in enumerate(command) if word.startswith("-I"))
        # What is left unused then is no reason not to compile.
        command[first:first] = [f"-I{self.folder / 'tree'}", "-w"]
        made.parent.mkdir(parents=True, exist_ok=True)
        self._run([*command, *flags, str(self._source_of(name, pathlib.Path(source)))])

    def _into(self, made, name, command):
        return [word.replace(name, str(made)) for word in command]

    def _run(self, command):
        status, output = judging.run(command, SECONDS_TO_COMPILE, cwd=self.build.folder)
        if status != 0:
            raise DoesNotCompile(output)

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
