# SPDX-License-Identifier: MIT
# The program says what fits; here it is only quoted. bash-completion loads this file by its name.
_halvern_print() {
    local cur words cword candidates candidate before quote
    _get_comp_words_by_ref -n "=:@," cur words cword
    # Within quotation marks the shell closes them itself.
    quote=
    case $cur in [\'\"]*) quote=${cur:0:1} && cur=${cur:1} ;; esac
    words[cword]=$cur
    mapfile -t candidates < <("$1" --complete "${words[@]:1:cword}" 2>/dev/null)
    COMPREPLY=()
    # Readline replaces only what follows the last of these characters.
    before=
    [ -n "$quote" ] || case $cur in *[=:]*) before=${cur%"${cur##*[=:]}"} ;; esac
    for candidate in "${candidates[@]}"; do
        if [ "$candidate" = / ]; then
            compopt -o filenames
            mapfile -t -O "${#COMPREPLY[@]}" COMPREPLY < <(compgen -f -- "${cur##*=}")
            continue
        fi
        candidate=${candidate%%$'\t'*}
        case $candidate in *=) compopt -o nospace ;; esac
        candidate=${candidate#"$before"}
        [ -n "$quote" ] || printf -v candidate %q "$candidate"
        COMPREPLY+=("$candidate")
    done
} && complete -F _halvern_print halvern-print
