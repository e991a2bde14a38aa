"""What lies in build/package/: the archives, their checksums, the manifests, the bill of
materials."""

import hashlib
import json
import pathlib
import re
import struct
import subprocess
import sys
import tempfile
import time
import unittest
import zipfile
import zlib

import yaml

ROOT = pathlib.Path(__file__).resolve().parents[2]
PACKAGE = ROOT / "build/package"

sys.path.insert(0, str(ROOT / "packaging"))
import release
import winget

VERSION = release.version_of(ROOT)
ALL_FILES = {f"Ormala-{VERSION}{kind}" for kind in (
    "-portable.zip", "-setup.exe", "-symbols.zip", ".spdx.json")} | {
        f"Ormala.Ormala{kind}.yaml" for kind in (
            "", ".installer", ".locale.en-US", ".locale.de-DE")} | {"SHA256SUMS"}
OWN_FILES = {"Ormala.exe", "Licence.txt", "Read me.txt", "Lies mich.txt"}
LICENCES = {"licences/GPL-3.txt", "licences/gcc.txt", "licences/mingw-w64.txt", "licences/nsis.txt"}
LINKED = {"libstdc++", "libgcc", "libssp", "mingw-w64 runtime", "winpthreads"}
SPDX_LICENCES = {"MIT", "GPL-3.0-or-later", "GCC-exception-3.1", "ZPL-2.1", "BSD-3-Clause", "Zlib"}


def packed(kind):
    return (PACKAGE / f"Ormala-{VERSION}{kind}").read_bytes()


def sha(kind, data):
    return hashlib.new(kind, data).hexdigest()


def objdump(data, *options):
    with tempfile.NamedTemporaryFile() as file:
        file.write(data)
        file.flush()
        return subprocess.run(["x86_64-w64-mingw32-objdump", *options, file.name], check=True,
                              stdout=subprocess.PIPE, text=True, errors="replace").stdout


class Archive:
    def __init__(self, kind):
        with zipfile.ZipFile(PACKAGE / f"Ormala-{VERSION}{kind}") as archive:
            self.entries = archive.infolist()
            self.files = {entry.filename: archive.read(entry) for entry in self.entries}

    def below(self, folder):
        return {name.removeprefix(f"{folder}/"): data for name, data in self.files.items()}


class Contents(unittest.TestCase):
    def test_every_file_of_a_release_is_there_and_no_other(self):
        self.assertEqual({path.name for path in PACKAGE.iterdir()}, ALL_FILES)

    def test_the_checksums_are_those_of_all_other_files(self):
        lines = (PACKAGE / "SHA256SUMS").read_text(encoding="ascii").splitlines()
        told = dict(reversed(line.split("  ", 1)) for line in lines)
        self.assertEqual(told, {name: sha("sha256", (PACKAGE / name).read_bytes())
                                for name in ALL_FILES - {"SHA256SUMS"}})

    def test_the_portable_archive_holds_program_help_and_licences(self):
        archive = Archive("-portable.zip")
        help_files = {path.name for path in (ROOT / "help").iterdir()} - {"CMakeLists.txt"}
        self.assertEqual(set(archive.below("Ormala")), OWN_FILES | LICENCES | help_files)
        for name in help_files:
            self.assertEqual(archive.files[f"Ormala/{name}"], (ROOT / "help" / name).read_bytes())

    def test_archives_have_one_order_time_and_mode(self):
        moment = time.gmtime(release.time_of(ROOT))[:6]
        for kind in ("-portable.zip", "-symbols.zip"):
            entries = Archive(kind).entries
            names = [entry.filename for entry in entries]
            self.assertEqual(names, sorted(names))
            for entry in entries:
                self.assertEqual(entry.date_time[:5], moment[:5])
                self.assertLessEqual(moment[5] - entry.date_time[5], 1)
                self.assertEqual(entry.external_attr >> 16, 0o100644)

    def test_texts_open_in_any_editor_of_windows(self):
        for name, data in Archive("-portable.zip").files.items():
            if name.endswith(".txt"):
                text = data.decode("utf-8-sig")
                self.assertTrue(data.startswith(b"\xef\xbb\xbf"), name)
                self.assertEqual(text.count("\r\n"), text.count("\n"), name)

    def test_the_licences_say_what_they_have_to(self):
        files = Archive("-portable.zip").below("Ormala")
        for name, words in (("Licence.txt", b"The Ormala authors"),
                            ("licences/gcc.txt", b"GCC RUNTIME LIBRARY EXCEPTION"),
                            ("licences/GPL-3.txt", b"GNU GENERAL PUBLIC LICENSE"),
                            ("licences/mingw-w64.txt", b"winpthreads"),
                            ("licences/nsis.txt", b"NSIS Contributors")):
            self.assertIn(words, files[name])


