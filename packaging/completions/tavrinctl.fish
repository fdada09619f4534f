# Completions of tavrinctl for fish.

set -l commands status groups processes sessions servers alerts caches projects log watch free end-session \
    end-leftovers quit preset clean mcp
set -l acting free end-session end-leftovers quit preset clean

complete -c tavrinctl -f
complete -c tavrinctl -n "not __fish_seen_subcommand_from $commands" -a "$commands"
complete -c tavrinctl -n "not __fish_seen_subcommand_from $commands" -l version -d 'Print the version'
complete -c tavrinctl -l help -d 'Print the options'
complete -c tavrinctl -l json -d 'Write JSON'
complete -c tavrinctl -l local -d 'Do not ask the running Tavrin'
complete -c tavrinctl -l no-cpu -d 'Do not wait for loads'
complete -c tavrinctl -n "__fish_seen_subcommand_from processes" -l sort -xa 'memory cpu swap idle pid name'
complete -c tavrinctl -n "__fish_seen_subcommand_from processes" -l group -xa 'agents ides terminals browsers containers other'
complete -c tavrinctl -n "__fish_seen_subcommand_from processes" -l tree -d 'Children below their parents'
complete -c tavrinctl -n "__fish_seen_subcommand_from processes free" -l min-mb -x -d 'Of so many MiB'
complete -c tavrinctl -n "__fish_seen_subcommand_from alerts" -l exit-code -d 'Exit with 1 while an alert is in force'
complete -c tavrinctl -n "__fish_seen_subcommand_from caches" -l scan -d 'Measure now'
complete -c tavrinctl -n "__fish_seen_subcommand_from log" -l since -x -d 'Only from then on'
complete -c tavrinctl -n "__fish_seen_subcommand_from log" -l kind -xa 'quit forceKill clean kernel'
complete -c tavrinctl -n "__fish_seen_subcommand_from watch" -l interval -x -d 'Seconds between two lines'
complete -c tavrinctl -n "__fish_seen_subcommand_from watch" -l count -x -d 'End after so many lines'
complete -c tavrinctl -n "__fish_seen_subcommand_from free" -l min-idle -x -d 'Idle for so many minutes'
complete -c tavrinctl -n "__fish_seen_subcommand_from $acting" -l dry-run -d 'Only list what would go'
complete -c tavrinctl -n "__fish_seen_subcommand_from $acting" -l yes -d 'Do not ask'
