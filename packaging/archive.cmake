# Read by cpack for each kind of package: the archive has no /usr, so that it can be unpacked anywhere.
if(CPACK_GENERATOR STREQUAL "TGZ")
  set(CPACK_PACKAGING_INSTALL_PREFIX "/")
endif()
