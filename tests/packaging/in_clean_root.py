# SPDX-FileCopyrightText: 2026 The ORVEL developers
# SPDX-License-Identifier: MIT
"""Runs a command in a copy of another system, as an ordinary user with sudo, in a fresh clone of this project:
in_clean_root.py ROOT COMMAND... Its status is the command's."""

import pathlib
import socket
import subprocess
import sys

from clean_root import CleanRoot, own_mounts

own_mounts()
# Not chroot: who is in one can't make namespaces, which tests do.
INTO_ROOT = """
cd "$0" && pivot_root . mnt && umount --lazy /mnt || exit
exec env --ignore-environment --chdir=/home/ida/orvel HOME=/home/ida USER=ida PATH=/usr/sbin:/usr/bin:/sbin:/bin LC_ALL=C.UTF-8 \\
  setpriv --reuid=ida --regid=ida --init-groups "$@"
"""
PROJECT = pathlib.Path(__file__).resolve().parents[2]

with CleanRoot(sys.argv[1]) as root:
    root.run("useradd", "--create-home", "--user-group", "ida")
    (root / "etc/sudoers.d/ida").write_text("ida ALL=(ALL) NOPASSWD: ALL\n", encoding="ascii")
    (root / "etc/hosts").write_text(f"127.0.0.1 localhost {socket.gethostname()}\n", encoding="ascii")
    clone = root / "home/ida/orvel"
    subprocess.run(["git", "-c", f"safe.directory={PROJECT}/.git", "clone", "--quiet", "--no-hardlinks", PROJECT, clone],
                   check=True)
    root.run("chown", "--recursive", "ida:", "/home/ida/orvel")
    status = subprocess.run(["unshare", "--mount", "sh", "-c", INTO_ROOT, root.path, *sys.argv[2:]], check=False).returncode
sys.exit(status)
