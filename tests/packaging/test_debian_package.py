# SPDX-FileCopyrightText: 2026 The ORVEL developers
# SPDX-License-Identifier: MIT
"""Installs the Debian package into a root of its own and uses it there as an ordinary user:
test_debian_package.py PACKAGE COMMAND-LINE [TEST...]

The environment variable ORVEL_PACKAGE_ROOT names the folder of another system to install on top of than this one; apt
then fetches what the package needs. COMMAND-LINE is the command line of the build.
"""

import os
import pathlib
import re
import subprocess
import sys
import time
import unittest

from clean_root import CleanRoot, own_mounts

if __name__ == "__main__":
    own_mounts()

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parents[1] / "e2e"))
PACKAGE, COMMAND_LINE = (sys.argv.pop(1) for _ in range(2))
BELOW = os.environ.get("ORVEL_PACKAGE_ROOT", "/")
sys.argv[1:1] = [PACKAGE, COMMAND_LINE]
from program import EXAMPLES, desktop, user_settings, wait_for_a_calm_second  # noqa: E402  pylint: disable=wrong-import-position

root = CleanRoot(BELOW)


class DebianPackageTest(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        (root / "orvel.deb").write_bytes(pathlib.Path(PACKAGE).read_bytes())
        before = cls.files_of_the_system()
        if BELOW == "/":
            # This system has all that the package needs.
            root.run("dpkg", "--install", "/orvel.deb")
        else:
            root.run("apt-get", "update", "--quiet")
            root.run("apt-get", "install", "--yes", "--quiet", "--no-install-recommends", "/orvel.deb")
            # What the tests themselves need there; a desktop has it.
            root.run("apt-get", "install", "--yes", "--quiet", "--no-install-recommends", "procps", "libglib2.0-bin",
                     "shared-mime-info", "desktop-file-utils")
        cls.packaged = set(root.run("dpkg", "--listfiles", "orvel").splitlines()) - before - {"/.", "/usr"}
        for user in ("orvel-ida", "orvel-ola"):
            root.run("useradd", "--create-home", "--user-group", user)
            field = root / f"home/{user}/north field.cpd"
            field.write_bytes((EXAMPLES / "pivot-1978.cpd").read_bytes())
            root.run("chown", f"{user}:", f"/home/{user}/north field.cpd")

    @staticmethod
    def files_of_the_system():
        return {"/" + str(path.relative_to(root.path)) for path in (root / "usr").rglob("*")}

    def setUp(self):
        root.run("rm", "-rf", "/home/orvel-ida/.local", "/home/orvel-ola/.local")

    def own_folder(self, user):
        return root / f"home/{user}/.local/share/orvel"

    def give_settings(self, user, name):
        own = self.own_folder(user)
        root.run("mkdir", "-p", f"/home/{user}/.local/share/orvel", user=user)
        (own / "user.usr").write_bytes(user_settings(name, f"/home/{user}"))
        root.run("chown", f"{user}:", f"/home/{user}/.local/share/orvel/user.usr")
        return own

    def open(self, user, *command):
        wait_for_a_calm_second()
        self.addCleanup(desktop.end)
        desktop.open(root.command(user, *command))

    def start(self, user, *command):
        self.open(user, *command)
        # The splash window has the main window's title, but comes before the soils.
        desktop.wait_for((self.own_folder(user) / "soil.dat").exists, "the main window")

    @staticmethod
    def windows(title):
        return subprocess.run(["xdotool", "search", "--onlyvisible", "--name", f"^{title}$"], capture_output=True,
                              check=False).stdout.split()

    def wait_for_window(self, title):
        desktop.place_of(title)
        desktop.wait_until_active(title)

    def end_program(self):
        self.wait_for_window("ORVEL")
        desktop.keys("ctrl+q")
        self.assertEqual(desktop.status(), 0)

    def test_a_new_user_opens_a_file_and_has_a_folder_of_their_own(self):
        self.start("orvel-ida", "orvel", "north field.cpd")
        self.wait_for_window("User Settings Error")
        desktop.keys("Return")
        self.wait_for_window("ORVEL")
        desktop.keys("alt+g")
        entry = (root / "usr/share/applications/org.example.orvel.desktop").read_text(encoding="utf-8")
        window_class = re.search(r"^StartupWMClass=(.*)$", entry, re.MULTILINE).group(1)
        found = subprocess.run(["xdotool", "search", "--onlyvisible", "--class", f"^{window_class}$"],
                               capture_output=True, check=False)
        self.assertEqual(found.returncode, 0, "a desktop can't tell whose window it is")
        # Without an open file a box would say so.
        self.wait_for_window("Report")
        desktop.keys("alt+w", "m")
        self.wait_for_window("ORVEL")
        desktop.keys("alt+h", "Return")
        self.wait_for_window("Help & Instructions")
        desktop.keys("Escape")
        self.end_program()

        own = self.own_folder("orvel-ida")
        self.assertEqual(sorted(path.name for path in own.iterdir()), ["help.rtf", "soil.dat", "user.usr"])
        self.assertEqual(str((own / "help.rtf").readlink()), "/usr/share/orvel/help.rtf")
        self.assertEqual(own.stat().st_uid, int(root.run("id", "--user", "orvel-ida")))
        self.assertEqual(sorted(path.name for path in (root / "usr/libexec/orvel").iterdir()), ["orvel", "orvel-cli", "own-folder.sh"])

    def test_a_double_click_opens_the_test(self):
        self.give_settings("orvel-ida", "Ida Lund")
        kind = root.run("gio", "info", "--attributes=standard::content-type", "north field.cpd", user="orvel-ida")
        self.assertIn("application/x-orvel-center-pivot", kind)
        self.assertIn("org.example.orvel.desktop", root.run("gio", "mime", "application/x-orvel-center-pivot", user="orvel-ida"))
        self.assertIn("org.example.orvel.desktop", root.run("gio", "mime", "application/x-orvel-solid-set", user="orvel-ida"))
        # What is opened so is nobody's child.
        self.addCleanup(root.run, "pkill", "-x", "orvel", user="orvel-ida")
        self.start("orvel-ida", "sh", "-c", "gio open 'north field.cpd'; exec sleep 600")
        self.wait_for_window("ORVEL")
        desktop.keys("alt+g")
        self.wait_for_window("Report")

    def test_each_user_has_settings_of_their_own(self):
        self.give_settings("orvel-ida", "Ida Lund")
        own = self.give_settings("orvel-ola", "Ola Berg")
        for user, name, other in (("orvel-ida", "Ida Lund", "Ola Berg"), ("orvel-ola", "Ola Berg", "Ida Lund")):
            report = root.run("orvel-cli", "report", "north field.cpd", user=user)
            self.assertIn(name, report)
            self.assertNotIn(other, report)
        elsewhere = root.run("orvel-cli", "report", "--program-dir", "/tmp", "north field.cpd", user="orvel-ola")
        self.assertNotIn("Ola Berg", elsewhere)
        self.assertFalse((own / "soil.dat").exists(), "the command line writes no settings")

    def test_help_of_their_own_stays(self):
        own = self.give_settings("orvel-ola", "Ola Berg")
        (own / "Help.RTF").write_bytes(rb"{\rtf1 Mine}")
        self.start("orvel-ola", "orvel")
        self.end_program()
        self.assertEqual([path.name for path in own.iterdir() if path.suffix.lower() == ".rtf"], ["Help.RTF"])

    def test_a_folder_that_cannot_be_made_is_told(self):
        # Nobody is to make anything there: not even a folder is where a file is.
        (root / "home/orvel-ola/.local").write_bytes(b"")
        self.open("orvel-ola", "orvel")
        # A box that says so, then the one of the error: both have the splash window's title.
        desktop.wait_for(lambda: len(self.windows("ORVEL")) == 2, "a box in front of the splash window")
        for _ in range(100):
            if desktop.program.poll() is None:
                desktop.keys("Return")
                time.sleep(0.2)
        self.assertEqual(desktop.status(), 1)

    def test_installed_and_built_command_line_say_the_same(self):
        arguments = ["--now", "2026-07-04 09:05:03", "--program-dir", "/tmp"]
        built = subprocess.run([COMMAND_LINE, "report", *arguments, EXAMPLES / "pivot-1978.cpd"], check=True,
                               capture_output=True).stdout
        installed = subprocess.run(
            root.command("orvel-ida", "orvel-cli", "report", *arguments, "/usr/share/doc/orvel/examples/pivot-1978.cpd"),
            check=True, capture_output=True).stdout
        self.assertEqual(installed, built)

    def test_manual_pages_and_completion_are_found(self):
        for name in ("usr/share/man/man1/orvel.1.gz", "usr/share/man/man1/orvel-cli.1.gz",
                     "usr/share/bash-completion/completions/orvel-cli"):
            self.assertTrue((root / name).is_file(), name)


class RemovedPackageTest(unittest.TestCase):
    """Runs last: it takes the package away."""

    def test_nothing_stays_behind(self):
        root.run("dpkg", "--purge", "orvel")
        packaged = DebianPackageTest.packaged
        self.assertIn("/usr/bin/orvel", packaged)
        self.assertEqual([name for name in packaged if (root / name).is_file()], [])
        own = [name for name in packaged if name.endswith("/orvel") and not name.startswith("/usr/bin/")]
        self.assertEqual(sorted(own), ["/usr/libexec/orvel", "/usr/libexec/orvel/orvel", "/usr/share/doc/orvel", "/usr/share/orvel"])
        self.assertEqual([name for name in own if (root / name).exists()], [])
        self.assertTrue((root / "home/orvel-ida").is_dir())


def load_tests(loader, _tests, _pattern):
    classes = (DebianPackageTest, RemovedPackageTest)
    return unittest.TestSuite(loader.loadTestsFromTestCase(one) for one in classes)


if __name__ == "__main__":
    with root, desktop:
        unittest.main(verbosity=2)
