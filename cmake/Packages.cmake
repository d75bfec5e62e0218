# The packages for Linux: `cpack` in the build folder of the preset `package` makes a Debian package
# and an archive. The archive's launcher works wherever it is unpacked.
set(CPACK_PACKAGE_NAME lorvo)
set(CPACK_PACKAGE_VENDOR "Hollow Peak")
set(CPACK_PACKAGE_CONTACT "Hollow Peak <lorvo@hollowpeak.example>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "office of a dog show (in Czech)")
set(CPACK_PACKAGE_DESCRIPTION
"One clerk at one computer enters the dogs and their owners, sorts the
breeds into rings, takes payments in several currencies, gives catalogue
numbers and prints the papers of the show.
.
All data is in one file in the clerk's own folder; the program opens no
network connection. The user interface is Czech.")
set(CPACK_VERBATIM_VARIABLES ON)
set(CPACK_STRIP_FILES ON)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
  OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)
set(CPACK_GENERATOR DEB TGZ)

set(CPACK_ARCHIVE_FILE_NAME lorvo-${PROJECT_VERSION}-linux-${CMAKE_SYSTEM_PROCESSOR})
set(CPACK_PACKAGE_FILE_NAME ${CPACK_ARCHIVE_FILE_NAME})

set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION misc)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
# Not seen in the program's symbols: the toolkit's Czech texts, and what opens a paper.
set(CPACK_DEBIAN_PACKAGE_DEPENDS "qt6-translations-l10n")
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS "xdg-utils, libreoffice-writer, fonts-dejavu-core | fonts-liberation")
include(CPack)
