# SPDX-FileCopyrightText: 2026 The ORVEL developers
# SPDX-License-Identifier: MIT
# shellcheck shell=sh
# Read by the launchers: sets "own" to the folder that the installed programs keep this user's settings in.
case ${XDG_DATA_HOME-} in
  /*) data=$XDG_DATA_HOME ;;
  *) data=${HOME:-$(getent passwd "$(id -u)" | cut -d : -f 6)}/.local/share ;;
esac
# shellcheck disable=SC2034 # the launchers use it
own=${ORVEL_PROGRAM_DIR:-$data/orvel}
