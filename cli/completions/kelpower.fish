# Completion of kelpower for fish. The program itself knows what may come next.
function __kelpower_candidates
    set -l words (commandline -opc) (commandline -ct)
    set -l candidates ($words[1] --complete $words[2..-1] 2>/dev/null)
    if contains -- :files $candidates
        set -l current (string replace -r '^--[^=]*=' '' -- $words[-1])
        set -l before (string match -r '^--[^=]*=' -- $words[-1])
        __fish_complete_path $current | string replace -r '^' -- "$before"
    else
        printf '%s\n' $candidates
    end
end
complete -c kelpower -f -a '(__kelpower_candidates)'
