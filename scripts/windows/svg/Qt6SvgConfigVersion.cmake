# The renderer is Qt 5.15's, but it stands in for that of the Qt that it was compiled with, so it answers to this version.
find_package(Qt6Core QUIET)
set(PACKAGE_VERSION ${Qt6Core_VERSION})
if(NOT PACKAGE_FIND_VERSION VERSION_GREATER PACKAGE_VERSION)
    set(PACKAGE_VERSION_COMPATIBLE TRUE)
endif()
