# Completion of ostrane-dat for bash.

# Prints a word of the command line without quotes and backslashes, and ~/ as the home folder. Nothing
# else is expanded.
_ostrane_dat_unquoted() {
  local word=$1
  [[ $word != '~/'* ]] || word=$HOME/${word#'~/'}
  xargs printf %s <<<"$word" 2>/dev/null
}

# Completes names of entries of the archive $1. They may contain anything, so compgen -W, which expands
# its words, is not for them.
_ostrane_dat_names() {
  local name start=${2#[\"\']}
  while IFS= read -r name; do
    [[ $name != "${start^^}"* ]] || COMPREPLY+=("$name")
  done < <(ostrane-dat list "$(_ostrane_dat_unquoted "$1")" 2>/dev/null)
}

_ostrane_dat() {
  local current=${COMP_WORDS[COMP_CWORD]} previous=${COMP_WORDS[COMP_CWORD - 1]}
  local command=${COMP_WORDS[1]} options= archive= i
  COMPREPLY=()
  if [ "$COMP_CWORD" -eq 1 ]; then
    mapfile -t COMPREPLY < <(compgen -W 'list extract build add remove rename pack diff compare check
      export import help --help --version' -- "$current")
    return
  fi
  case $command in
    list) options='--long --json --sort --icon-names' ;;
    extract) options='-d -o --overwrite' ;;
    build | compare) options=-o ;;
    add) options=--force ;;
    rename) options=--keep-order ;;
    diff) options=--json ;;
    export) options='-d --as --pace --scale' ;;
    import) options='-o --palette --like --grid' ;;
  esac
  case $command in
    extract | build | add | remove | rename | pack | compare | export | import)
      options+=' --verbose --dry-run'
      ;;
  esac
  case $previous in
    --as)
      mapfile -t COMPREPLY < <(compgen -W 'png sheet gif' -- "$current")
      return
      ;;
    --sort)
      mapfile -t COMPREPLY < <(compgen -W 'name size offset kind' -- "$current")
      return
      ;;
    --pace | --scale | --grid) return ;;
    -d)
      compopt -o dirnames
      return
      ;;
    -o | --icon-names | --palette | --like)
      compopt -o default
      return
      ;;
  esac
  if [[ $current == -* ]]; then
    mapfile -t COMPREPLY < <(compgen -W "$options --quiet --help" -- "$current")
    return
  fi
  case $command in
    help)
      mapfile -t COMPREPLY < <(compgen -W 'list extract build add remove rename pack diff compare check
        export import' -- "$current")
      return
      ;;
    extract | remove | rename | pack | export)
      # The first word that is neither an option nor the value of one.
      for ((i = 2; i < COMP_CWORD && ${#archive} == 0; ++i)); do
        case ${COMP_WORDS[i]} in
          -d | -o | --as | --pace | --scale) [ "${COMP_WORDS[++i]}" != = ] || ((++i)) ;;
          -*) ;;
          *) archive=${COMP_WORDS[i]} ;;
        esac
      done
      [ -z "$archive" ] || {
        _ostrane_dat_names "$archive" "$current"
        return
      }
      ;;
  esac
  compopt -o default  # readline knows quotes and ~
}
complete -o filenames -F _ostrane_dat ostrane-dat
