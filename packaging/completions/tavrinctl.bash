# Completions of tavrinctl and tavrin for bash.

_tavrinctl() {
    local word=${COMP_WORDS[COMP_CWORD]} before=${COMP_WORDS[COMP_CWORD - 1]} command=${COMP_WORDS[1]}
    local common="--json --local --no-cpu --help" options="" IFS=$' \t\n'
    COMPREPLY=()
    if [ "$COMP_CWORD" = 1 ]; then
        mapfile -t COMPREPLY < <(compgen -W "status groups processes sessions servers alerts caches projects log watch free
            end-session end-leftovers quit preset clean mcp --help --version" -- "$word")
        return
    fi
    case $before in
    --sort) mapfile -t COMPREPLY < <(compgen -W "memory cpu swap idle pid name" -- "$word") && return ;;
    --group) mapfile -t COMPREPLY < <(compgen -W "agents ides terminals browsers containers other" -- "$word") && return ;;
    --kind) mapfile -t COMPREPLY < <(compgen -W "quit forceKill clean kernel" -- "$word") && return ;;
    --min-mb | --min-idle | --since | --interval | --count) return ;;
    esac
    case $command in
    processes) options="--sort --group --min-mb --tree" ;;
    alerts) options="--exit-code" ;;
    caches) options="--scan" ;;
    log) options="--since --kind" ;;
    watch) options="--interval --count" ;;
    free) options="--min-idle --min-mb --dry-run --yes" ;;
    end-session | end-leftovers | quit | preset | clean) options="--dry-run --yes" ;;
    esac
    mapfile -t COMPREPLY < <(compgen -W "$options $common" -- "$word")
}

_tavrin() {
    local word=${COMP_WORDS[COMP_CWORD]}
    COMPREPLY=()
    if [ "${COMP_WORDS[COMP_CWORD - 1]}" = --section ]; then
        mapfile -t COMPREPLY < <(compgen -W "overview optimize processes cleanup sessions free-ram settings" -- "$word")
    else
        mapfile -t COMPREPLY < <(compgen -W "--hidden --section --help --version" -- "$word")
    fi
}

complete -F _tavrinctl tavrinctl
complete -F _tavrin tavrin
