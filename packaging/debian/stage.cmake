# What only a Debian package holds, put into the tree that CPack has gathered and is about to pack: the machine-wide settings,
# Debian's own documents, and man pages compressed as Debian wants them.
if(NOT CPACK_TEMPORARY_INSTALL_DIRECTORY)
    message(FATAL_ERROR "To be run by CPack only")
endif()
set(here ${CMAKE_CURRENT_LIST_DIR})
set(tree ${CPACK_TEMPORARY_INSTALL_DIRECTORY})
set(documents ${tree}/usr/share/doc/quendra-script-editor)

file(COPY ${here}/registry.ini DESTINATION ${tree}/etc/xdg/quendra NO_SOURCE_PERMISSIONS)
file(COPY ${here}/copyright ${here}/changelog DESTINATION ${documents} NO_SOURCE_PERMISSIONS)

file(GLOB pages ${tree}/usr/share/man/man1/*.1)
# Without name and time, so that the same sources give the same bytes; best, as Debian asks for.
execute_process(COMMAND gzip --best --no-name ${pages} ${documents}/changelog COMMAND_ERROR_IS_FATAL ANY)

# Whatever the umask of whoever packs.
file(CHMOD_RECURSE ${tree}/etc ${tree}/usr DIRECTORY_PERMISSIONS
    OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)