class Program(unittest.TestCase):
    """The executable files, as they are shipped."""

    def setUp(self):
        self.program = Archive("-portable.zip").files["Ormala/Ormala.exe"]
        self.symbols = Archive("-symbols.zip").files["Ormala/Ormala.exe.debug"]

    def test_no_time_and_no_path_of_the_build_is_in_them(self):
        for data in (self.program, self.symbols, packed("-setup.exe")):
            header = struct.unpack_from("<I", data, 0x3C)[0]
            self.assertEqual(struct.unpack_from("<I", data, header + 8)[0], 0)
            self.assertNotIn(str(ROOT).encode(), data)

    def test_the_program_is_for_64_bit_and_needs_nothing_but_windows(self):
        said = objdump(self.program, "-p")
        self.assertIn("pei-x86-64", said)
        needed = {name.lower() for name in re.findall(r"DLL Name: (\S+)", said)}
        self.assertTrue(needed)
        for name in needed:
            self.assertFalse(re.match(r"lib(gcc|stdc|winpthread)", name), name)

    def test_the_program_names_the_symbols_that_were_cut_off_it(self):
        name = b"Ormala.exe.debug\0"
        padded = name + b"\0" * (-len(name) % 4)
        self.assertIn(padded + struct.pack("<I", zlib.crc32(self.symbols)), self.program)
        self.assertNotIn(b".debug_info", self.program)
        self.assertIn("wWinMain", objdump(self.symbols, "--syms"))
        self.assertRegex(objdump(self.symbols, "--dwarf=info", "--dwarf-depth=1"),
                         r"DW_AT_name .*src/app/win/shell/frmSettings\.cpp")


class Winget(unittest.TestCase):
    def manifest(self, kind):
        text = (PACKAGE / f"Ormala.Ormala{kind}.yaml").read_text(encoding="utf-8")
        content = yaml.safe_load(text)
        self.assertEqual(content["PackageIdentifier"], "Ormala.Ormala")
        self.assertEqual(content["PackageVersion"], VERSION)
        kind_of_schema = re.search(r"winget-manifest\.(\w+)\.([\d.]+)\.schema", text)
        self.assertEqual(kind_of_schema.groups(),
                         (content["ManifestType"], content["ManifestVersion"]))
        return content

    def test_one_file_names_the_locale_of_the_others(self):
        content = self.manifest("")
        self.assertEqual(content["ManifestType"], "version")
        self.assertEqual(content["DefaultLocale"], self.manifest(".locale.en-US")["PackageLocale"])

    def test_the_installer_is_this_one_for_one_user_or_for_all(self):
        content = self.manifest(".installer")
        self.assertEqual(content["InstallerType"], "nullsoft")
        self.assertEqual({entry["Scope"]: entry["InstallerSwitches"]["Custom"]
                          for entry in content["Installers"]},
                         {"user": "/CURRENTUSER", "machine": "/ALLUSERS"})
        for entry in content["Installers"]:
            self.assertEqual(entry["Architecture"], "x64")
            self.assertEqual(entry["InstallerSha256"],
                             sha("sha256", packed("-setup.exe")).upper())
            self.assertTrue(entry["InstallerUrl"].endswith(f"/Ormala-{VERSION}-setup.exe"))

    def test_both_languages_describe_it(self):
        for kind, manifest_type in ((".locale.en-US", "defaultLocale"),
                                    (".locale.de-DE", "locale")):
            content = self.manifest(kind)
            self.assertEqual(content["ManifestType"], manifest_type)
            for name in ("Publisher", "PackageName", "License", "ShortDescription"):
                self.assertTrue(content[name])
            self.assertLessEqual(len(content["ShortDescription"]), 256)
            self.assertLessEqual(len(content["Tags"]), 16)

    def test_the_address_is_the_one_that_was_given(self):
        given = release.Release(ROOT, "1.2.3", 0, "https://files.example.org/a",
                                "https://example.org")
        texts = winget.manifests(given, b"setup")
        self.assertIn("InstallerUrl: https://files.example.org/a/Ormala-1.2.3-setup.exe\n",
                      texts["Ormala.Ormala.installer.yaml"])
        for locale in ("en-US", "de-DE"):
            content = yaml.safe_load(texts[f"Ormala.Ormala.locale.{locale}.yaml"])
            self.assertEqual(content["PackageUrl"], "https://example.org")


