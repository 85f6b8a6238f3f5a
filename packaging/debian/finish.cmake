# Run by cpack on the files of the package before it packs them.
file(GLOB roots ${CPACK_TEMPORARY_DIRECTORY}/usr ${CPACK_TEMPORARY_DIRECTORY}/*/usr)
if(NOT roots)
    message(FATAL_ERROR "No files of the package in ${CPACK_TEMPORARY_DIRECTORY}")
endif()
foreach(root ${roots})
    # Folders belong to everybody, whatever the umask of who makes the package.
    file(CHMOD_RECURSE ${root} DIRECTORY_PERMISSIONS
        OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)

    # What strip leaves beyond the symbols: the names of compilers.
    execute_process(COMMAND strip --remove-section=.comment --remove-section=.note
        ${root}/lib/quorin-converter/quorinConverter COMMAND_ERROR_IS_FATAL ANY)

    # The licences that every Debian system has (base-files is always installed) are links, not copies.
    foreach(licence LGPL GPL)
        if(NOT EXISTS ${root}/share/quorin-converter/${licence}.TXT)
            message(FATAL_ERROR "The package has no ${licence}.TXT")
        endif()
        file(CREATE_LINK ../common-licenses/${licence}-3 ${root}/share/quorin-converter/${licence}.TXT SYMBOLIC)
    endforeach()
endforeach()
