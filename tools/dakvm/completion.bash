# Completion of dakvm for bash. Subcommands, options and functions are those that the command lists.

_dakvm_functions() { # COMMAND START
  if [[ $2 == daks* ]]; then
    "$1" list --json | sed -n 's/.*"name":"\([^"]*\)".*/\1/p'
  else
    "$1" list | awk 'NF == 0 { exit } NR > 1 { print $1 }'
  fi
}

# What may follow OPTION: the choices in its help, "A|B" or "TEXT:{A,B}"; "VALUE" where it takes
# anything; nothing where it takes no value.
_dakvm_values() { # OPTION, the help on standard input
  awk -v option="$1" '
    /^  -/ {
      split($1, names, ",")
      if (names[1] != option && names[2] != option) next
      if ($2 ~ /^TEXT:\{|\|/) { gsub(/TEXT:|[{}]/, "", $2); gsub(/[,|]/, "\n", $2); print $2 }
      else if ($2 ~ /^(TEXT|INT|FLOAT)/) print "VALUE"
    }'
}

_dakvm() {
  local command=${1/#\~/$HOME} word=$2 previous=$3 subcommand=${COMP_WORDS[1]} help values k
  COMPREPLY=()
  if ((COMP_CWORD == 1)); then
    mapfile -t COMPREPLY < <(compgen -W "--help $("$command" --help 2>/dev/null |
      awk '/^Subcommands:/ { on = 1; next } on { print $1 }')" -- "$word")
    return
  fi
  help=$("$command" "$subcommand" --help 2>/dev/null) || return 0
  if [[ $previous == -* ]]; then
    values=$(_dakvm_values "$previous" <<<"$help")
    [[ $previous == --grade ]] && values="A50 A53 A11 A21 A24"
    if [[ $values == VALUE ]]; then
      mapfile -t COMPREPLY < <(compgen -f -- "$word")
      return
    elif [[ -n $values ]]; then
      mapfile -t COMPREPLY < <(compgen -W "$values" -- "$word")
      return
    fi
  fi
  if [[ $word == -* ]]; then
    mapfile -t COMPREPLY < <(compgen -W "$(awk '/^  -/ { gsub(",", " ", $1); print $1 }' \
      <<<"$help")" -- "$word")
    return
  fi
  grep -q '^  FUNC ' <<<"$help" || return 0
  values=$(_dakvm_functions "$command" "$word" 2>/dev/null)
  if grep -q '^  FILE ' <<<"$help"; then
    for ((k = 2; k < COMP_CWORD; ++k)); do # the function is there already: a file is next
      if _dakvm_functions "$command" "${COMP_WORDS[k]}" 2>/dev/null |
        grep -xF -- "${COMP_WORDS[k]}" >/dev/null; then
        mapfile -t COMPREPLY < <(compgen -f -- "$word")
        return
      fi
    done
  fi
  mapfile -t COMPREPLY < <(compgen -W "$values" -- "$word")
} && complete -o filenames -F _dakvm dakvm
