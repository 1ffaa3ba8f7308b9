"""A zip archive of a bundle, the same for the same contents: no times, no umask, no order of a folder."""

import os
import stat
import zipfile

UNIX = 3
# The first that a zip archive can tell.
TIME = (1980, 1, 1, 0, 0, 0)
LEVEL = 9


def pack(bundle, archive):
    """Under its name it is whole."""
    incomplete = archive.with_name(f"{archive.name}.incomplete")
    with zipfile.ZipFile(incomplete, "w") as packed:
        for path in sorted([bundle, *bundle.rglob("*")], key=lambda path: path.parts):
            _add(packed, path, path.relative_to(bundle.parent).as_posix())
    incomplete.replace(archive)


def _add(packed, path, name):
    if path.is_symlink():
        _write(packed, name, stat.S_IFLNK | 0o755, os.readlink(path).encode())
    elif path.is_dir():
        _write(packed, f"{name}/", stat.S_IFDIR | 0o755, b"")
    else:
        is_program = path.stat().st_mode & stat.S_IXUSR
        _write(packed, name, stat.S_IFREG | (0o755 if is_program else 0o644), path.read_bytes())


def _write(packed, name, mode, data):
    entry = zipfile.ZipInfo(name, TIME)
    entry.create_system = UNIX
    entry.external_attr = mode << 16
    packed.writestr(entry, data, zipfile.ZIP_DEFLATED if stat.S_ISREG(mode) else zipfile.ZIP_STORED, LEVEL)
