# The French manual page: its frame, with the help of the program as it stands.
execute_process(COMMAND ${PROGRAM} --aide OUTPUT_VARIABLE help COMMAND_ERROR_IS_FATAL ANY)
string(REPLACE "\\" "\\e" help "${help}")
string(REPLACE "-" "\\-" help "${help}")
string(REGEX REPLACE "(^|\n)([.'])" "\\1\\\\&\\2" help "${help}")
configure_file(${TEMPLATE} ${OUT} @ONLY)
