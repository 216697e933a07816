# Installs BUILD into a folder of FOLDER and moves that to FOLDER/prefix: nothing installed may know where
# it was installed to. What was built with an earlier installation goes.
file(REMOVE_RECURSE ${FOLDER})
execute_process(COMMAND ${CMAKE_COMMAND} --install ${BUILD} --prefix ${FOLDER}/first
    OUTPUT_QUIET COMMAND_ERROR_IS_FATAL ANY)
file(RENAME ${FOLDER}/first ${FOLDER}/prefix)
