# bash completion for xsec. The options come from the program's own help, so that they are always those it has.

_xsec() {
  local current=${COMP_WORDS[COMP_CWORD]} previous=${COMP_WORDS[COMP_CWORD - 1]} command=${COMP_WORDS[1]}
  local words=
  COMPREPLY=()
  if [ "$COMP_CWORD" -eq 1 ]; then
    words="$(xsec --help 2>/dev/null | sed -n '/^Subcommands:/,/^$/ s/^  \([a-z][a-z]*\) .*/\1/p') --help --version"
  elif [ "$previous" = --name-from ]; then
    words="layer text block"
  elif [[ $current == -* ]]; then
    words=$(xsec "$command" --help 2>/dev/null | grep -oE -- '--[a-z][a-z-]+' | sort -u)
  fi
  if [ -n "$words" ]; then
    mapfile -t COMPREPLY < <(compgen -W "$words" -- "$current")
  else
    mapfile -t COMPREPLY < <(compgen -f -- "$current")
    compopt -o filenames 2>/dev/null
  fi
}

complete -F _xsec xsec
