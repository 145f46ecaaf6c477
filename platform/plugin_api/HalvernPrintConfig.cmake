# SPDX-License-Identifier: MIT
# find_package(HalvernPrint) gives Halvern::Platform, which a maker's bundle links.
include(CMakeFindDependencyMacro)
find_dependency(Qt6 6.4 COMPONENTS Core Gui Widgets)
include(${CMAKE_CURRENT_LIST_DIR}/HalvernPrintTargets.cmake)
