"""Who may include what, and which facilities a folder stays away from."""

import collections
import re

from .result import Finding, Result

# The folders of this repository that each one may include, itself among them. tests/ and benchmarks/ may all.
ALLOWED = {
    "base": {"base"},
    "ui": {"base", "ui"},
    "platform": {"base", "ui", "platform"},
    "Kestrune": {"base", "ui", "platform", "Kestrune"},
    "mac": {"base", "ui", "platform", "mac"},
    "sim": {"base", "ui", "platform", "sim"},
    "replay": {"base", "ui", "platform", "Kestrune", "sim", "replay"},
    "desk": {"base", "ui", "platform", "Kestrune", "sim", "replay", "desk"},
}
FOLDERS = set(ALLOWED) | {"tests", "benchmarks"}

# The process starts here: the one place where an implementation of the seam meets the application.
ENTRY_POINT = "mac/main.cpp"

# These compile for macOS without an SDK; there the rest of the standard library is not at hand.
PORTABLE = {"base", "ui", "platform", "Kestrune", "mac"}
NOT_PORTABLE = set(
    "codecvt filesystem format fstream iomanip ios iostream istream locale ostream random regex sstream "
    "streambuf strstream syncstream".split()
)

# Time and order come from outside: from the seam in the application, from the session in the simulation.
WITHOUT_THREADS = {"ui", "platform", "Kestrune", "sim", "replay"}
THREADS = set(
    "atomic barrier condition_variable future latch mutex semaphore shared_mutex stop_token thread".split()
)
WITHOUT_CLOCKS = {"base", "ui", "platform", "Kestrune", "sim", "replay"}
CLOCKS = {"ctime"}

# Only the standard library stands behind these folders.
WITHOUT_SYSTEM_HEADERS = {"base", "ui", "platform", "Kestrune", "sim", "replay"}
STANDARD_HEADERS = set(
    "algorithm any array atomic barrier bit bitset cassert cctype cerrno cfenv cfloat charconv chrono "
    "cinttypes climits clocale cmath codecvt compare complex concepts condition_variable coroutine csetjmp "
    "csignal cstdarg cstddef cstdint cstdio cstdlib cstring ctime cuchar cwchar cwctype deque exception "
    "execution filesystem format forward_list fstream functional future initializer_list iomanip ios iosfwd "
    "iostream istream iterator latch limits list locale map memory memory_resource mutex new numbers numeric "
    "optional ostream queue random ranges ratio regex scoped_allocator semaphore set shared_mutex "
    "source_location span sstream stack stdexcept stop_token streambuf string string_view strstream "
    "syncstream system_error thread tuple type_traits typeindex typeinfo unordered_map unordered_set utility "
    "valarray variant vector version".split()
)

REAL_CLOCK = re.compile(
    r"\b(?:system_clock|steady_clock|high_resolution_clock|utc_clock|file_clock|clock_gettime|gettimeofday"
    r"|mach_absolute_time)\b|(?<![\w.>])(?:std::)?time\s*\(\s*(?:nullptr|NULL|0|&\w+)?\s*\)"
)
REAL_RANDOMNESS = re.compile(
    r"\b(?:random_device|arc4random\w*|getrandom|getentropy)\b|(?<![\w.>])(?:std::)?s?rand\s*\("
)
CONDITIONAL = re.compile(r"^\s*#\s*(?:if|ifdef|ifndef|elif)\b")

# Folder sets, the pattern they stay away from, and what to say about it.
RULES = [
    (WITHOUT_CLOCKS, REAL_CLOCK, "reads a real clock; take the time from the seam or from the session"),
    (
        PORTABLE | {"sim", "replay"},
        REAL_RANDOMNESS,
        "draws real randomness; take a seeded generator from the caller",
    ),
    (
        {"ui", "platform", "Kestrune"},
        CONDITIONAL,
        "compiles conditionally; what differs between systems stands behind the seam",
    ),
]


