# Completion for swiftroll-cli. Jobs, options and tables are those that the program's own help tells.

_swiftroll_cli() {
    local word=$2 previous=$3 help
    COMPREPLY=()
    help=$("${COMP_WORDS[0]}" --aide 2>/dev/null) || return
    if ((COMP_CWORD == 1)); then
        local jobs
        jobs=$(sed -n 's/^  swiftroll-cli \([a-z]*\) .*/\1/p' <<<"$help")
        mapfile -t COMPREPLY < <(compgen -W "$jobs --aide --version" -- "$word")
        return
    fi
    case $previous in
        -o | --dessin | --modele) compopt -o filenames; mapfile -t COMPREPLY < <(compgen -f -- "$word") ;;
        -t) mapfile -t COMPREPLY < <(compgen -W "$(grep -o 'lvw[A-Za-z0-9]*' <<<"$help" | sort -u)" -- "$word") ;;
        --format | --mode)
            local values
            values=$(grep -o -- "$previous [a-z+]*|[a-z+|]*" <<<"$help" | cut -d ' ' -f 2 | tr '|' '\n' | sort -u)
            mapfile -t COMPREPLY < <(compgen -W "$values" -- "$word") ;;
        --ajouter | --enlever)
            mapfile -t COMPREPLY < <(compgen -W "individus parents conjoints enfants ascendants descendants" -- "$word") ;;
        *)
            if [[ $word == -* ]]; then
                mapfile -t COMPREPLY < <(compgen -W "$(_swiftroll_cli_options "${COMP_WORDS[1]}" <<<"$help")" -- "$word")
            else
                compopt -o filenames
                mapfile -t COMPREPLY < <(compgen -f -X '!*.[gG][eE][dD]' -- "$word"; compgen -d -- "$word")
            fi ;;
    esac
}

# The options of a job and of all jobs, out of the help on the standard input.
_swiftroll_cli_options() {
    awk -v job="$1" '
        /^  swiftroll-cli / { mine = $2 == job }
        /^Options de tous/ { mine = 1 }
        /^Codes de sortie/ { mine = 0 }
        mine { while (match($0, /--?[a-z][a-z-]*/)) { print substr($0, RSTART, RLENGTH); $0 = substr($0, RSTART + RLENGTH) } }
    ' | grep -E '^(--[a-z-]+|-[a-z])$' | sort -u
}

complete -F _swiftroll_cli swiftroll-cli
