# What is installed where, and the Debian package made of it.
include(GNUInstallDirs)

set(packaging ${PROJECT_SOURCE_DIR}/packaging)
set(packaged ${PROJECT_BINARY_DIR}/packaging)
set(documents ${CMAKE_INSTALL_DATADIR}/doc/vellarno)

# A release is told in places that people write by hand.
function(require_version Version File Pattern)
  set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${File})
  file(STRINGS ${File} lines REGEX "${Pattern}")
  list(GET lines 0 newest)
  string(FIND "${newest}" "${Version}" found)
  if(found EQUAL -1)
    message(FATAL_ERROR "${File} does not tell of version ${Version}")
  endif()
endfunction()
require_version(${PROJECT_VERSION} ${packaging}/debian/changelog "^vellarno \\(")
require_version(${PROJECT_VERSION} ${packaging}/org.example.vellarno.metainfo.xml "<release version=")
require_version(${PROJECT_VERSION_MAJOR}.${PROJECT_VERSION_MINOR}
                ${PROJECT_SOURCE_DIR}/resources/HelpVellarno.htm "<h1>")

# Debian keeps documents compressed, and without a time in them the package is the same every time.
function(install_compressed File Name Destination)
  set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${File})
  execute_process(COMMAND gzip -9nc ${File} OUTPUT_FILE ${packaged}/${Name}.gz
                  COMMAND_ERROR_IS_FATAL ANY)
  install(FILES ${packaged}/${Name}.gz DESTINATION ${Destination})
endfunction()

install(TARGETS vellarno RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR})
install(FILES ${packaging}/vellarno.desktop DESTINATION ${CMAKE_INSTALL_DATADIR}/applications)
install(FILES ${packaging}/org.example.vellarno.metainfo.xml
        DESTINATION ${CMAKE_INSTALL_DATADIR}/metainfo)
install(FILES resources/pictures/vellarno.svg
        DESTINATION ${CMAKE_INSTALL_DATADIR}/icons/hicolor/scalable/apps)
install(FILES ${packaging}/debian/copyright DESTINATION ${documents})
# The manual in the language that systems fall back to, and in the program's own.
foreach(section man1 it/man1)
  configure_file(${packaging}/man/${section}/vellarno.1.in ${packaged}/${section}/vellarno.1 @ONLY)
  install_compressed(${packaged}/${section}/vellarno.1 ${section}/vellarno.1
                     ${CMAKE_INSTALL_MANDIR}/${section})
endforeach()
install_compressed(${packaging}/debian/changelog changelog ${documents})

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME vellarno)
set(CPACK_PACKAGE_VERSION ${PROJECT_VERSION})
set(CPACK_PACKAGE_CONTACT "The Vellarno authors <vellarno@example.org>")
set(CPACK_PACKAGE_HOMEPAGE_URL "https://vellarno.example.org/")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "calculator for dates and clock times")
file(READ ${packaging}/debian/description CPACK_PACKAGE_DESCRIPTION)
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
    OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_COMPRESSION_TYPE xz)
set(CPACK_DEBIAN_PACKAGE_SECTION utils)
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
# The libraries that the program is linked to name themselves. The font and the sound service are
# found only while it runs.
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_DEPENDS "fonts-liberation")
# A browser and a mail program; sounds where the desktop mixes them.
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS "xdg-utils, libcanberra-pulse")
set(CPACK_DEBIAN_PACKAGE_SUGGESTS "qt6-wayland")
include(CPack)
