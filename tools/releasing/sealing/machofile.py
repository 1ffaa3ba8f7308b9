"""Mach-O files as far as signing changes them: the halves, and the load commands around the signature.

Takes for granted what a linker wrote; a file that is something else is refused, a damaged one perhaps not.
"""

import dataclasses
import struct

from ..steps import Failure

UNIVERSAL = 0xCAFEBABE
PROGRAM = 0xFEEDFACF
EXECUTABLE = 2
# What any Mach-O file begins with, also those for processors of 32 bits or with the other order of bytes, and
# universal ones with room for halves of more than 4 GB.
BEGINNINGS = {
    struct.pack(order, magic)
    for magic in (UNIVERSAL, UNIVERSAL + 1, PROGRAM, PROGRAM - 1)
    for order in ("<I", ">I")
}

PROCESSORS = {0x0100000C: "arm64", 0x01000007: "x86_64"}
# How far apart the halves of a universal file are where the file does not say, as a power of two.
ALIGNMENT = 14

SEGMENT, CODE_SIGNATURE, LOAD_COMMANDS = 0x19, 0x1D, 32
# The load commands that tell the system, and where in them; the second is written for macOS before 10.14.
SYSTEMS = ((0x32, 12), (0x24, 8))
PAGE = 0x4000  # of memory, on the processor that has the larger ones


def is_mach_o(data):
    magic = struct.pack("<I", PROGRAM)
    return len(data) >= LOAD_COMMANDS and (is_universal(data) or data.startswith(magic))


def is_universal(data):
    return struct.unpack_from(">I", data)[0] == UNIVERSAL


@dataclasses.dataclass
class Half:
    """The program for one processor. Its signature is the last thing in it."""

    data: bytearray
    alignment: int = ALIGNMENT

    def __post_init__(self):
        magic, self.kind, self.subtype, self.type, count = struct.unpack_from("<IIIII", self.data)
        if magic != PROGRAM or self.kind not in PROCESSORS:
            raise Failure(f"is a program for no processor of macOS 13 ({magic:#x}, {self.kind:#x})")
        self.commands, place = [], LOAD_COMMANDS  # the kind of each, and where it is
        for _ in range(count):
            kind, size = struct.unpack_from("<II", self.data, place)
            self.commands.append((kind, place))
            place += size
        self._signature = self._command(CODE_SIGNATURE)
        if self._signature is None:
            self._signature = self._add_signature(count, place)

    @property
    def processor(self):
        return PROCESSORS[self.kind]

    @property
    def is_executable(self):
        return self.type == EXECUTABLE

    @property
    def code(self):
        """What pages are hashed of: everything before the signature."""
        return bytes(self.data[: self._code_size])

    @property
    def signature(self):
        return bytes(self.data[self._code_size :])

    @property
    def minimum_system(self):
        """The first macOS that runs it, as in 13.0."""
        for kind, offset in SYSTEMS:
            place = self._command(kind)
            if place is not None:
                version = struct.unpack_from("<I", self.data, place + offset)[0]
                major, minor, patch = version >> 16, version >> 8 & 0xFF, version & 0xFF
                return f"{major}.{minor}.{patch}" if patch else f"{major}.{minor}"
        raise Failure(f"does not say which macOS it is for ({self.processor})")

    @property
    def text_size(self):
        return struct.unpack_from("<Q", self.data, self._segment(b"__TEXT") + 48)[0]

    def section(self, segment, name):
        """The bytes of a section, or none."""
        for start in self._section_headers(self._segment(segment)):
            if self.data[start : start + 16].rstrip(b"\0") == name:
                size, offset = struct.unpack_from("<QI", self.data, start + 40)
                return bytes(self.data[offset : offset + size])
        return b""

    def make_room(self, size):
        """Says in the load commands how large the signature will be: before they are hashed."""
        start = self._code_size
        struct.pack_into("<I", self.data, self._signature + 12, size)
        link_edit = self._segment(b"__LINKEDIT")
        offset = struct.unpack_from("<Q", self.data, link_edit + 40)[0]
        file_size = start + size - offset
        struct.pack_into("<Q", self.data, link_edit + 32, _aligned(file_size, PAGE))
        struct.pack_into("<Q", self.data, link_edit + 48, file_size)

    def sign(self, signature):
        self.data[self._code_size :] = signature

    def _add_signature(self, count, place):
        """A load command behind the others, at `place`, for a half that never had a signature."""
        size = 16
        if place + size > min(offset for offset in self._sections() if offset):
            raise Failure(f"has no room for a code signature ({self.processor}); link with -headerpad")
        self.data += bytes(-len(self.data) % size)
        struct.pack_into("<IIII", self.data, place, CODE_SIGNATURE, size, len(self.data), 0)
        struct.pack_into("<II", self.data, 16, count + 1, place + size - LOAD_COMMANDS)
        return place

    def _sections(self):
        """Where the sections start in the file, 0 for those that are filled with zeros."""
        for kind, segment in self.commands:
            if kind == SEGMENT:
                for header in self._section_headers(segment):
                    yield struct.unpack_from("<I", self.data, header + 48)[0]

    def _section_headers(self, segment):
        first, count = segment + 72, struct.unpack_from("<I", self.data, segment + 64)[0]
        return range(first, first + 80 * count, 80)

    @property
    def _code_size(self):
        return struct.unpack_from("<I", self.data, self._signature + 8)[0]

    def _command(self, wanted):
        """Where the first load command of a kind starts, None without one."""
        return next((place for kind, place in self.commands if kind == wanted), None)

    def _segment(self, name):
        for kind, place in self.commands:
            if kind == SEGMENT and self.data[place + 8 : place + 24].rstrip(b"\0") == name:
                return place
        raise Failure(f"has no segment {name.decode()} ({self.processor})")


def halves_of(data):
    if not is_universal(data):
        return [Half(bytearray(data))]
    halves = []
    for index in range(struct.unpack_from(">I", data, 4)[0]):
        _, _, offset, size, alignment = struct.unpack_from(">IIIII", data, 8 + 20 * index)
        halves.append(Half(bytearray(data[offset : offset + size]), alignment))
    return halves


def joined(halves, is_universal):
    if not is_universal:
        (half,) = halves
        return bytes(half.data)
    table, body = struct.pack(">II", UNIVERSAL, len(halves)), b""
    first = position = len(table) + 20 * len(halves)
    for half in halves:
        start = _aligned(position, 1 << half.alignment)
        table += struct.pack(">IIIII", half.kind, half.subtype, start, len(half.data), half.alignment)
        body += bytes(start - position) + half.data
        position = first + len(body)
    return table + body


def _aligned(number, unit):
    return -(-number // unit) * unit
