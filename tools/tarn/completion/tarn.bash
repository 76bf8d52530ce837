# Completion of tarn for bash.

_tarn() {
    local word=${COMP_WORDS[COMP_CWORD]} before=${COMP_WORDS[COMP_CWORD - 1]} command='' i
    COMPREPLY=()
    for ((i = 1; i < COMP_CWORD; ++i)); do
        case ${COMP_WORDS[i]} in
        probe | effects | run | draw)
            command=${COMP_WORDS[i]}
            break
            ;;
        esac
    done

    # The shell takes --color=auto apart at its equals sign.
    [ "$word" = = ] && before=--color word=
    [ "$before" = = ] && before=${COMP_WORDS[COMP_CWORD - 2]}
    if [ "$before" = --color ]; then
        mapfile -t COMPREPLY < <(compgen -W 'auto always never' -- "$word")
        return
    fi

    if [[ $word == -* ]]; then
        local options='--help --color'
        case $command in
        '') options+=' --version' ;;
        probe) options+=' --json' ;;
        effects) options+=' --json --names' ;;
        draw) options+=' --output' ;;
        esac
        mapfile -t COMPREPLY < <(compgen -W "$options" -- "$word")
        return
    fi

    case $command in
    '') mapfile -t COMPREPLY < <(compgen -W 'probe effects run draw' -- "$word") ;;
    effects)
        # One a line: a name may hold blanks.
        local IFS=$'\n'
        mapfile -t COMPREPLY < <(compgen -W "$("${COMP_WORDS[0]}" effects --names 2>/dev/null)" -- "$word")
        ;;
    *)
        compopt -o filenames 2>/dev/null
        mapfile -t COMPREPLY < <(compgen -f -- "$word")
        ;;
    esac
}

complete -F _tarn tarn