class BillOfMaterials(unittest.TestCase):
    def setUp(self):
        self.document = json.loads(packed(".spdx.json"))
        self.files = Archive("-portable.zip").below("Ormala")
        self.packages = {entry["name"]: entry for entry in self.document["packages"]}

    def identifiers(self):
        return [entry["SPDXID"]
                for entry in self.document["packages"] + self.document["files"]] + [
                    self.document["SPDXID"]]

    def related(self, kind):
        return {(entry["spdxElementId"], entry["relatedSpdxElement"])
                for entry in self.document["relationships"] if entry["relationshipType"] == kind}

    def test_the_document_has_all_that_the_format_demands(self):
        document = self.document
        self.assertEqual((document["spdxVersion"], document["dataLicense"], document["SPDXID"]),
                         ("SPDX-2.3", "CC0-1.0", "SPDXRef-DOCUMENT"))
        self.assertRegex(document["creationInfo"]["created"], r"^\d{4}-\d\d-\d\dT\d\d:\d\d:\d\dZ$")
        for creator in document["creationInfo"]["creators"]:
            self.assertRegex(creator, r"^(Organization|Person|Tool): \S")
        self.assertRegex(document["documentNamespace"], r"^https://[^#]+$")
        for entry in document["packages"]:
            for name in ("name", "versionInfo", "downloadLocation", "licenseConcluded",
                         "licenseDeclared", "copyrightText"):
                self.assertTrue(entry[name], name)
            self.assertEqual("packageVerificationCode" in entry, entry["filesAnalyzed"])

    def test_every_identifier_is_one_element_and_every_relation_has_both(self):
        names = self.identifiers()
        self.assertEqual(len(names), len(set(names)))
        for name in names:
            self.assertRegex(name, r"^SPDXRef-[A-Za-z0-9.-]+$")
        for entry in self.document["relationships"]:
            self.assertIn(entry["spdxElementId"], names)
            self.assertIn(entry["relatedSpdxElement"], names)

    def test_the_files_are_those_of_the_portable_archive(self):
        told = {entry["fileName"].removeprefix("./"): {
            checksum["algorithm"]: checksum["checksumValue"] for checksum in entry["checksums"]}
                for entry in self.document["files"]}
        self.assertEqual(told, {name: {"SHA1": sha("sha1", data), "SHA256": sha("sha256", data)}
                                for name, data in self.files.items()})
        together = "".join(sorted(sha("sha1", data) for data in self.files.values()))
        self.assertEqual(
            self.packages["Ormala"]["packageVerificationCode"]["packageVerificationCodeValue"],
            sha("sha1", together.encode()))
        program = self.packages["Ormala"]["SPDXID"]
        self.assertEqual({other for one, other in self.related("CONTAINS") if one == program},
                         {entry["SPDXID"] for entry in self.document["files"]})

    def test_the_installer_is_this_one(self):
        entry = self.packages["Ormala Setup"]
        self.assertIn({"algorithm": "SHA256", "checksumValue": sha("sha256", packed("-setup.exe"))},
                      entry["checksums"])

    def test_all_that_is_linked_in_is_told_with_version_and_licence(self):
        program = next(entry["SPDXID"] for entry in self.document["files"]
                       if entry["fileName"] == "./Ormala.exe")
        self.assertEqual(self.related("STATIC_LINK"),
                         {(program, self.packages[name]["SPDXID"]) for name in LINKED})
        extracted = {entry["licenseId"] for entry in self.document["hasExtractedLicensingInfos"]}
        for name in LINKED | {"NSIS"}:
            entry = self.packages[name]
            self.assertRegex(entry["versionInfo"], r"^\d")
            words = set(entry["licenseDeclared"].split()) - {"AND", "WITH"}
            self.assertLessEqual(words, SPDX_LICENCES | extracted)
            text = re.search(r"licences/\S+\.txt", entry["licenseComments"]).group()
            self.assertIn(text, self.files)


if __name__ == "__main__":
    unittest.main()
