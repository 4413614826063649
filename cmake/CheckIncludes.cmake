# SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
# SPDX-License-Identifier: GPL-3.0-or-later

cmake_minimum_required(VERSION 3.25)

# Fails when one of FILES includes <folder/header.h> from a folder that is not ALLOWED to LAYER.
foreach(file IN LISTS FILES)
  file(STRINGS ${file} includes REGEX "^#include <[a-z]+/")
  foreach(include IN LISTS includes)
    string(REGEX REPLACE "^#include <(.*)/[^/]*>.*" "\\1" folder "${include}")
    if(NOT folder IN_LIST ALLOWED)
      message(SEND_ERROR "${file}: ${include} is not below ${LAYER}")
      set(failed TRUE)
    endif()
  endforeach()
endforeach()
if(NOT failed)
  file(TOUCH ${STAMP})
endif()
