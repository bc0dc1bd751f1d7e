# Completion of @PROGRAM@ for bash                                          -*- shell-script -*-

# What a command takes: its options with the kind of their value behind a colon, and the kinds of its
# arguments; a plus says that an argument may be repeated.
@FUNCTION@_table() {
    case $1 in
@TABLE@
    esac
}

# Lists the entries of the maps that the line names: labels, a tab, what they are called.
@FUNCTION@_entries() {
    local index word maps=()
    for ((index = 1; index < COMP_CWORD; ++index)); do
        [[ ${COMP_WORDS[index]} == --maps ]] || continue
        word=${COMP_WORDS[index + 1]}
        [[ $word == = ]] && word=${COMP_WORDS[index + 2]}
        maps+=(--maps "${word/#\~/$HOME}")
    done
    [[ ${#maps[@]} -gt 0 ]] && tavrin list --labels "${maps[@]}" 2>/dev/null
}

# Offers what begins like $2, of the kind $1.
@FUNCTION@_offer() {
    local kind=$1 typed=$2 value
    case $kind in
    =*) mapfile -t COMPREPLY < <(compgen -W "${kind//[=,]/ }" -- "$typed") ;;
    command) mapfile -t COMPREPLY < <(compgen -W "@COMMANDS@" -- "$typed") ;;
    entry)
        # The shell quotes what it takes for the name of a file.
        compopt -o filenames 2>/dev/null
        typed=${typed//[\\\'\"]/}
        while IFS=$'\t' read -r value _; do
            [[ $value == "$typed"* ]] && COMPREPLY+=("$value")
        done < <(@FUNCTION@_entries)
        ;;
    map | pdf | file | directory)
        compopt -o filenames 2>/dev/null
        typed=${typed/#\~/$HOME}
        mapfile -t COMPREPLY < <(
            compgen -d -- "$typed"
            case $kind in
            map) compgen -f -X '!*.xml' -- "$typed" ;;
            pdf) compgen -f -X '!*.[pP][dD][fF]' -- "$typed" ;;
            file) compgen -f -- "$typed" ;;
            esac | while IFS= read -r value; do [[ -d $value ]] || printf '%s\n' "$value"; done
        )
        ;;
    esac
}

# Sets `kind` to that of an option's value; false if $1 is no option that takes one.
@FUNCTION@_value_kind() {
    local option
    for option in $options; do
        [[ ${option%%:*} == "$1" ]] || continue
        kind=${option#*:}
        [[ -n $kind ]]
        return
    done
    return 1
}

@FUNCTION@() {
    local current=${COMP_WORDS[COMP_CWORD]} last=${COMP_WORDS[COMP_CWORD - 1]}
    local command='' options='' arguments='' kind='' index place=0
    COMPREPLY=()
    # Readline parts --option=value into three words.
    if [[ $current == = ]]; then
        current=''
    elif [[ $last == = ]]; then
        last=${COMP_WORDS[COMP_CWORD - 2]}
    fi
    @FUNCTION@_table ''
    if [[ $arguments == command* ]] && ((COMP_CWORD > 1)); then
        command=${COMP_WORDS[1]}
        @FUNCTION@_table "$command"
    fi
    if @FUNCTION@_value_kind "$last"; then
        @FUNCTION@_offer "$kind" "$current"
        return
    fi
    if [[ $current == -* ]]; then
        mapfile -t COMPREPLY < <(for kind in $options; do compgen -W "${kind%%:*}" -- "$current"; done)
        return
    fi
    for ((index = ${#command} > 0 ? 2 : 1; index < COMP_CWORD; ++index)); do
        if @FUNCTION@_value_kind "${COMP_WORDS[index]}"; then
            [[ ${COMP_WORDS[index + 1]} == = ]] && ((++index))
            ((++index))
        elif [[ ${COMP_WORDS[index]} != -* ]]; then
            ((++place))
        fi
    done
    for kind in $arguments; do
        ((place-- == 0)) && break
        [[ $kind == *+ ]] && break
        kind=''
    done
    @FUNCTION@_offer "${kind%+}" "$current"
}

complete -F @FUNCTION@ @PROGRAM@
