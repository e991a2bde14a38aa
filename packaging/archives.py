"""Archives and checksums that are the same for the same files."""

import hashlib
import time
import zipfile

# Made on a system with modes, a plain file that its owner writes and everybody reads.
UNIX = 3
PLAIN_FILE = 0o100644 << 16


def sha256(data):
    return hashlib.sha256(data).hexdigest()


def write_zip(path, folder, files, seconds):
    """`files` goes from the name below `folder`, with slashes, to the bytes."""
    # The format counts in steps of two seconds, and knows no zone.
    moment = time.gmtime(seconds)[:6]
    with zipfile.ZipFile(path, "w", zipfile.ZIP_DEFLATED, compresslevel=9) as archive:
        for name in sorted(files):
            entry = zipfile.ZipInfo(f"{folder}/{name}", moment)
            entry.create_system = UNIX
            entry.external_attr = PLAIN_FILE
            entry.compress_type = zipfile.ZIP_DEFLATED
            archive.writestr(entry, files[name], compresslevel=9)


def write_checksums(folder):
    """SHA256SUMS over all other files of a folder, as sha256sum -c reads it."""
    sums = folder / "SHA256SUMS"
    names = sorted(path.name for path in folder.iterdir() if path != sums)
    sums.write_text("".join(f"{sha256((folder / name).read_bytes())}  {name}\n" for name in names),
                    encoding="ascii")
