"""The signature of one half: a code directory with the hashes of everything, and around it what an ad-hoc
signature has of the rest."""

import dataclasses
import hashlib
import struct

from ..steps import Failure

# The blobs, and the slots that they stand in.
SIGNATURE, DIRECTORY, REQUIREMENTS, CERTIFICATES = 0xFADE0CC0, 0xFADE0C02, 0xFADE0C01, 0xFADE0B01
DIRECTORY_SLOT, REQUIREMENTS_SLOT, CERTIFICATES_SLOT = 0, 2, 0x10000
# The slots before the pages, counted backwards.
INFORMATION, REQUIREMENTS_HASH, RESOURCES = 1, 2, 3

NO_REQUIREMENTS = struct.pack(">III", REQUIREMENTS, 12, 0)
NO_CERTIFICATES = struct.pack(">II", CERTIFICATES, 8)

VERSION = 0x20400  # the first that tells where code may be executed
HEADER = 88
AD_HOC = 2
SHA256, HASH_SIZE = 2, 32
PAGE_BITS = 12
MAIN_PROGRAM = 1
CDHASH_SIZE = 20


def sign(half, identifier, information, resources):
    """Replaces the signature of a half, and returns its cdhash.

    Information and resources are the contents of Info.plist and CodeResources; without them there are none.
    """
    specials = {REQUIREMENTS_HASH: NO_REQUIREMENTS}
    if information:
        specials[INFORMATION] = information
    if resources:
        specials[RESOURCES] = resources
    # As large as it will be: the place of the hashes does not change, what they are of does.
    size = len(_blob(_directory(half, identifier, specials)))
    half.make_room(-(-size // 16) * 16)
    directory = _directory(half, identifier, specials)
    blob = _blob(directory)
    half.sign(blob.ljust(-(-size // 16) * 16, b"\0"))
    return _cdhash(directory)


@dataclasses.dataclass(frozen=True)
class Directory:
    """What a code directory says of itself, whoever signed."""

    identifier: str
    cdhash: bytes
    pages: int


def directory_in(signature):
    magic, _, count = _header_of(signature, 0, ">III")
    slots = [_header_of(signature, 12 + 8 * index, ">II") for index in range(count)]
    if magic != SIGNATURE or not slots or slots[0][0] != DIRECTORY_SLOT:
        raise Failure("has no code signature")
    start = slots[0][1]
    _, length, _, _, _, identifier, _, pages = _header_of(signature, start, ">IIIIIIII")
    directory = signature[start : start + length]
    if directory[37:38] != bytes([SHA256]):
        raise Failure("is signed with another hash than SHA-256")
    name = directory[identifier : directory.index(b"\0", identifier)].decode()
    return Directory(name, _cdhash(directory), pages)


def _header_of(data, place, fields):
    try:
        return struct.unpack_from(fields, data, place)
    except struct.error:
        raise Failure("has no whole code signature") from None


def _cdhash(directory):
    return _hash(directory)[:CDHASH_SIZE]


def _directory(half, identifier, specials):
    code, name = half.code, identifier.encode() + b"\0"
    page = 1 << PAGE_BITS
    pages = [_hash(code[start : start + page]) for start in range(0, len(code), page)]
    last = max(specials)
    # A slot that stands for nothing is zero.
    before = [_hash(specials[slot]) if slot in specials else bytes(HASH_SIZE) for slot in range(last, 0, -1)]
    hashes = HEADER + len(name) + HASH_SIZE * last
    length = hashes + HASH_SIZE * len(pages)
    header = struct.pack(">IIIIIIII", DIRECTORY, length, VERSION, AD_HOC, hashes, HEADER, last, len(pages))
    header += struct.pack(">IBBBBI", len(code), HASH_SIZE, SHA256, 0, PAGE_BITS, 0)
    no_scatter = no_team = spare = long_limit = start_of_text = 0
    header += struct.pack(">IIIQ", no_scatter, no_team, spare, long_limit)
    flags = MAIN_PROGRAM if half.is_executable else 0
    header += struct.pack(">QQQ", start_of_text, half.text_size, flags)
    return header + name + b"".join(before) + b"".join(pages)


def _blob(directory):
    parts = {
        DIRECTORY_SLOT: directory,
        REQUIREMENTS_SLOT: NO_REQUIREMENTS,
        CERTIFICATES_SLOT: NO_CERTIFICATES,
    }
    index, body = b"", b""
    start = 12 + 8 * len(parts)
    for slot, content in parts.items():
        index += struct.pack(">II", slot, start + len(body))
        body += content
    return struct.pack(">III", SIGNATURE, start + len(body), len(parts)) + index + body


def _hash(data):
    return hashlib.sha256(data).digest()
