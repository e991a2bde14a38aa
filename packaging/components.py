"""What others have written and the package contains: the C++ runtime that is linked into the
program, and the code that the installer consists of."""

import dataclasses
import pathlib

from release import PackageError, run, windows_text

COMPILER = "x86_64-w64-mingw32-g++-posix"
DOCUMENTATION = pathlib.Path("/usr/share/doc")
LICENCES = "licences"
GPL = "GPL-3.txt"


@dataclasses.dataclass(frozen=True)
class Component:
    name: str
    # A file of it: the package it belongs to has its version and its licence.
    file: str
    supplier: str
    # As SPDX writes it.
    licence: str
    # The name of its licence in the folder LICENCES.
    text: str
    home: str
    in_program: bool = True


GCC = "GPL-3.0-or-later WITH GCC-exception-3.1"
FSF = "Organization: Free Software Foundation, Inc."
MINGW = "Organization: mingw-w64 project"

COMPONENTS = (
    Component("libstdc++", "libstdc++.a", FSF, GCC, "gcc.txt", "https://gcc.gnu.org"),
    Component("libgcc", "libgcc.a", FSF, GCC, "gcc.txt", "https://gcc.gnu.org"),
    Component("libssp", "libssp.a", FSF, GCC, "gcc.txt", "https://gcc.gnu.org"),
    Component("mingw-w64 runtime", "libmingwex.a", MINGW,
              "ZPL-2.1 AND LicenseRef-mingw-w64-runtime", "mingw-w64.txt",
              "https://www.mingw-w64.org"),
    Component("winpthreads", "libwinpthread.a", MINGW, "MIT AND BSD-3-Clause", "mingw-w64.txt",
              "https://www.mingw-w64.org"),
    Component("NSIS", "/usr/bin/makensis", "Organization: NSIS Contributors", "Zlib AND MIT",
              "nsis.txt", "https://nsis.sourceforge.io", in_program=False),
)


def place_of(component):
    if component.file.startswith("/"):
        return pathlib.Path(component.file)
    told = run([COMPILER, f"-print-file-name={component.file}"]).strip()
    if told == component.file:
        raise PackageError(f"{COMPILER} has no {component.file}.")
    return pathlib.Path(told).resolve()


def owner_of(component):
    """The package of the system that a component came with."""
    return run(["dpkg-query", "--search", place_of(component)]).split(":")[0]


def versions():
    """From the name of each component to the version of the package it came with."""
    return {component.name: run(["dpkg-query", "--show", "--showformat=${Version}",
                                 owner_of(component)])
            for component in COMPONENTS}


def licence_files():
    """The licences of all components, from their names in the package to the bytes."""
    files = {GPL: windows_text(pathlib.Path("/usr/share/common-licenses/GPL-3"))}
    for component in COMPONENTS:
        source = DOCUMENTATION / owner_of(component) / "copyright"
        files[component.text] = windows_text(source)
    return {f"{LICENCES}/{name}": data for name, data in files.items()}
