# Completion of ostrane-dat for bash.
_ostrane_dat() {
  local current=${COMP_WORDS[COMP_CWORD]} previous=${COMP_WORDS[COMP_CWORD - 1]}
  local command=${COMP_WORDS[1]} options= position=1 word i
  COMPREPLY=()
  if [ "$COMP_CWORD" -eq 1 ]; then
    mapfile -t COMPREPLY < <(compgen -W 'list extract build add remove compare check export import
      --help --version' -- "$current")
    return
  fi
  case $command in
    list) options='--long --json --icon-names' ;;
    extract) options=-d ;;
    build | compare) options=-o ;;
    export) options='-d --as --pace --scale' ;;
    import) options='-o --palette --like' ;;
  esac
  case $previous in
    --as)
      mapfile -t COMPREPLY < <(compgen -W 'png sheet gif' -- "$current")
      return
      ;;
    --pace | --scale) return ;;
    -d)
      mapfile -t COMPREPLY < <(compgen -d -- "$current")
      return
      ;;
  esac
  if [[ $current == -* ]]; then
    mapfile -t COMPREPLY < <(compgen -W "$options --quiet --help" -- "$current")
    return
  fi
  for ((i = 2; i < COMP_CWORD; ++i)); do
    word=${COMP_WORDS[i]}
    [[ $word == -* || ${COMP_WORDS[i - 1]} == -[do] ]] || position=$((position + 1))
  done
  case $command in
    extract | remove | export)
      if [ "$position" -gt 1 ]; then
        local IFS=$'\n'
        mapfile -t COMPREPLY < <(compgen -W "$(ostrane-dat list "${COMP_WORDS[2]}" 2>/dev/null)" \
          -- "${current^^}")
        return
      fi
      ;;
  esac
  mapfile -t COMPREPLY < <(compgen -f -- "$current")
}
complete -o filenames -F _ostrane_dat ostrane-dat
