#!/bin/sh
# SPDX-FileCopyrightText: 2026 The ORVEL developers
# SPDX-License-Identifier: MIT
# Starts the installed command line with the folder that the desktop program keeps the user's settings in.
installed=$(dirname "$(readlink -f "$0")")/..
# shellcheck source=packaging/own-folder.sh
. "$installed/libexec/orvel/own-folder.sh"
ORVEL_PROGRAM_DIR=$own exec "$installed/libexec/orvel/orvel-cli" "$@"
