#!/bin/sh
# SPDX-FileCopyrightText: 2026 The ORVEL developers
# SPDX-License-Identifier: MIT
# Starts the installed program with a folder of the user's own for settings, soils and help.
installed=$(dirname "$(readlink -f "$0")")/..
# shellcheck source=packaging/own-folder.sh
. "$installed/libexec/orvel/own-folder.sh"

is_used=yes
for word in "$@"; do
  case $word in
    -h | --help | --version | --program-dir | --program-dir=*) is_used=no ;;
    --) break ;;
  esac
done

if [ "$is_used" = yes ]; then
  # Where the folder can't be made the program says so in a box.
  [ -d "$own" ] || { mkdir -p "$(dirname "$own")" && mkdir -m 700 "$own"; } 2>/dev/null
  has_help=no
  for help in "$own"/[Hh][Ee][Ll][Pp].[Rr][Tt][Ff]; do
    [ ! -e "$help" ] || has_help=yes
  done
  [ "$has_help" = yes ] || ln -sf "$(readlink -f "$installed/share/orvel/help.rtf")" "$own/help.rtf" 2>/dev/null
fi

ORVEL_PROGRAM_DIR=$own exec "$installed/libexec/orvel/orvel" "$@"
