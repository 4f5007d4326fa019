# SPDX-FileCopyrightText: 2026 The ORVEL developers
# SPDX-License-Identifier: MIT
"""Checks what the packages hold beside the programs, by the validators of those formats and against the programs:
test_metadata.py PACKAGE PROGRAM COMMAND-LINE VERSION"""

import gzip
import pathlib
import re
import struct
import subprocess
import sys
import tempfile
import unittest

PACKAGE, PROGRAM, COMMAND_LINE, VERSION = (sys.argv.pop(1) for _ in range(4))
PROJECT = pathlib.Path(__file__).resolve().parents[2]
COMMANDS = ["results", "check", "report", "export", "listing", "dump", "build", "text"]


def output_of(*command, **options):
    return subprocess.run(list(map(str, command)), check=True, capture_output=True, text=True, **options).stdout


def options_of(*call):
    """The long options that a call's help lists."""
    return set(re.findall(r"^ +(?:-\w,)?(--[a-z-]+)", output_of(*call, "--help"), re.MULTILINE))


class MetadataTest(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        folder = tempfile.TemporaryDirectory(prefix="orvel-test-")
        cls.addClassCleanup(folder.cleanup)
        cls.root = pathlib.Path(folder.name)
        subprocess.run(["dpkg-deb", "--extract", PACKAGE, cls.root], check=True)
        cls.share = cls.root / "usr/share"

    def accepts(self, *command):
        done = subprocess.run(list(map(str, command)), check=False, capture_output=True, text=True)
        self.assertEqual(done.returncode, 0, done.stdout + done.stderr)
        return done.stdout + done.stderr

    def completions(self, *words):
        """What bash offers for the last word."""
        script = (
            "shopt -s extglob progcomp; . /usr/share/bash-completion/bash_completion; . \"$1\"; shift;"
            "COMP_WORDS=(orvel-cli \"$@\"); COMP_CWORD=$#; COMP_LINE=\"${COMP_WORDS[*]}\"; COMP_POINT=${#COMP_LINE};"
            "compopt() { :; }; _orvel_cli; printf '%s\\n' \"${COMPREPLY[@]}\""
        )
        return set(output_of("bash", "-c", script, "bash", self.share / "bash-completion/completions/orvel-cli", *words,
                             cwd=self.root).split("\n")) - {""}

    def manual(self, name):
        return gzip.decompress((self.share / f"man/man1/{name}.1.gz").read_bytes()).decode("utf-8")

    def test_both_programs_are_of_this_version(self):
        self.assertEqual(output_of(PROGRAM, "--version"), f"orvel {VERSION}\n")
        self.assertEqual(output_of(COMMAND_LINE, "--version"), f"orvel-cli {VERSION}\n")

    def test_the_changelog_begins_with_this_version(self):
        changes = gzip.decompress((self.share / "doc/orvel/changelog.gz").read_bytes()).decode("utf-8")
        metainfo = (self.share / "metainfo/org.example.orvel.metainfo.xml").read_text(encoding="utf-8")
        day = re.search(r'<release version="[^"]*" date="([^"]*)"', metainfo).group(1)
        self.assertTrue(changes.startswith(f"# Changelog\n\n## {VERSION}, {day}\n"), changes[:40])

    def test_the_package_asks_for_what_the_programs_load(self):
        needed = re.findall(r"(?:^|, )([a-z0-9.+-]+)", output_of("dpkg-deb", "--field", PACKAGE, "Depends").strip())
        for package in ("libqt6widgets6", "libqt6printsupport6", "libqt6gui6", "libqt6svg6", "fonts-liberation", "fonts-dejavu-core"):
            self.assertIn(package, needed)

    def test_the_pages_name_what_the_unpacked_program_needs(self):
        wanted = {"libqt6widgets6", "libqt6printsupport6", "libqt6svg6", "fonts-liberation", "fonts-dejavu-core"}
        for page, place in (("packaging/README.txt.in", r"install the packages\n\n(.*?)\n\n"), ("README.md", r"\(packages\s`(.*?)`\)")):
            text = (PROJECT / page).read_text(encoding="utf-8")
            self.assertEqual(set(re.search(place, text, re.DOTALL).group(1).split()), wanted, page)

    def test_the_notices_of_what_is_compiled_into_the_programs_are_there(self):
        notices = (self.share / "doc/orvel/copyright").read_text(encoding="utf-8")
        for header in ("CLI/App.hpp", "nlohmann/json.hpp", "nlohmann/detail/output/serializer.hpp", "nlohmann/detail/conversions/to_chars.hpp"):
            text = pathlib.Path("/usr/include", header).read_text(encoding="utf-8")
            owners = re.findall(r"^// .*Copyright.*?(20[0-9-]+),? (\w+ \w+)", text, re.MULTILINE)
            self.assertTrue(owners, header)
            for years, owner in owners:
                self.assertIn(f" {years} {owner}", notices.replace("Bjoern", "Björn"), header)

    def test_the_desktop_file_is_valid(self):
        self.assertEqual(self.accepts("desktop-file-validate", self.share / "applications/org.example.orvel.desktop"), "")

    def test_the_metainfo_is_valid_and_names_this_version(self):
        metainfo = self.share / "metainfo/org.example.orvel.metainfo.xml"
        self.accepts("appstreamcli", "validate", "--no-net", "--pedantic", metainfo)
        self.assertEqual(re.findall(r'<release version="([^"]*)"', metainfo.read_text(encoding="utf-8")), [VERSION])

    def test_the_package_has_no_errors(self):
        found = subprocess.run(["lintian", "--fail-on", "error", "--suppress-tags", "initial-upload-closes-no-bugs", PACKAGE],
                               check=False, capture_output=True, text=True)
        self.assertEqual((found.returncode, found.stdout), (0, ""))

    def test_the_kinds_of_file_have_their_endings(self):
        self.accepts("update-mime-database", self.share / "mime")
        endings = (self.share / "mime/globs2").read_text(encoding="utf-8")
        self.assertIn("50:application/x-orvel-center-pivot:*.cpd\n", endings)
        self.assertIn("50:application/x-orvel-solid-set:*.ssd\n", endings)

    def test_icons_are_as_large_as_their_folders_say(self):
        icons = list((self.share / "icons/hicolor").glob("*/apps/orvel.png"))
        self.assertEqual(len(icons), 9)
        for icon in icons:
            width, height = struct.unpack(">II", icon.read_bytes()[16:24])
            self.assertEqual(f"{width}x{height}", icon.parent.parent.name)
        self.assertTrue((self.share / "icons/hicolor/scalable/apps/orvel.svg").exists())

    def test_manual_pages_are_sound_and_of_this_version(self):
        for name in ("orvel", "orvel-cli"):
            page = self.root / (name + ".1")
            page.write_text(self.manual(name), encoding="utf-8")
            self.assertEqual(self.accepts("mandoc", "-T", "lint", "-W", "warning", page), "")
            self.assertIn(f'.Os "ORVEL {VERSION}"', self.manual(name))

    def test_manual_pages_name_every_command_and_option(self):
        options = options_of(COMMAND_LINE).union(*(options_of(COMMAND_LINE, command) for command in COMMANDS))
        for name, wanted in (("orvel", options_of(PROGRAM)), ("orvel-cli", options)):
            named = {"-" + option for option in re.findall(r"^\.It .*?Fl (-[a-z-]+)", self.manual(name), re.MULTILINE)}
            self.assertEqual(named, wanted)
        self.assertEqual(re.findall(r"^\.It Cm (\w+)", self.manual("orvel-cli"), re.MULTILINE), COMMANDS)

    def test_the_completion_offers_every_command_and_option(self):
        listed = re.findall(r"^  (\w+) {2,}", output_of(COMMAND_LINE, "--help").split("Subcommands:")[1], re.MULTILINE)
        self.assertEqual(sorted(listed), sorted(COMMANDS))
        self.assertEqual(self.completions(""), set(COMMANDS) | options_of(COMMAND_LINE))
        for command in COMMANDS:
            self.assertEqual(self.completions(command, "--"), options_of(COMMAND_LINE, command))

    def test_the_completion_offers_files_of_the_commands_kind(self):
        for name in ("a.cpd", "b.SSD", "c.json", "d.rtf", "e.txt"):
            (self.root / name).write_bytes(b"")
        self.assertEqual(self.completions("report", ""), {"a.cpd", "b.SSD", "usr"})
        self.assertEqual(self.completions("build", ""), {"c.json", "usr"})
        self.assertEqual(self.completions("text", "d"), {"d.rtf"})
        self.assertEqual(self.completions("report", "--output-dir", ""), {"usr"})
        self.assertEqual(self.completions("report", "--format", ""), {"text", "rtf", "html"})
        self.assertEqual(self.completions("dump", "--kind", "s"), {"solidSet"})


if __name__ == "__main__":
    unittest.main(verbosity=2)
