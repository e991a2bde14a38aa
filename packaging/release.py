"""What the release is: its version and time, and the files it consists of."""

import dataclasses
import os
import pathlib
import re
import subprocess

# A name that is reserved for examples, so that an unfinished manifest downloads nothing.
EXAMPLE_ADDRESS = "https://download.example.com/ormala"
PUBLISHER = "The Ormala authors"
DESCRIPTION = "Proportions on the screen"


class PackageError(Exception):
    """What keeps the package from being made, in words for the user."""


@dataclasses.dataclass(frozen=True)
class Release:
    root: pathlib.Path
    version: str
    # Seconds since 1970, the time of everything in the package.
    time: int
    # Where the files will be downloaded from, without a slash at its end.
    address: str
    # What the about box links to, or nothing.
    web: str = ""
    mail: str = ""

    def file_name(self, kind):
        return f"Ormala-{self.version}{kind}"


def run(command, **options):
    """Runs a program; what it says appears only if it fails."""
    done = subprocess.run([str(part) for part in command], stdin=subprocess.DEVNULL,
                          stdout=subprocess.PIPE, stderr=subprocess.STDOUT, text=True,
                          errors="replace", check=False, **options)
    if done.returncode != 0:
        said = "\n".join(done.stdout.splitlines()[-40:])
        raise PackageError(f"{said}\n{command[0]} ended with exit code {done.returncode}.")
    return done.stdout


def version_of(root):
    found = re.search(r"^project\(Ormala VERSION (\d+\.\d+\.\d+)",
                      (root / "CMakeLists.txt").read_text(encoding="utf-8"), re.MULTILINE)
    if not found:
        raise PackageError("CMakeLists.txt names no version of three numbers.")
    return found.group(1)


def time_of(root):
    """SOURCE_DATE_EPOCH, or the time of the commit that is checked out."""
    given = os.environ.get("SOURCE_DATE_EPOCH", "")
    if given.isdigit():
        return int(given)
    if given:
        raise PackageError(f"SOURCE_DATE_EPOCH is no number of seconds: {given}")
    if not (root / ".git").exists():
        raise PackageError("This is no clone of the repository: set SOURCE_DATE_EPOCH to the "
                           "seconds since 1970 that the files of the package shall have.")
    return int(run(["git", "-C", root, "log", "-1", "--format=%ct"]))


def read_release(root, address, web, mail):
    return Release(root, version_of(root), time_of(root), (address or EXAMPLE_ADDRESS).rstrip("/"),
                   web, mail)


def help_files(root):
    """The names of the help's files, as help/CMakeLists.txt has them stand beside the program."""
    listed = re.search(r"set\(files([^)]*)\)",
                       (root / "help/CMakeLists.txt").read_text(encoding="utf-8"))
    return sorted(listed.group(1).split())


def windows_text(path):
    """A text as any editor of Windows shows it right."""
    text = path.read_text(encoding="utf-8").removeprefix("\N{BYTE ORDER MARK}")
    return ("\N{BYTE ORDER MARK}" + text).replace("\n", "\r\n").encode("utf-8")


def program_files(release, program, licences):
    """What is installed, from the name below the program's folder to the bytes."""
    files = {"Ormala.exe": program, "Licence.txt": windows_text(release.root / "LICENSE")}
    for name in help_files(release.root):
        files[name] = (release.root / "help" / name).read_bytes()
    files.update(licences)
    return files


def portable_files(release, files):
    """The same for whoever unpacks it, who wants to be told how."""
    notes = {"Read me.txt": "readme_en.txt", "Lies mich.txt": "readme_de.txt"}
    return files | {name: windows_text(release.root / "packaging" / source)
                    for name, source in notes.items()}
