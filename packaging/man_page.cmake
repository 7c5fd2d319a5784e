# Writes the manual page of a program from what its --help says, so that both tell the same. Run with:
# cmake -DPROGRAM=<file> -DNAME=<name> -DSUMMARY=<line> -DVERSION=<version> -DDATE=<day>
#       -DSEE_ALSO=<pages> -DPAGE=<output> [-DCOMMANDS=ON] -P packaging/man_page.cmake
# COMMANDS: the overview's lines "  name summary" are commands with a help of their own.
cmake_minimum_required(VERSION 3.25)

set(ENV{LC_ALL} C.UTF-8)
set(ENV{LANGUAGE} en)

# What the program says with --help after these arguments, as the page shows it: the usage in bold,
# indented lines as they are, the rest filled.
function(ask_help result)
    execute_process(
        COMMAND ${PROGRAM} ${ARGN} --help OUTPUT_VARIABLE text COMMAND_ERROR_IS_FATAL ANY
    )
    string(REPLACE "${PROGRAM}" "${NAME}" text "${text}")
    string(REPLACE "\\" "\\e" text "${text}")
    string(REPLACE "-" "\\-" text "${text}")
    string(REGEX REPLACE "(^|\n)([.'])" "\\1\\\\&\\2" text "${text}")
    string(REGEX REPLACE "^Usage: ([^\n]*)\n" ".B \\1\n\n" text "${text}")
    string(REGEX REPLACE "\n\n+" "\n.PP\n" text "${text}")
    string(REGEX REPLACE "((^|\n)  [^\n]*(\n  [^\n]*)*)" "\n.nf\\1\n.fi" text "${text}")
    string(REGEX REPLACE "(\n\\.PP)?\n\n+" "\n" text "${text}")
    set(${result} "${text}" PARENT_SCOPE)
endfunction()

ask_help(overview)
string(REGEX REPLACE "^(.B [^\n]*\n).PP\n" "\\1.SH DESCRIPTION\n" overview "${overview}")
string(TOUPPER ${NAME} title)
set(page ".TH ${title} 1 \"${DATE}\" \"${NAME} ${VERSION}\" \"User commands\"
.SH NAME
${NAME} \\- ${SUMMARY}
.SH SYNOPSIS
${overview}")
if(COMMANDS)
    string(REGEX MATCHALL "\n  [a-z\\-]+ " names "${overview}")
    foreach(line ${names})
        string(STRIP "${line}" command)
        string(REPLACE "\\" "" command "${command}")
        ask_help(help ${command})
        string(APPEND page ".SH ${NAME} ${command}\n${help}")
    endforeach()
endif()
string(REPLACE " " ",\n.BR " also "${SEE_ALSO}")
string(REPLACE "(" " (" also "${also}")
file(WRITE ${PAGE} "${page}.SH SEE ALSO\n.BR ${also}\n")
