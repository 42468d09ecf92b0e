# Completion of ostrelum-console's command line in fish.

# The command's words so far, without the options before it.
function __ostrelum_console_command
    set -l words (commandline -opc)[2..]
    while set -q words[1]; and string match -q -- '--*' $words[1]
        if test $words[1] = --mask
            set words $words[2..]
        else
            set words $words[3..]
        end
    end
    string join \n -- $words
end

# __ostrelum_console_at COMMAND COUNT: whether that is the command, with so many words behind it.
function __ostrelum_console_at
    set -l words (__ostrelum_console_command)
    test "$words[1]" = "$argv[1]"; and test (count $words) -eq (math $argv[2] + 1)
end

# Whole texts of queries of every class; the program tells which there are.
function __ostrelum_console_queries
    set -l program (commandline -opc)[1]
    $program classes 2>/dev/null | string match -r '^\S.*' | string replace -r '^' 'Select * from '
end

complete -c ostrelum-console -f
set -l none 'test -z (__ostrelum_console_command)[1]'
complete -c ostrelum-console -n $none -l language -x -a 'English Spanish Dutch' -d 'Language of pages and report'
complete -c ostrelum-console -n $none -l mask -d 'Hide what tells whose machine it is'
complete -c ostrelum-console -n $none -l sysroot -x -a '(__fish_complete_directories)' -d 'A recorded machine'
complete -c ostrelum-console -n $none -l user -x -a '(__fish_complete_users)' -d 'The account of the page of the user'
complete -c ostrelum-console -n $none -a page -d 'A page as text, or all of them'
complete -c ostrelum-console -n $none -a report -d 'The report'
complete -c ostrelum-console -n $none -a query -d 'The answer to a query, as JSON'
complete -c ostrelum-console -n $none -a record -d 'A copy of what is read of this machine'
complete -c ostrelum-console -n $none -a classes -d 'Every class with its properties'
complete -c ostrelum-console -n '__ostrelum_console_at page 0' -a 'all (seq 13)'
complete -c ostrelum-console -n '__ostrelum_console_at report 0' -a 'text html rtf bbcode'
complete -c ostrelum-console -n '__ostrelum_console_at report 1' -l output -r -F -d 'Write it into a file'
complete -c ostrelum-console -n '__ostrelum_console_at report 2' -F
complete -c ostrelum-console -n '__ostrelum_console_at query 0' -a '(__ostrelum_console_queries)'
complete -c ostrelum-console -n '__ostrelum_console_at record 0' -a '(__fish_complete_directories)'
