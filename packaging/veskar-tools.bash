# shellcheck shell=bash
# Completion of the veskar programs: subcommands and options as their own --help has them.
_veskar() {
    local help subcommands word
    help=$("$1" --help 2>/dev/null)
    subcommands=$(sed -n '/^Subcommands:/,/^$/s/^  \([a-z-]\+\) .*/\1/p' <<<"$help")
    for word in "${COMP_WORDS[@]:1:COMP_CWORD-1}"; do
        grep -qxFe "$word" <<<"$subcommands" || continue
        help=$("$1" "$word" --help 2>/dev/null)
        subcommands=''
    done
    COMPREPLY=()
    case $2 in
    -*) mapfile -t COMPREPLY < <(compgen -W "$(sed -n 's/^ \+\(-h,\)\?\(--[a-z-]\+\).*/\2/p' <<<"$help")" -- "$2") ;;
    *) mapfile -t COMPREPLY < <(compgen -W "$subcommands" -- "$2") ;;
    esac
}
complete -o default -F _veskar veskar-tv veskar-watch veskar-mw veskar-remote veskar-setting
