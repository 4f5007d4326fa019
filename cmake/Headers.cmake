# SPDX-FileCopyrightText: 2026 The ORVEL developers
# SPDX-License-Identifier: MIT
# Finds a library that is nothing but headers: orvel_find_headers(PACKAGE VERSION TARGET FOLDER).
#
# Built for another system, it is the one of the system that builds. Its FOLDER of headers then gets a name in the
# build tree, since /usr/include as a whole holds headers that are of that system alone.
macro(orvel_find_headers package version target folder)
  if(NOT CMAKE_CROSSCOMPILING)
    find_package(${package} ${version} REQUIRED)
  elseif(NOT TARGET ${target})
    if(NOT EXISTS /usr/include/${folder})
      message(FATAL_ERROR "No /usr/include/${folder}: scripts/packages installs it")
    endif()
    file(MAKE_DIRECTORY ${PROJECT_BINARY_DIR}/headers)
    file(CREATE_LINK /usr/include/${folder} ${PROJECT_BINARY_DIR}/headers/${folder} SYMBOLIC)
    add_library(${target} INTERFACE IMPORTED GLOBAL)
    target_include_directories(${target} INTERFACE ${PROJECT_BINARY_DIR}/headers)
  endif()
endmacro()
