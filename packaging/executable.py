"""The program as it is shipped: its symbols cut off, and no time in its header."""

import struct

from release import run

TOOLS = "x86_64-w64-mingw32"

# In bytes, from the mark of the header of a portable executable, "PE" and two zeros.
PLACE_OF_HEADER = 0x3C
TIME_STAMP = 8
CHECK_SUM = 88


def build(release, jobs):
    """Builds the preset "release" and returns the path of the program."""
    run(["cmake", "--preset", "release", f"-DORMALA_WEB_ADDRESS={release.web}",
         f"-DORMALA_MAIL_ADDRESS={release.mail}"], cwd=release.root)
    run(["cmake", "--build", "--preset", "release", "--parallel", jobs], cwd=release.root)
    return release.root / "build/release/Ormala.exe"


def check_sum(data):
    """That of the header: all words added, with the carry, and the length. The field itself must be
    zero in `data`."""
    padded = bytes(data) + b"\0" * (len(data) % 2)
    total = sum(struct.unpack(f"<{len(padded) // 2}H", padded))
    while total > 0xFFFF:
        total = (total >> 16) + (total & 0xFFFF)
    return total + len(data)


def without_time(data):
    """The same executable with the time stamp zero and the check sum right."""
    changed = bytearray(data)
    header = struct.unpack_from("<I", changed, PLACE_OF_HEADER)[0]
    struct.pack_into("<I", changed, header + TIME_STAMP, 0)
    struct.pack_into("<I", changed, header + CHECK_SUM, 0)
    struct.pack_into("<I", changed, header + CHECK_SUM, check_sum(changed))
    return bytes(changed)


def cut_symbols(built, work):
    """(program, symbols): the paths of two new files in the folder `work`. The program names the
    file with its symbols, and a debugger finds it beside the program."""
    program, symbols = work / "Ormala.exe", work / "Ormala.exe.debug"
    run([f"{TOOLS}-objcopy", "--only-keep-debug", built, symbols])
    # First, since the program also names a checksum of it.
    symbols.write_bytes(without_time(symbols.read_bytes()))
    run([f"{TOOLS}-strip", "--strip-all", "-o", program, built])
    run([f"{TOOLS}-objcopy", f"--add-gnu-debuglink={symbols.name}", program], cwd=work)
    program.write_bytes(without_time(program.read_bytes()))
    return program, symbols
