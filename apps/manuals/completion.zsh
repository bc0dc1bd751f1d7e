#compdef @PROGRAM@
# Completion of @PROGRAM@ for zsh

# Offers the entries of the maps that the line names.
@FUNCTION@_entries() {
    local -a maps entries
    local index line
    for ((index = 1; index < CURRENT; ++index)); do
        case $words[index] in
        --maps) maps+=(--maps ${~words[index + 1]}) ;;
        --maps=*) maps+=(--maps ${~words[index]#--maps=}) ;;
        esac
    done
    (( $#maps )) || return 1
    while IFS= read -r line; do
        entries+=("${${line%%$'\t'*}//:/\\:}:${line#*$'\t'}")
    done < <(tavrin list --labels $maps 2>/dev/null)
    _describe -V entry entries
}

@FUNCTION@_command() {
    local -a commands=(
@DESCRIPTIONS@
    )
    _describe command commands
}

@FUNCTION@() {
    local curcontext=$curcontext state line
    typeset -A opt_args
    _arguments -s -S -C \
@PROGRAM_ARGUMENTS@
    [[ $state == command ]] || return
    case $words[1] in
@CASES@
    esac
}

@FUNCTION@ "$@"
