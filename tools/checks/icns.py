"""The container of a Mac application icon: a magic word and a length, then one entry after the other."""

import struct

MAGIC = b"icns"


class NotReadable(ValueError):
    """Says in a few words what is wrong with the file."""


def write(entries):
    """The file with the given entries, {four-letter type: PNG}. Lengths include their own eight bytes."""
    body = b"".join(
        kind.encode("ascii") + struct.pack(">I", 8 + len(data)) + data for kind, data in entries.items()
    )
    return MAGIC + struct.pack(">I", 8 + len(body)) + body


def read(data):
    """The entries, {four-letter type: contents}."""
    if data[:4] != MAGIC or len(data) < 8:
        raise NotReadable("is no icns file")
    if struct.unpack_from(">I", data, 4)[0] != len(data):
        raise NotReadable("does not have the length that it says")
    entries, position = {}, 8
    while position < len(data):
        length = struct.unpack_from(">I", data, position + 4)[0] if position + 8 <= len(data) else 0
        if length < 8 or position + length > len(data):
            raise NotReadable("has an entry that does not end inside the file")
        kind = data[position : position + 4].decode("latin-1")
        if kind in entries:
            raise NotReadable(f"holds {kind} twice")
        entries[kind] = data[position + 8 : position + length]
        position += length
    return entries
