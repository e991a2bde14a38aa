"""Puts pictures together to a moving one in the form of a PNG. A frame holds only the pixels that
differ from the frame before, so that a still ground costs nothing."""

import pathlib
import struct
import subprocess
import tempfile
import zlib
from typing import NamedTuple

SIGNATURE = b"\x89PNG\r\n\x1a\n"
# Of a frame: it stays, and the next one is laid over it.
KEEP, OVER = 0, 1
TIMEOUT_SECONDS = 60


class Frame(NamedTuple):
    picture: pathlib.Path
    milliseconds: int


def chunk(kind, data):
    return struct.pack(">I", len(data)) + kind + data + struct.pack(">I", zlib.crc32(kind + data))


def chunks(data):
    """(kind, content) of each part of a PNG."""
    at = len(SIGNATURE)
    while at < len(data):
        length, kind = struct.unpack_from(">I4s", data, at)
        yield kind, data[at + 8:at + 8 + length]
        at += 12 + length


def rows_of(path):
    """The rows of a picture in three bytes a pixel, as a PPM holds them."""
    data = path.read_bytes()
    kind, width, height = data.split(maxsplit=3)[:3]
    if kind != b"P6":
        raise ValueError(f"{path} is no PPM")
    width, height = int(width), int(height)
    pixels = data[len(data) - 3 * width * height:]
    return [pixels[3 * width * y:3 * width * (y + 1)] for y in range(height)]


def changed_box(before, now):
    """(left, top, width, height) of what differs, at least one pixel."""
    changed = [y for y, (a, b) in enumerate(zip(before, now)) if a != b]
    if not changed:
        return 0, 0, 1, 1
    top, bottom = changed[0], changed[-1]
    columns = range(len(now[0]) // 3)

    def differs(x):
        return any(before[y][3 * x:3 * x + 3] != now[y][3 * x:3 * x + 3] for y in changed)

    left = next(x for x in columns if differs(x))
    right = next(x for x in reversed(columns) if differs(x))
    return left, top, right - left + 1, bottom - top + 1


def compressed(now, before, box, folder):
    """The pixels of the box: those that are as before are clear, if there is a before."""
    target = folder / "frame.png"
    command = ["convert", str(now)]
    if before:
        command += [str(before), "-compose", "ChangeMask", "-composite"]
    left, top, width, height = box
    command += ["-crop", f"{width}x{height}+{left}+{top}", "+repage", "-strip", "-define",
                "png:compression-level=9", "-define", "png:exclude-chunks=all",
                f"PNG32:{target}"]
    subprocess.run(command, check=True, stdin=subprocess.DEVNULL, timeout=TIMEOUT_SECONDS)
    return b"".join(data for kind, data in chunks(target.read_bytes()) if kind == b"IDAT")


def assembled(frames):
    """The bytes of the moving picture, which begins anew at its end."""
    parts, number, before = [], 0, None
    with tempfile.TemporaryDirectory() as folder:
        for frame in frames:
            rows = rows_of(frame.picture)
            size = len(rows[0]) // 3, len(rows)
            box = changed_box(rows_of(before), rows) if before else (0, 0, *size)
            data = compressed(frame.picture, before, box, pathlib.Path(folder))
            left, top, width, height = box
            parts.append(chunk(b"fcTL", struct.pack(
                ">IIIIIHHBB", number, width, height, left, top, frame.milliseconds, 1000, KEEP,
                OVER if before else 0)))
            number += 1
            if before:
                parts.append(chunk(b"fdAT", struct.pack(">I", number) + data))
                number += 1
            else:
                head = chunk(b"IHDR", struct.pack(">IIBBBBB", *size, 8, 6, 0, 0, 0))
                parts.append(chunk(b"IDAT", data))
            before = frame.picture
    return (SIGNATURE + head + chunk(b"acTL", struct.pack(">II", len(frames), 0))
            + b"".join(parts) + chunk(b"IEND", b""))


def length_of(data):
    """In milliseconds, 0 for a picture that does not move."""
    delays = [struct.unpack_from(">HH", content, 20) for kind, content in chunks(data)
              if kind == b"fcTL"]
    return round(sum(1000 * count / parts for count, parts in delays))
