"""As much of PNG as the resources need: chunks, size, text, and the pixels of a small picture."""

import struct
import zlib

SIGNATURE = b"\x89PNG\r\n\x1a\n"
EIGHT_BIT_RGBA = (8, 6, 0, 0, 0)  # depth, colour type, compression, filter method, interlacing


class NotReadable(ValueError):
    """Says in a few words what is wrong with the file."""


def chunks(data):
    """The chunks in order: (type, contents)."""
    if not data.startswith(SIGNATURE):
        raise NotReadable("is no PNG")
    found, position = [], len(SIGNATURE)
    while position < len(data):
        if position + 12 > len(data):
            raise NotReadable("is cut off")
        length, kind = struct.unpack_from(">I4s", data, position)
        contents = data[position + 8 : position + 8 + length]
        if position + 12 + length > len(data):
            raise NotReadable("is cut off")
        (checksum,) = struct.unpack_from(">I", data, position + 8 + length)
        if checksum != zlib.crc32(kind + contents):
            raise NotReadable("has a chunk with a wrong checksum")
        found.append((kind, contents))
        position += 12 + length
    if not found or found[0][0] != b"IHDR" or found[-1][0] != b"IEND":
        raise NotReadable("does not begin with its header and end with its end")
    return found


def assemble(all_chunks):
    return SIGNATURE + b"".join(
        struct.pack(">I", len(contents)) + kind + contents + struct.pack(">I", zlib.crc32(kind + contents))
        for kind, contents in all_chunks
    )


def size(all_chunks):
    """Width and height in pixels."""
    return struct.unpack_from(">II", all_chunks[0][1])


def text(all_chunks, keyword):
    """What a tEXt chunk says under the keyword, or None."""
    for kind, contents in all_chunks:
        key, _, value = contents.partition(b"\0")
        if kind == b"tEXt" and key.decode("latin-1") == keyword:
            return value.decode("latin-1")
    return None


def with_text(data, keyword, value):
    """The picture with one more text, right after the header."""
    header, *others = chunks(data)
    return assemble([header, (b"tEXt", f"{keyword}\0{value}".encode("latin-1")), *others])


def pixels(all_chunks):
    """The rows of an RGBA picture, each a list of (red, green, blue, alpha)."""
    width, height = size(all_chunks)
    if tuple(all_chunks[0][1][8:13]) != EIGHT_BIT_RGBA:
        raise NotReadable("does not have red, green, blue and alpha of 8 bits each, in one pass")
    packed = b"".join(contents for kind, contents in all_chunks if kind == b"IDAT")
    try:
        data = zlib.decompress(packed)
    except zlib.error:
        raise NotReadable("has pixels that do not unpack") from None
    stride = 4 * width
    if len(data) != height * (stride + 1):
        raise NotReadable("has more or fewer pixels than its size says")
    rows, above = [], bytes(stride)
    for start in range(0, len(data), stride + 1):
        above = _unfilter(data[start], data[start + 1 : start + 1 + stride], above)
        rows.append([tuple(above[x : x + 4]) for x in range(0, stride, 4)])
    return rows


def _unfilter(method, line, above):
    """One line as it was before the encoder wrote down differences to its neighbours only."""
    if method > 4:
        raise NotReadable("has a line with an unknown filter")
    plain = bytearray(line)
    for i, difference in enumerate(line):
        left = plain[i - 4] if i >= 4 else 0
        corner = above[i - 4] if i >= 4 else 0
        predictions = (0, left, above[i], (left + above[i]) // 2, _paeth(left, above[i], corner))
        plain[i] = (difference + predictions[method]) & 0xFF
    return bytes(plain)


def _paeth(left, above, corner):
    estimate = left + above - corner
    return min((left, above, corner), key=lambda neighbour: abs(estimate - neighbour))
