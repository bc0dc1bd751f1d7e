# Completion of @PROGRAM@ for fish

# Lists the entries of the maps that the line names.
function _@FUNCTION@_entries
    set -l maps
    set -l expects 0
    for word in (commandline -opc)
        if test $expects = 1
            set -a maps --maps (string replace -r '^~' $HOME -- $word)
            set expects 0
        else if test $word = --maps
            set expects 1
        else if string match -q -- '--maps=*' $word
            set -a maps --maps (string replace -- --maps= '' $word)
        end
    end
    test -n "$maps"; and tavrin list --labels $maps 2>/dev/null
end

complete -c @PROGRAM@ -f
@LINES@
