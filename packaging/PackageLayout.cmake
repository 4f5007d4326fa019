# SPDX-FileCopyrightText: 2026 The ORVEL developers
# SPDX-License-Identifier: MIT
# Read before each kind of package is made: which layout it has.
set(CPACK_COMPONENTS_GROUPING ALL_COMPONENTS_IN_ONE)
if(CPACK_GENERATOR STREQUAL "DEB")
  set(CPACK_COMPONENTS_ALL System)
  set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
  set(CPACK_COMPONENTS_GROUPING ONE_PER_GROUP)
else()
  set(CPACK_COMPONENTS_ALL Portable)
  set(CPACK_COMPONENT_INCLUDE_TOPLEVEL_DIRECTORY ON)
endif()
