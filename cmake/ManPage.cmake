# cmake -DPROGRAM=... -DTEMPLATE=... -DOUTPUT=... -P ManPage.cmake: fills a manual page's @commands@ with what the
# program's help lists, and compresses it.
execute_process(COMMAND ${PROGRAM} help OUTPUT_VARIABLE help COMMAND_ERROR_IS_FATAL ANY)
string(REGEX MATCHALL "\n  [a-z][a-z-]*  +[A-Z][^\n]*" lines "${help}")
set(commands "")
foreach(line IN LISTS lines)
    string(REGEX REPLACE "\n  ([a-z][a-z-]*)  +(.*)" ".TP\n.B \\1\n\\2\n" entry "${line}")
    string(APPEND commands "${entry}")
endforeach()
string(STRIP "${commands}" commands)
string(REPLACE "-" "\\-" commands "${commands}")
configure_file(${TEMPLATE} ${OUTPUT} @ONLY)
execute_process(COMMAND gzip -9nf ${OUTPUT} COMMAND_ERROR_IS_FATAL ANY)
