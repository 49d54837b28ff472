# Completion of iceline for bash: the commands and options as the program itself lists them, and files.
_iceline() {
    local current=${COMP_WORDS[COMP_CWORD]} word help
    local -a command=()
    for word in "${COMP_WORDS[@]:1:COMP_CWORD-1}"; do
        [[ $word == -* || $word == */* ]] || command+=("$word")
    done
    help=$(iceline help "${command[@]}" 2>/dev/null)
    if [[ $current == -* ]]; then
        mapfile -t COMPREPLY < <(compgen -W "$(grep -oE -- '--[a-z-]+' <<<"$help")" -- "$current")
    else
        mapfile -t COMPREPLY < <(compgen -W "$(sed -n '/^Commands:/,$s/^  \([a-z-]*\)  .*/\1/p' <<<"$help")" -- "$current")
        ((${#COMPREPLY[@]})) || compopt -o default
    fi
}
complete -F _iceline iceline
