"""The installer, which makensis makes of Ormala.nsi."""

import posixpath
import sys

import signing
from executable import without_time
from release import PackageError, run
from side_picture import side_picture

SCRIPT = "Ormala.nsi"
KILOBYTE = 1024


def windows_path(name):
    return name.replace("/", "\\")


def folders_of(files):
    return sorted({posixpath.dirname(name) for name in files} - {""})


def installed_lines(files, stage):
    """What copies the files to $INSTDIR, folder by folder."""
    for folder in [""] + folders_of(files):
        below = f"\\{windows_path(folder)}" if folder else ""
        yield f'SetOutPath "$INSTDIR{below}"'
        for name in sorted(files):
            if posixpath.dirname(name) == folder:
                yield f'File "/oname={posixpath.basename(name)}" "{stage / name}"'


def removed_lines(files):
    """What removes these files and no other, and the folders where nothing else lies."""
    for name in sorted(files):
        yield f'Delete "$INSTDIR\\{windows_path(name)}"'
    for folder in reversed(folders_of(files)):
        yield f'RMDir "$INSTDIR\\{windows_path(folder)}"'


def write_lines(path, lines):
    path.write_text("".join(f"{line}\n" for line in lines), encoding="utf-8")
    return path


def write_stage(files, stage):
    for name, data in files.items():
        (stage / name).parent.mkdir(parents=True, exist_ok=True)
        (stage / name).write_bytes(data)


def define(name, value):
    return f"-D{name}={value}"


def make_installer(root, version, files, work, output):
    """Makes the installer `output` of a version with these files; `work` is an empty folder."""
    packaging = root / "packaging"
    stage = work / "stage"
    write_stage(files, stage)
    picture = work / "side.bmp"
    picture.write_bytes(side_picture())
    kilobytes = sum(len(data) + KILOBYTE - 1 for data in files.values()) // KILOBYTE
    command = [
        "makensis", "-XTarget amd64-unicode", "-INPUTCHARSET", "UTF8", "-V2", "-WX", "-NOCD",
        define("VERSION", version), define("KILOBYTES", kilobytes),
        define("ICON", root / "resources/Ormala.ico"), define("PICTURE", picture),
        define("OUTPUT", output),
        define("INSTALLED", write_lines(work / "installed.nsh", installed_lines(files, stage))),
        define("REMOVED", write_lines(work / "removed.nsh", removed_lines(files))),
    ]
    if signing.is_wanted():
        command.append(define("SIGN", f'"{sys.executable}" "{packaging / "signing.py"}"'))
    run([*command, SCRIPT], cwd=packaging)
    if not output.exists():
        raise PackageError("makensis left no installer.")
    output.write_bytes(without_time(output.read_bytes()))
    signing.sign(output)
