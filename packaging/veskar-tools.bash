# shellcheck shell=bash
# Completion of the veskar programs: subcommands and options as their own --help has them.
_veskar() {
    local word subcommand=() help
    COMPREPLY=()
    for word in "${COMP_WORDS[@]:1:COMP_CWORD-1}"; do
        case $word in -*) ;; *) subcommand=("$word") && break ;; esac
    done
    help=$("$1" "${subcommand[@]}" --help 2>/dev/null) || help=$("$1" --help 2>/dev/null)
    case $2 in
    -*) mapfile -t COMPREPLY < <(compgen -W "$(grep -oE -- '--[a-z][a-z-]*' <<<"$help")" -- "$2") ;;
    *)
        [ ${#subcommand[@]} -gt 0 ] || mapfile -t COMPREPLY < <(compgen -W \
            "$(sed -n '/^Subcommands:/,/^$/s/^  \([a-z-]\+\) .*/\1/p' <<<"$help")" -- "$2")
        ;;
    esac
}
complete -o default -F _veskar veskar-tv veskar-mw veskar-remote veskar-setting