def run(tree):
    files = [path for path in tree.cpp_files if path.split("/")[0] in FOLDERS]
    findings = []
    for path in files:
        findings += _include_findings(tree, path)
        findings += _code_findings(tree, path)
    arrows = _arrows(tree, files)
    folders = {_folder(path) for path in files}
    examined = f"{len(files)} files, {len(arrows)} arrows between {len(folders)} folders"
    findings += _circle_findings(arrows)
    return Result(examined, findings)


def _include_findings(tree, path):
    folder = path.split("/")[0]
    for line, name, quoted in tree.includes(path):
        problem = _quoted_problem(tree, path, folder, name) if quoted else _angled_problem(folder, name)
        if problem:
            yield Finding(path, line, problem)


def _quoted_problem(tree, path, folder, name):
    first = name.split("/")[0]
    if "/" not in name or first not in FOLDERS or ".." in name.split("/"):
        return f'"{name}" is not rooted at the repository; write the folder first, as in "base/Geometry.h"'
    if not (tree.root / name).is_file():
        return f'"{name}" does not exist with this spelling; correct the path'
    allowed = ALLOWED.get(folder, FOLDERS)
    if path == ENTRY_POINT:
        allowed = allowed | {"Kestrune"}
    if first not in allowed:
        return f'{folder}/ may not include {first}/; it may include {", ".join(sorted(allowed))}'
    return None


def _angled_problem(folder, name):
    if name.split("/")[0] in FOLDERS:
        return f"<{name}> is a file of this repository; include it with quotes"
    if folder in WITHOUT_SYSTEM_HEADERS and name not in STANDARD_HEADERS:
        return f"{folder}/ may include only itself and the C++ standard library, not <{name}>"
    if folder in PORTABLE and name in NOT_PORTABLE:
        return f"<{name}> is outside the portable subset of the standard library that {folder}/ keeps to"
    if folder in WITHOUT_THREADS and name in THREADS:
        return f"{folder}/ runs on one thread; do without <{name}>"
    if folder in WITHOUT_CLOCKS and name in CLOCKS:
        return f"{folder}/ reads no clock; do without <{name}>"
    return None


def _code_findings(tree, path):
    folder = path.split("/")[0]
    rules = [(pattern, message) for folders, pattern, message in RULES if folder in folders]
    for number, line in enumerate(tree.code(path), 1):
        for pattern, message in rules:
            if pattern.search(line):
                yield Finding(path, number, message)


def _circle_findings(arrows):
    """Folders that include one another, in however many steps, are one folder that has two names."""
    arrows = dict(arrows)
    while circle := _shortest_circle(arrows):
        thinnest = min(zip(circle, circle[1:]), key=lambda arrow: (len(arrows[arrow]), arrow))
        for path, line, name in arrows.pop(thinnest):
            problem = f'"{name}" closes a circle of folders, {" -> ".join(circle)}; move one of the two files'
            yield Finding(path, line, problem)


def _arrows(tree, files):
    """The includes that lead from one folder into another: (path, line, name) by the two folders."""
    arrows = collections.defaultdict(list)
    known = set(files)
    for path in files:
        for line, name, quoted in tree.includes(path):
            folders = _folder(path), _folder(name)
            if quoted and name in known and folders[0] != folders[1]:
                arrows[folders].append((path, line, name))
    return arrows


def _folder(path):
    return path.rpartition("/")[0]


def _shortest_circle(arrows):
    """Folders of which each includes the next one, the first again at the end; nothing when there is none."""
    targets = collections.defaultdict(list)
    for start, end in sorted(arrows):
        targets[start].append(end)
    circles = [circle for start in sorted(targets) if (circle := _way_back(targets, start))]
    return min(circles, key=len, default=None)


def _way_back(targets, start):
    ways = collections.deque([[start]])
    seen = set()
    while ways:
        way = ways.popleft()
        for folder in targets.get(way[-1], ()):
            if folder == start:
                return [*way, start]
            if folder not in seen:
                seen.add(folder)
                ways.append([*way, folder])
    return None
