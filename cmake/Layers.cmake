# SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
# SPDX-License-Identifier: GPL-3.0-or-later

# A layer: the files of one or more folders below src/, and the layers on which they stand.
#   zuno_layer(TARGET FOLDERS folder... [USES layer...] [LIBRARIES library...] SOURCES file...)
# Building it fails when one of its files includes a header from a folder of no layer below. A layer
# can only use what was named before it, so there is no circle.
function(zuno_layer target)
  cmake_parse_arguments(PARSE_ARGV 1 LAYER "" "" "FOLDERS;USES;LIBRARIES;SOURCES")
  set(allowed ${LAYER_FOLDERS})
  foreach(layer IN LISTS LAYER_USES)
    if(NOT TARGET ${layer})
      message(FATAL_ERROR "${target} stands on ${layer}, which comes after it")
    endif()
    get_target_property(folders ${layer} ZUNO_FOLDERS)
    list(APPEND allowed ${folders})
  endforeach()
  list(REMOVE_DUPLICATES allowed)

  set(files)
  foreach(source IN LISTS LAYER_SOURCES)
    list(APPEND files ${CMAKE_CURRENT_SOURCE_DIR}/${source})
  endforeach()
  set(stamp ${CMAKE_CURRENT_BINARY_DIR}/${target}.layer)
  add_custom_command(OUTPUT ${stamp}
    COMMAND ${CMAKE_COMMAND} "-DFILES=${files}" "-DALLOWED=${allowed}" -DLAYER=${target}
      -DSTAMP=${stamp} -P ${PROJECT_SOURCE_DIR}/cmake/CheckIncludes.cmake
    DEPENDS ${files} ${PROJECT_SOURCE_DIR}/cmake/CheckIncludes.cmake VERBATIM
    COMMENT "Layer ${target}")

  add_library(${target} STATIC ${LAYER_SOURCES} ${stamp})
  set_target_properties(${target} PROPERTIES ZUNO_FOLDERS "${allowed}")
  target_link_libraries(${target} PUBLIC zuno_common ${LAYER_USES} ${LAYER_LIBRARIES})
endfunction()
