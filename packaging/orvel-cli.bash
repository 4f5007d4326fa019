# SPDX-FileCopyrightText: 2026 The ORVEL developers
# SPDX-License-Identifier: MIT
# Completion of the command line, with the functions of the package bash-completion.

_orvel_cli() {
  local cur prev words cword
  _init_completion || return

  local replies=
  if [ "$cword" -eq 1 ]; then
    replies='results check report export listing dump build text --help --version'
  else
    case $prev in
      --kind) replies='centerPivot solidSet' ;;
      --format) replies='text rtf html' ;;
      --now) return ;;
      --program-dir | --output-dir) _filedir -d; return ;;
      -o | --output) _filedir; return ;;
    esac
  fi
  if [ -z "$replies" ] && [[ $cur == -* ]]; then
    replies='--help --program-dir --now --output'
    case ${words[1]} in
      results | check) replies+=' --kind --json' ;;
      report) replies+=' --kind --json --format --output-dir' ;;
      export) replies+=' --kind --output-dir' ;;
      listing | dump | build) replies+=' --kind' ;;
      text) replies+=' --json' ;;
    esac
  fi
  if [ -n "$replies" ]; then
    mapfile -t COMPREPLY < <(compgen -W "$replies" -- "$cur")
    return
  fi
  case ${words[1]} in
    build) _filedir json ;;
    text) _filedir rtf ;;
    *) _filedir '@(cpd|ssd)' ;;
  esac
}

complete -F _orvel_cli orvel-cli
