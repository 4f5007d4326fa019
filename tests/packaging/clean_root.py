# SPDX-FileCopyrightText: 2026 The ORVEL developers
# SPDX-License-Identifier: MIT
"""A root of the file system that a test may install into: what another root has, and on top of it, in memory, what
the test does. Ends with the test, whatever happens, since only the test's process sees it.

    own_mounts()                        # once, at the very beginning of the program
    with CleanRoot("/") as root:
        root.run("dpkg", "--install", "/x.deb")
        desktop.open(root.command("ida", "orvel"))

Needs root or sudo, as everything that installs.
"""

import os
import pathlib
import subprocess
import sys
import tempfile


def own_mounts():
    """Starts this program anew where its mounts are its own, as root."""
    if os.environ.get("ORVEL_TEST_HAS_OWN_MOUNTS") != "yes":
        as_root = [] if os.geteuid() == 0 else ["sudo"]
        os.execvp(
            "env",
            ["env", *as_root, "unshare", "--mount", "env", "ORVEL_TEST_HAS_OWN_MOUNTS=yes",
             "ORVEL_PACKAGE_ROOT=" + os.environ.get("ORVEL_PACKAGE_ROOT", "/"), "/usr/bin/python3", *sys.argv],
        )


class CleanRoot:
    def __init__(self, below):
        self.below = below

    def __enter__(self):
        # pylint: disable-next=consider-using-with
        self.folder = tempfile.TemporaryDirectory(prefix="orvel-test-")
        self.mounts = []
        try:
            self._build(pathlib.Path(self.folder.name))
        except BaseException:
            self.__exit__()
            raise
        return self

    def __exit__(self, *_):
        for place in reversed(self.mounts):
            subprocess.run(["umount", "--lazy", place], check=True)
        self.folder.cleanup()

    def run(self, *command, user="root"):
        """What a command that must succeed prints."""
        done = subprocess.run(self.command(user, *command), check=False, capture_output=True, text=True)
        if done.returncode != 0:
            raise AssertionError(f"{' '.join(map(str, command))}: status {done.returncode}\n{done.stdout}{done.stderr}")
        return done.stdout

    def command(self, user, *command):
        """The command as that user has it, who has just logged in."""
        home = "/root" if user == "root" else "/home/" + user
        surroundings = [f"HOME={home}", "PATH=/usr/sbin:/usr/bin:/sbin:/bin", "LC_ALL=C.UTF-8"]
        surroundings += [f"{name}={os.environ[name]}" for name in ("DISPLAY", "QT_QPA_PLATFORM") if name in os.environ]
        return ["chroot", f"--userspec={user}:", self.path, "env", "--ignore-environment", f"--chdir={home}",
                *surroundings, *map(str, command)]

    def __truediv__(self, name):
        return self.path / name.lstrip("/")

    def _build(self, folder):
        self._mount("-t", "tmpfs", "orvel-test", folder)
        for name in ("over", "work", "root"):
            (folder / name).mkdir()
        self.path = folder / "root"
        self._mount("-t", "overlay", "orvel-test", "-o",
                    f"lowerdir={self.below},upperdir={folder}/over,workdir={folder}/work", self.path)
        self._mount("-t", "proc", "proc", self / "proc")
        for name in ("dev", "sys"):
            self._mount("--rbind", "--make-rslave", "/" + name, self / name)
        self._mount("-t", "tmpfs", "orvel-test", self / "tmp")
        (self / "tmp").chmod(0o1777)
        # Services are not to start, nor is anything to be asked.
        (self / "usr/sbin/policy-rc.d").write_text("#!/bin/sh\nexit 101\n", encoding="ascii")
        (self / "usr/sbin/policy-rc.d").chmod(0o755)

    def _mount(self, *arguments):
        subprocess.run(["mount", *map(str, arguments)], check=True)
        self.mounts.append(arguments[-1])
