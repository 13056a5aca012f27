# Installing for all users of a machine, and the Debian package. The game folder that is installed is
# never written to: each player gets one of his own at the first start.
include(GNUInstallDirs)
if(NOT TARGET orvane)
  return()
endif()

install(TARGETS orvane RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR})
install(DIRECTORY ${ORVANE_GAME_FOLDER}/ DESTINATION ${CMAKE_INSTALL_DATADIR}/orvane/game
        FILES_MATCHING PATTERN "Item.dat" PATTERN "*.mid" PATTERN "*.wav" PATTERN "Mapdata/*.dat")
# The slots as they are before anybody plays; those of the build may have been played with.
install(CODE "execute_process(COMMAND \"$<TARGET_FILE:orvane-saves>\"
  \"\$ENV{DESTDIR}\${CMAKE_INSTALL_PREFIX}/${CMAKE_INSTALL_DATADIR}/orvane/game\"
  COMMAND_ERROR_IS_FATAL ANY)")
install(FILES share/orvane.desktop DESTINATION ${CMAKE_INSTALL_DATADIR}/applications)
# Named as the component inside it, by which software centres look for it.
install(FILES share/orvane.metainfo.xml RENAME invalid.example.orvane.metainfo.xml
        DESTINATION ${CMAKE_INSTALL_DATADIR}/metainfo)

# Manual pages and change log lie compressed, and alike whenever they are compressed.
function(orvane_install_compressed source folder name)
  set(packed ${PROJECT_BINARY_DIR}/${source}.gz)
  get_filename_component(packed_folder ${packed} DIRECTORY)
  file(MAKE_DIRECTORY ${packed_folder})
  execute_process(COMMAND gzip -9nc ${PROJECT_SOURCE_DIR}/${source} OUTPUT_FILE ${packed}
                  COMMAND_ERROR_IS_FATAL ANY)
  set_property(DIRECTORY ${PROJECT_SOURCE_DIR} APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${source})
  install(FILES ${packed} DESTINATION ${folder} RENAME ${name}.gz)
endfunction()
orvane_install_compressed(share/orvane.6 ${CMAKE_INSTALL_MANDIR}/man6 orvane.6)
orvane_install_compressed(share/orvane.ja.6 ${CMAKE_INSTALL_MANDIR}/ja/man6 orvane.6)
orvane_install_compressed(share/changelog ${CMAKE_INSTALL_DATADIR}/doc/orvane changelog)
foreach(size 16 24 32 48 64 128 256)
  install(FILES content/pictures/sheets/icon_${size}.png RENAME orvane.png
          DESTINATION ${CMAKE_INSTALL_DATADIR}/icons/hicolor/${size}x${size}/apps)
endforeach()
install(FILES share/copyright README.md README.ja.md DESTINATION ${CMAKE_INSTALL_DATADIR}/doc/orvane)

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME orvane)
set(CPACK_PACKAGE_CONTACT "Orvane's developers <orvane@example.invalid>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "role-playing game about two heroes and four dragons, in Japanese and English")
set(CPACK_PACKAGE_DESCRIPTION
    "Two heroes have fallen into a training world and must beat the dragons that
guard its way out. Walk over single-screen maps, open chests, train with
books, and fight long hand-animated battles with ten techniques and ten
spells. The game speaks Japanese and English.

試練の世界に落ちた二人の主人公が、出口を守る龍たちに挑むRPG。十の技と十の魔法を駆使する、
じっくり動くターン制バトル。日本語と英語で遊べます。")
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_PRE_BUILD_SCRIPTS ${CMAKE_CURRENT_LIST_DIR}/package_folders.cmake)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION games)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_DEPENDS "qt6-qpa-plugins, qt6-wayland, fonts-ipafont-gothic, fonts-ipafont-mincho")
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS "fluidr3mono-gm-soundfont | timgm6mb-soundfont")
include(CPack)
