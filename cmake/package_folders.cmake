# Run by CPack on what it is about to pack: a Debian package has its games in a folder of their own.
file(RENAME "${CPACK_TEMPORARY_INSTALL_DIRECTORY}/usr/bin"
     "${CPACK_TEMPORARY_INSTALL_DIRECTORY}/usr/games")
