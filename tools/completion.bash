# Completion of dakvm and dakvm-accuracy for bash. Subcommands, options and functions are those that
# the commands list.

_dakvm_functions() { # COMMAND START: families, or exported names if START begins like one
  local names
  names=$({ "$1" list --json || "$1" list; } 2>/dev/null |
    grep -o 'daks[[:alnum:]]*_[0-9]*f_A[0-9]*')
  if [[ $2 == daks* ]]; then
    echo "$names"
  else
    awk -F_ '{ sub("^daks", ""); print $1 }' <<<"$names" | uniq
  fi
}

# What may follow OPTION: the choices in its help, "A|B" or "TEXT:{A,B}"; "FILE" or "NUMBER" where
# it takes any; nothing where it takes no value.
_dakvm_values() { # OPTION, the help on standard input
  awk -v option="$1" '
    /^  -/ {
      split($1, names, ",")
      if (names[1] != option && names[2] != option) next
      if ($2 ~ /^TEXT:\{|\|/) { gsub(/TEXT:|[{}]|=.*/, "", $2); gsub(/[,|]/, "\n", $2); print $2 }
      else if ($2 ~ /^TEXT/) print "FILE"
      else if ($2 ~ /^(U?INT|FLOAT)/) print "NUMBER"
      exit
    }'
}

_dakvm() {
  local command=${1/#\~/$HOME} word=$2 previous=$3 subcommands help options values="" given
  COMPREPLY=()
  help=$("$command" --help 2>/dev/null) || return 0
  options=$help
  subcommands=$(awk '/^Subcommands:/ { on = 1; next } on && NF == 0 { exit } on { print $1 }' \
    <<<"$help")
  for given in "${COMP_WORDS[@]:1:COMP_CWORD-1}"; do
    if grep -xF -- "$given" >/dev/null <<<"$subcommands"; then
      help=$("$command" "$given" --help 2>/dev/null) || return 0
      options=$help$'\n'$options # those of the command hold for its subcommands too
      subcommands=""
      break
    fi
  done

  if [[ $previous == -* ]]; then
    values=$(_dakvm_values "$previous" <<<"$options")
    [[ $previous == --grade ]] && values="A50 A53 A11 A21 A24"
    case $values in
      FILE) mapfile -t COMPREPLY < <(compgen -f -- "$word") ;;
      NUMBER) ;;
      *) mapfile -t COMPREPLY < <(compgen -W "$values" -- "$word") ;;
    esac
    [[ -z $values ]] || return 0
  fi
  if [[ $word == -* ]]; then
    values=$(awk '/^  -/ && !seen[$1]++ { gsub(",", " ", $1); print $1 }' <<<"$options")
    mapfile -t COMPREPLY < <(compgen -W "$values" -- "$word")
    return
  fi
  if grep -qE '^  (FUNCS?|FAMILY) ' <<<"$help"; then
    values=$(_dakvm_functions "$command" "$word")
    if grep -q '^  FILE ' <<<"$help"; then
      for given in "${COMP_WORDS[@]:2:COMP_CWORD-2}"; do # the function is there: a file is next
        if _dakvm_functions "$command" "$given" | grep -xF -- "$given" >/dev/null; then
          mapfile -t COMPREPLY < <(compgen -f -- "$word")
          return
        fi
      done
    fi
  fi
  mapfile -t COMPREPLY < <(compgen -W "$subcommands $values" -- "$word")
} && complete -o filenames -F _dakvm dakvm dakvm-accuracy
