# Completion of ostrelum-console's command line in bash.

# _ostrelum_console_query PROGRAM BEGUN: goes on with the text of a query. Behind "from" comes a class, and the program
# tells which there are.
_ostrelum_console_query() {
    local begun=${2#[\"\']} class
    if [[ -z $2 ]]; then
        compopt -o nospace
        COMPREPLY=('"Select * from Win32_')
    elif [[ ${begun,,} == *" from "* ]]; then
        local before=${begun% *} word=${begun##* }
        while read -r class; do
            [[ ${class,,} != "${word,,}"* ]] || COMPREPLY+=("$before $class")
        done < <("$1" classes 2>/dev/null | grep '^[^ ]')
    fi
}

_ostrelum_console() {
    local word=${COMP_WORDS[COMP_CWORD]} at=1 words=''
    while ((at < COMP_CWORD)); do
        case ${COMP_WORDS[at]} in
        --mask) ((at += 1)) ;;
        --*) ((at += 2)) ;;
        *) break ;;
        esac
    done
    COMPREPLY=()
    if ((at > COMP_CWORD)); then
        case ${COMP_WORDS[COMP_CWORD - 1]} in
        --language) words='English Spanish Dutch' ;;
        --sysroot) compopt -o dirnames ;;
        --user) mapfile -t COMPREPLY < <(compgen -u -- "$word") ;;
        esac
    elif ((at == COMP_CWORD)); then
        words='page report query record classes --language --mask --sysroot --user'
    else
        case ${COMP_WORDS[at]}/$((COMP_CWORD - at)) in
        page/1) words='all 1 2 3 4 5 6 7 8 9 10 11 12 13' ;;
        report/1) words='text html rtf bbcode' ;;
        report/2) words='--output' ;;
        report/3) compopt -o default ;;
        record/1) compopt -o dirnames ;;
        query/1) _ostrelum_console_query "$1" "$word" ;;
        esac
    fi
    [[ -z $words ]] || mapfile -t COMPREPLY < <(compgen -W "$words" -- "$word")
}

complete -F _ostrelum_console ostrelum-console
