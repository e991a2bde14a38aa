"""The bill of materials, in the form of SPDX 2.3: the files of the program, and what is in it and
in its installer that others have written."""

import hashlib
import json
import re
import time

from archives import sha256
from components import COMPONENTS, LICENCES
from release import DESCRIPTION, PUBLISHER

DOCUMENT = "SPDXRef-DOCUMENT"
PROGRAM = "SPDXRef-Package-Ormala"
SETUP = "SPDXRef-Package-Setup"
PROGRAM_FILE = "SPDXRef-File-Ormala.exe"
ASSERTED = "NOASSERTION"
OWN_LICENCE = "MIT"
COPYRIGHT = f"Copyright (c) 2026 {PUBLISHER}"


def identifier(kind, name):
    return f"SPDXRef-{kind}-{re.sub('[^A-Za-z0-9.]', '-', name)}"


def sha1(data):
    return hashlib.sha1(data).hexdigest()


def checksums(data):
    return [{"algorithm": "SHA1", "checksumValue": sha1(data)},
            {"algorithm": "SHA256", "checksumValue": sha256(data)}]


def kind_of(name):
    if name.endswith(".exe"):
        return "BINARY"
    return "IMAGE" if name.endswith(".webp") else "TEXT"


def file_entry(name, data):
    foreign = name.startswith(f"{LICENCES}/")
    return {
        "SPDXID": identifier("File", name),
        "fileName": f"./{name}",
        "fileTypes": [kind_of(name)],
        "checksums": checksums(data),
        "licenseConcluded": ASSERTED if foreign else OWN_LICENCE,
        "licenseInfoInFiles": [ASSERTED if foreign else OWN_LICENCE],
        "copyrightText": ASSERTED if foreign else COPYRIGHT,
    }


def verification_code(files):
    """One checksum over those of all files, whatever their order."""
    return sha1("".join(sorted(map(sha1, files.values()))).encode("ascii"))


def own_package(release, files):
    return {
        "SPDXID": PROGRAM,
        "name": "Ormala",
        "versionInfo": release.version,
        "summary": DESCRIPTION,
        "supplier": f"Organization: {PUBLISHER}",
        "downloadLocation": f"{release.address}/{release.file_name('-portable.zip')}",
        "primaryPackagePurpose": "APPLICATION",
        "filesAnalyzed": True,
        "packageVerificationCode": {"packageVerificationCodeValue": verification_code(files)},
        "licenseConcluded": OWN_LICENCE,
        "licenseDeclared": OWN_LICENCE,
        "licenseInfoFromFiles": [OWN_LICENCE],
        "copyrightText": COPYRIGHT,
    }


def setup_package(release, setup):
    name = release.file_name("-setup.exe")
    return {
        "SPDXID": SETUP,
        "name": "Ormala Setup",
        "versionInfo": release.version,
        "packageFileName": name,
        "supplier": f"Organization: {PUBLISHER}",
        "downloadLocation": f"{release.address}/{name}",
        "primaryPackagePurpose": "INSTALL",
        "filesAnalyzed": False,
        "checksums": checksums(setup),
        "licenseConcluded": OWN_LICENCE,
        "licenseDeclared": OWN_LICENCE,
        "copyrightText": COPYRIGHT,
    }


def component_package(component, version):
    return {
        "SPDXID": identifier("Package", component.name),
        "name": component.name,
        "versionInfo": version,
        "supplier": component.supplier,
        "downloadLocation": ASSERTED,
        "homepage": component.home,
        "primaryPackagePurpose": "LIBRARY" if component.in_program else "INSTALL",
        "filesAnalyzed": False,
        "licenseConcluded": component.licence,
        "licenseDeclared": component.licence,
        "licenseComments": f"Its text is in {LICENCES}/{component.text}.",
        "copyrightText": ASSERTED,
    }


def relationship(one, kind, other):
    return {"spdxElementId": one, "relationshipType": kind, "relatedSpdxElement": other}


def relationships(files):
    yield relationship(DOCUMENT, "DESCRIBES", PROGRAM)
    yield relationship(DOCUMENT, "DESCRIBES", SETUP)
    yield relationship(SETUP, "CONTAINS", PROGRAM)
    for name in sorted(files):
        yield relationship(PROGRAM, "CONTAINS", identifier("File", name))
    for component in COMPONENTS:
        other = identifier("Package", component.name)
        if component.in_program:
            yield relationship(PROGRAM_FILE, "STATIC_LINK", other)
        else:
            yield relationship(SETUP, "CONTAINS", other)


def extracted_licences():
    return [{
        "licenseId": "LicenseRef-mingw-w64-runtime",
        "name": "The other licences of the mingw-w64 runtime",
        "extractedText": "Parts of the runtime are in the public domain or under permissive "
                         f"licences of their own. {LICENCES}/mingw-w64.txt has the text of each.",
    }]


def bill_of_materials(release, files, setup, versions):
    """The text of the document; `files` are those of the portable package, `setup` the bytes of the
    installer."""
    document = {
        "spdxVersion": "SPDX-2.3",
        "dataLicense": "CC0-1.0",
        "SPDXID": DOCUMENT,
        "name": f"Ormala-{release.version}",
        # The name of the document, for ever and everywhere: another content, another name.
        "documentNamespace": f"{release.address}/spdx/Ormala-{release.version}-{sha256(setup)}",
        "creationInfo": {
            "created": time.strftime("%Y-%m-%dT%H:%M:%SZ", time.gmtime(release.time)),
            "creators": [f"Organization: {PUBLISHER}", "Tool: tools/package"],
        },
        "packages": [own_package(release, files), setup_package(release, setup)]
        + [component_package(component, versions[component.name]) for component in COMPONENTS],
        "files": [file_entry(name, files[name]) for name in sorted(files)],
        "relationships": list(relationships(files)),
        "hasExtractedLicensingInfos": extracted_licences(),
    }
    return json.dumps(document, indent=2) + "\n"
