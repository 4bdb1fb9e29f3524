# What is handed to others: the program folder as an archive, with what puts it into one user's menu, and a package for
# Debian, which keeps that folder under /usr/lib for the launcher to copy from.
install(DIRECTORY packaging/icons DESTINATION desktop COMPONENT menu)
install(FILES packaging/thornquill.desktop packaging/example.zandolk.thornquill.metainfo.xml DESTINATION desktop COMPONENT menu)
install(PROGRAMS packaging/desktop-menu DESTINATION . COMPONENT menu)

set(debian ${CMAKE_BINARY_DIR}/debian)
configure_file(packaging/debian/changelog.in ${debian}/changelog @ONLY)
foreach(page changelog:${debian}/changelog thornquill.1:${CMAKE_SOURCE_DIR}/packaging/debian/thornquill.1)
  string(REPLACE ":" ";" page ${page})
  list(GET page 0 name)
  list(GET page 1 path)
  execute_process(COMMAND gzip -9nc ${path} OUTPUT_FILE ${debian}/${name}.gz COMMAND_ERROR_IS_FATAL ANY)
endforeach()
set(system COMPONENT system EXCLUDE_FROM_ALL)
install(PROGRAMS packaging/debian/thornquill DESTINATION bin ${system})
install(DIRECTORY packaging/icons/hicolor DESTINATION share/icons ${system})
install(FILES packaging/thornquill.desktop DESTINATION share/applications ${system})
install(FILES packaging/example.zandolk.thornquill.metainfo.xml DESTINATION share/metainfo ${system})
install(FILES ${debian}/thornquill.1.gz DESTINATION share/man/man1 ${system})
install(FILES packaging/debian/copyright ${debian}/changelog.gz DESTINATION share/doc/thornquill ${system})
# What the launcher knows the folder's files by. They are there by now, stripped: the folder is laid out first.
install(CODE [[
  set(folder $ENV{DESTDIR}${CMAKE_INSTALL_PREFIX}/lib/thornquill)
  file(GLOB_RECURSE files LIST_DIRECTORIES false RELATIVE ${folder} ${folder}/*)
  # The program takes its place last.
  list(REMOVE_ITEM files thornquill)
  set(sums "")
  foreach(file IN LISTS files ITEMS thornquill)
    file(SHA256 ${folder}/${file} sum)
    string(APPEND sums "${sum}  ${file}\n")
  endforeach()
  file(WRITE ${folder}/CHECKSUMS "${sums}")
  file(CHMOD ${folder}/CHECKSUMS PERMISSIONS OWNER_READ OWNER_WRITE GROUP_READ WORLD_READ)
]] ${system})

set(CPACK_GENERATOR TGZ)
set(CPACK_PACKAGE_VENDOR ZANDOLK)
set(CPACK_PACKAGE_CONTACT "ZANDOLK <thornquill@zandolk.example>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "private diary for one person")
set(CPACK_PACKAGE_HOMEPAGE_URL http://www.zandolk.example/)
set(CPACK_PACKAGE_FILE_NAME thornquill-${PROJECT_VERSION}-${CMAKE_SYSTEM_NAME}-${CMAKE_SYSTEM_PROCESSOR})
set(CPACK_STRIP_FILES ON)
set(CPACK_VERBATIM_VARIABLES ON)
set(CPACK_DEBIAN_PACKAGE_NAME thornquill)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION editors)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_DEPENDS "fonts-dejavu-core, xdg-utils")
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS "qt6-image-formats-plugins, qt6-wayland, zenity | kdialog | x11-utils")
set(CPACK_DEBIAN_PACKAGE_DESCRIPTION "A bookcase of journals behind one password. Each journal is a book with
a title page and dated pages of rich text, with photographs in frames and
small pictures between the words, a calendar, an index, printing, and
export as web pages.

Everything that is written lies in one folder of the person's own, which
can be copied. Nothing is sent over a network.")
set(CPACK_PROJECT_CONFIG_FILE ${CMAKE_SOURCE_DIR}/packaging/debian/layout.cmake)
include(CPack)
