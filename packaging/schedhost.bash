# Completion of schedhost for bash.

_schedhost_options() { # command: the options that it takes
    local outputs='--png --pdf --xls --xlsx --csv --html --title --paper --plain-print --transpose'
    local common='--language --help'
    case $1 in
        new) echo "--empty --sample $common" ;;
        list) echo "--category --json $common" ;;
        get) echo "--json $common" ;;
        schedule) echo "--category --tags --template $outputs $common" ;;
        render) echo "$outputs --out --as --edit --tick --sort --continue --save --view --select-all --messages --palette $common" ;;
        dump) echo "--transpose --edit --tick --sort --continue --save --view --select-all --messages $common" ;;
        options) echo "--list --categories --current --select --group --item --right-to-left --png --messages --palette $common" ;;
        import | set | template | catalogue | find) echo "$common" ;;
        *) echo "--view --select-all --messages --palette --version $common" ;;
    esac
}

_schedhost_values() { # option: the words that it takes; nothing when it takes anything else
    case $1 in
        --language) echo 'en de fr' ;;
        --palette) echo 'desktop light dark' ;;
        --view) echo 'schedule selector' ;;
        --paper) echo 'A4 A3 A2 A1 A0 A5 Letter Legal Tabloid' ;;
        --as) echo 'png pdf xls xlsx csv html' ;;
    esac
}

_schedhost() {
    local current=${COMP_WORDS[COMP_CWORD]} previous=${COMP_WORDS[COMP_CWORD - 1]} words
    words=$(_schedhost_values "$previous")
    if [[ -z $words && $current == -* ]]; then
        words=$(_schedhost_options "${COMP_WORDS[1]}")
    elif [[ -z $words && $COMP_CWORD -eq 1 ]]; then
        words='new import list schedule get set options dump render template catalogue find'
    fi
    mapfile -t COMPREPLY < <(compgen -W "$words" -- "$current")
    [[ $current == -* ]] || compopt -o default
}

complete -F _schedhost schedhost
