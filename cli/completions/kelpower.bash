# Completion of kelpower for bash. The program itself knows what may come next.
_kelpower() {
  local candidate current=${COMP_WORDS[COMP_CWORD]}
  [ "$current" = "=" ] && current=""
  COMPREPLY=()
  while IFS= read -r candidate; do
    if [ "$candidate" = ":files" ]; then
      compopt -o filenames 2>/dev/null
      while IFS= read -r candidate; do COMPREPLY+=("$candidate"); done < <(compgen -f -- "$current")
    else
      COMPREPLY+=("${candidate%%$'\t'*}")
    fi
  done < <("${COMP_WORDS[0]}" --complete "${COMP_WORDS[@]:1:COMP_CWORD}" 2>/dev/null)
}
complete -F _kelpower kelpower
