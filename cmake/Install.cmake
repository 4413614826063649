# SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
# SPDX-License-Identifier: GPL-3.0-or-later

# What "cmake --install" puts where, and what CPack makes of it.
include(GNUInstallDirs)

# Everything that is installed; what else is built for it is made a dependency of this target.
add_custom_target(product ALL DEPENDS zuno)
install(TARGETS zuno)
set(CMAKE_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
  OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)

set(packaging ${PROJECT_SOURCE_DIR}/packaging)
set(app_id com.example.ZunoAnalyzer)
set(is_desktop_unix FALSE)
if(UNIX AND NOT APPLE)
  set(is_desktop_unix TRUE)
endif()

if(GUI)
  add_dependencies(product zunoanalyzer)
  # The program looks for its two folders beside itself, so it has a folder of its own and a link
  # leads to it; where links are unusual, the folders go to the programs.
  if(is_desktop_unix)
    set(program_dir lib/zunoanalyzer)
    set(link ${PROJECT_BINARY_DIR}/packaging/zunoanalyzer)
    file(MAKE_DIRECTORY ${PROJECT_BINARY_DIR}/packaging)
    file(RELATIVE_PATH target /prefix/${CMAKE_INSTALL_BINDIR} /prefix/${program_dir}/zunoanalyzer)
    file(CREATE_LINK ${target} ${link} SYMBOLIC)
    install(FILES ${link} DESTINATION ${CMAKE_INSTALL_BINDIR})
  else()
    set(program_dir ${CMAKE_INSTALL_BINDIR})
  endif()
  install(TARGETS zunoanalyzer DESTINATION ${program_dir})
  foreach(folder IN ITEMS languages translations)
    install(DIRECTORY ${CMAKE_RUNTIME_OUTPUT_DIRECTORY}/${folder} DESTINATION ${program_dir}
      OPTIONAL FILES_MATCHING PATTERN *.qm PATTERN *.pdf)
  endforeach()
  # Packages of a system take it along, whoever installs by hand does not: with it the program
  # leaves its replacement to the system.
  install(FILES ${packaging}/installed-by-package DESTINATION ${program_dir}
    COMPONENT packaged EXCLUDE_FROM_ALL)
endif()

# Debian wants manuals and changelogs packed, without a time in
# them, so that the same sources give the same package.
function(install_packed source name destination)
  set(packed ${PROJECT_BINARY_DIR}/packaging/${name}.gz)
  add_custom_command(OUTPUT ${packed} DEPENDS ${source}
    COMMAND ${CMAKE_COMMAND} -E make_directory ${PROJECT_BINARY_DIR}/packaging
    COMMAND gzip -9nc ${source} > ${packed} VERBATIM)
  target_sources(product PRIVATE ${packed})
  install(FILES ${packed} DESTINATION ${destination})
endfunction()

if(is_desktop_unix)
  install_packed(${packaging}/zuno.1 zuno.1 ${CMAKE_INSTALL_MANDIR}/man1)
  install(FILES ${packaging}/completion/zuno.bash
    DESTINATION ${CMAKE_INSTALL_DATAROOTDIR}/bash-completion/completions RENAME zuno)
  install(FILES ${packaging}/completion/_zuno
    DESTINATION ${CMAKE_INSTALL_DATAROOTDIR}/zsh/vendor-completions)
endif()
if(is_desktop_unix AND GUI)
  install_packed(${packaging}/zunoanalyzer.1 zunoanalyzer.1 ${CMAKE_INSTALL_MANDIR}/man1)
  set(doc_dir ${CMAKE_INSTALL_DATAROOTDIR}/doc/zunoanalyzer)
  install_packed(${packaging}/changelog changelog ${doc_dir})
  install_packed(${PROJECT_SOURCE_DIR}/CHANGELOG.md CHANGELOG.md ${doc_dir})
  install(FILES ${packaging}/copyright DESTINATION ${doc_dir})
  install(FILES ${packaging}/${app_id}.desktop
    DESTINATION ${CMAKE_INSTALL_DATAROOTDIR}/applications)
  install(FILES ${packaging}/${app_id}.metainfo.xml
    DESTINATION ${CMAKE_INSTALL_DATAROOTDIR}/metainfo)
  install(FILES ${packaging}/${app_id}.mime.xml
    DESTINATION ${CMAKE_INSTALL_DATAROOTDIR}/mime/packages RENAME ${app_id}.xml)
  set(icons_dir ${CMAKE_INSTALL_DATAROOTDIR}/icons/hicolor)
  foreach(size IN ITEMS 16 22 24 32 48 64 128 256)
    install(FILES ${packaging}/icons/${size}.png
      DESTINATION ${icons_dir}/${size}x${size}/apps RENAME ${app_id}.png)
  endforeach()
  install(FILES ${PROJECT_SOURCE_DIR}/Resources/svg/logo.svg
    DESTINATION ${icons_dir}/scalable/apps RENAME ${app_id}.svg)
endif()

set(CPACK_GENERATOR ZIP)
if(is_desktop_unix)
  set(CPACK_GENERATOR DEB)
  set(CPACK_INSTALL_CMAKE_PROJECTS
    "${PROJECT_BINARY_DIR};${PROJECT_NAME};ALL;/;${PROJECT_BINARY_DIR};${PROJECT_NAME};packaged;/")
endif()
set(CPACK_PACKAGE_NAME zunoanalyzer)
set(CPACK_PACKAGE_VERSION ${PROJECT_VERSION})
set(CPACK_PACKAGE_VENDOR "The ZUNO Analyzer developers")
set(CPACK_PACKAGE_CONTACT "The ZUNO Analyzer developers <contact@example.com>")
set(CPACK_PACKAGE_HOMEPAGE_URL https://www.example.com/)
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY ${PROJECT_DESCRIPTION})
set(CPACK_PACKAGE_DESCRIPTION
  "ZUNO Analyzer reads the recordings of a ZUNO data logger, finds the circuit,
cuts the ride into laps and sectors, and shows where time is won and lost. It
needs no network; with one, laps are drawn on satellite pictures.
.
The tool zuno prints the same laps for scripts.")
set(CPACK_PACKAGE_INSTALL_DIRECTORY "ZUNO Analyzer")
set(CPACK_RESOURCE_FILE_LICENSE ${PROJECT_SOURCE_DIR}/LICENSE)
set(CPACK_STRIP_FILES ON)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS ${CMAKE_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS})
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION science)
set(CPACK_DEBIAN_PACKAGE_PRIORITY optional)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
# The window system of newer desktops, and what opens the help and links.
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS "qt6-wayland, xdg-utils")
include(CPack)
