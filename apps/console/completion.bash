# Completion of cabsettings for bash: the program itself knows what may follow.

_cabsettings()
{
    local current=${COMP_WORDS[COMP_CWORD]}
    local typed=("${COMP_WORDS[@]:1:COMP_CWORD-1}")
    local IFS=$'\n'
    COMPREPLY=($(compgen -W "$("${COMP_WORDS[0]}" "${typed[@]}" --complete 2>/dev/null)" -- "$current"))
    [ ${#COMPREPLY[@]} -gt 0 ] || COMPREPLY=($(compgen -f -- "$current"))
}

complete -o filenames -F _cabsettings cabsettings
