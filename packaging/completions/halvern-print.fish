# SPDX-License-Identifier: MIT
# The program says what fits; fish reads its lines as they are.
function __halvern_print_complete
    set -l words (commandline -opc) (commandline -ct)
    for line in (command halvern-print --complete $words[2..-1] 2>/dev/null)
        if test "$line" = /
            __fish_complete_path (string replace -r '^--[a-z-]+=' '' -- (commandline -ct))
        else
            echo $line
        end
    end
end
complete -c halvern-print -f -a '(__halvern_print_complete)'
