"""A certificate of our own, and a command that signs with it, for the tests of signing."""

import stat
import subprocess

SIGN = """#!/bin/sh
# Signs the file $1 in its place, and keeps a copy of each.
set -e
osslsigncode sign -certs "{folder}/certificate.pem" -key "{folder}/key.pem" -h sha256 \\
    -n Ormala -in "$1" -out "$1.signed"
mv "$1.signed" "$1"
copy=$(mktemp "{folder}/signed/XXXXXX")
cp "$1" "$copy"
"""


def quiet(*command):
    return subprocess.run([str(part) for part in command], stdin=subprocess.DEVNULL,
                          stdout=subprocess.PIPE, stderr=subprocess.STDOUT, text=True, check=False)


class Certificate:
    """Made anew in a folder, good for a day."""

    def __init__(self, folder):
        self.folder = folder
        made = quiet("openssl", "req", "-x509", "-newkey", "rsa:2048", "-nodes", "-days", "1",
                     "-subj", "/CN=Ormala Test", "-addext", "extendedKeyUsage=codeSigning",
                     "-keyout", folder / "key.pem", "-out", folder / "certificate.pem")
        assert made.returncode == 0, made.stdout
        (folder / "signed").mkdir()
        script = folder / "sign"
        script.write_text(SIGN.format(folder=folder), encoding="utf-8")
        script.chmod(script.stat().st_mode | stat.S_IXUSR)
        self.command = f"'{script}' %f"

    def signed_files(self):
        """A copy of every file that was signed."""
        return sorted((self.folder / "signed").iterdir())

    def verification(self, path):
        """(whether the signature is good, what the check says)."""
        done = quiet("osslsigncode", "verify", "-CAfile", self.folder / "certificate.pem",
                     "-in", path)
        return done.returncode == 0, done.stdout
