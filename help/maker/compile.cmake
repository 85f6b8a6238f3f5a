# Compiles FOLDER/PROJECT.hhp with COMPILER into FOLDER/PROJECT.chm. The compiler ends with 0 whatever
# happens and leaves files out with a word at most, so every warning counts, and so does every file that
# is missing. It checks no links: it takes pages of the same name in two folders for one (the tests check
# them).
cmake_minimum_required(VERSION 3.25)
file(REMOVE ${FOLDER}/${PROJECT}.chm)
file(STRINGS ${FOLDER}/${PROJECT}.hhp files REGEX "^[a-z/-]+\\.[a-z]+$")
foreach(file IN LISTS files)
    if(NOT EXISTS ${FOLDER}/${file})
        message(FATAL_ERROR "The help needs ${FOLDER}/${file}")
    endif()
endforeach()

execute_process(COMMAND ${COMPILER} --no-html-scan ${PROJECT}.hhp
    WORKING_DIRECTORY ${FOLDER}
    RESULT_VARIABLE result OUTPUT_VARIABLE output ERROR_VARIABLE errors)
if(NOT result EQUAL 0 OR "${output}${errors}" MATCHES "Warning|Error|xception"
        OR NOT EXISTS ${FOLDER}/${PROJECT}.chm)
    file(REMOVE ${FOLDER}/${PROJECT}.chm)
    message(FATAL_ERROR "${COMPILER} could not make the help:\n${output}${errors}")
endif()
