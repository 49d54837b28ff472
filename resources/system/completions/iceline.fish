# Completion of iceline for fish: the commands as the program itself lists them, and files.
function __iceline_commands
    set -l words (commandline -opc | string match -v -r -- '^-|/' | string match -v iceline)
    iceline help $words 2>/dev/null | string replace -r -f '^  ([a-z-]+)  +(.*)' '$1\t$2'
end
complete -c iceline -a '(__iceline_commands)'
complete -c iceline -l league -r -d 'the league folder'
complete -c iceline -l yes -d 'answer questions with OK'
complete -c iceline -l version -d 'print the version'
