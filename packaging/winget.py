"""The manifests by which the package manager of Windows installs Ormala."""

from archives import sha256
from release import DESCRIPTION, PUBLISHER

IDENTIFIER = "Ormala.Ormala"
SCHEMA = "1.6.0"
HEAD = """# yaml-language-server: $schema=https://aka.ms/winget-manifest.{kind}.{schema}.schema.json
PackageIdentifier: {identifier}
PackageVersion: {version}
"""
TAIL = """ManifestType: {kind}
ManifestVersion: {schema}
"""

VERSION = "DefaultLocale: en-US\n"

# One file for both: a switch says for whom.
INSTALLER = """Platform:
- Windows.Desktop
MinimumOSVersion: 10.0.17763.0
InstallerType: nullsoft
InstallModes:
- interactive
- silent
UpgradeBehavior: install
ProductCode: Ormala
Installers:
- Architecture: x64
  Scope: user
  InstallerUrl: {address}/{name}
  InstallerSha256: {hash}
  InstallerSwitches:
    Custom: /CURRENTUSER
- Architecture: x64
  Scope: machine
  InstallerUrl: {address}/{name}
  InstallerSha256: {hash}
  InstallerSwitches:
    Custom: /ALLUSERS
  ElevationRequirement: elevationRequired
"""

ENGLISH = """PackageLocale: en-US
Publisher: {publisher}
PackageName: Ormala
{page}License: MIT
ShortDescription: {description}
Description: >-
  Ormala lays a see-through worksheet over whatever is open, a photograph, a layout, a drawing, and
  on it a stencil that shows the golden section and other ratios. A measuring tool beside it tells
  lengths, their ratio and angles. The programs below stay as they are.
Moniker: ormala
Tags:
- composition
- golden-ratio
- measure
- overlay
- photography
- proportions
"""

GERMAN = """PackageLocale: de-DE
Publisher: {publisher}
PackageName: Ormala
{page}License: MIT
ShortDescription: Proportionen auf dem Bildschirm
Description: >-
  Ormala legt ein durchsichtiges Arbeitsblatt über das, was gerade offen ist, ein Foto, ein Layout,
  eine Zeichnung, und darauf eine Schablone, die den Goldenen Schnitt und andere Verhältnisse zeigt.
  Ein Messwerkzeug daneben nennt Längen, ihr Verhältnis und Winkel. Die Programme darunter bleiben,
  wie sie sind.
Tags:
- bildschirm
- fotografie
- goldener-schnitt
- komposition
- messen
- proportionen
"""

MANIFESTS = (
    ("", "version", VERSION),
    (".installer", "installer", INSTALLER),
    (".locale.en-US", "defaultLocale", ENGLISH),
    (".locale.de-DE", "locale", GERMAN),
)


def manifests(release, setup):
    """From the names of the files to their texts; `setup` are the bytes of the installer."""
    page = f"PackageUrl: {release.web}\n" if release.web else ""
    words = {
        "identifier": IDENTIFIER, "version": release.version, "schema": SCHEMA,
        "address": release.address, "name": release.file_name("-setup.exe"),
        "hash": sha256(setup).upper(), "publisher": PUBLISHER, "description": DESCRIPTION,
        "page": page,
    }
    return {f"{IDENTIFIER}{part}.yaml": (HEAD + body + TAIL).format(kind=kind, **words)
            for part, kind, body in MANIFESTS}
