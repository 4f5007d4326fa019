# SPDX-FileCopyrightText: 2026 The ORVEL developers
# SPDX-License-Identifier: MIT
"""Runs a command on a desktop of its own: on_display.py COMMAND [ARGUMENT...]"""

import subprocess
import sys

from desktop import Desktop

with Desktop():
    sys.exit(subprocess.run(sys.argv[1:], check=False).returncode)
