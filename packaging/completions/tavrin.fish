# Completions of tavrin for fish.

complete -c tavrin -f
complete -c tavrin -l hidden -d 'Start without a window'
complete -c tavrin -l section -xa 'overview optimize processes cleanup sessions free-ram settings' -d 'Open there'
complete -c tavrin -l help -d 'Print the options'
complete -c tavrin -l version -d 'Print the version'
