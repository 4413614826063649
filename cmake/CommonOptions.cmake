# SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
# SPDX-License-Identifier: GPL-3.0-or-later

# One interface target carries what every target of ours is compiled with.
add_library(zuno_common INTERFACE)
target_include_directories(zuno_common INTERFACE ${PROJECT_SOURCE_DIR}/src)
target_compile_definitions(zuno_common INTERFACE
  QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII QT_NO_FOREACH QT_NO_URL_CAST_FROM_STRING
  QT_NO_NARROWING_CONVERSIONS_IN_CONNECT QT_NO_KEYWORDS QT_USE_QSTRINGBUILDER
  QT_DISABLE_DEPRECATED_BEFORE=0x060400)

if(MSVC)
  target_compile_options(zuno_common INTERFACE /W4 /permissive- /utf-8 /fp:precise
    $<$<BOOL:${WARNINGS_AS_ERRORS}>:/WX>)
else()
  # Laps must come out the same to the bit on every machine: no fused multiply-add behind our back.
  target_compile_options(zuno_common INTERFACE
    -ffp-contract=off
    -Wall -Wextra -pedantic -Wold-style-cast -Wnon-virtual-dtor -Woverloaded-virtual -Wcast-align
    -Wunused -Wimplicit-fallthrough
    $<$<BOOL:${WARNINGS_AS_ERRORS}>:-Werror>)
endif()

# What riders install holds out against files that nobody vouches for, as Debian's own programs do: no
# writing over return addresses, library calls that know the size of their buffers, addresses that
# nobody can guess, and tables of functions that cannot be changed once the program runs. The
# sanitizers do better, and FORTIFY needs an optimised build.
include(CheckPIESupported)
check_pie_supported(LANGUAGES CXX)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)
if(NOT MSVC AND NOT SANITIZE AND NOT SANITIZE_THREADS)
  target_compile_options(zuno_common INTERFACE $<$<CONFIG:Release>:-fstack-protector-strong
    -U_FORTIFY_SOURCE -D_FORTIFY_SOURCE=2>)
  if(CMAKE_SYSTEM_NAME STREQUAL "Linux")
    target_compile_options(zuno_common INTERFACE $<$<CONFIG:Release>:-fstack-clash-protection>)
    target_link_options(zuno_common INTERFACE $<$<CONFIG:Release>:LINKER:-z,relro,-z,now>)
  endif()
endif()

if(SANITIZE)
  target_compile_options(zuno_common INTERFACE
    -fsanitize=address,undefined,float-cast-overflow
    -fno-sanitize-recover=all -fno-omit-frame-pointer)
  target_link_options(zuno_common INTERFACE -fsanitize=address,undefined)
endif()

if(SANITIZE_THREADS)
  target_compile_options(zuno_common INTERFACE -fsanitize=thread -fno-omit-frame-pointer)
  target_link_options(zuno_common INTERFACE -fsanitize=thread)
endif()

if(FUZZ)
  # Everything reports what it covers; only the targets have the fuzzer's main function.
  target_compile_options(zuno_common INTERFACE -fsanitize=fuzzer-no-link)
endif()
