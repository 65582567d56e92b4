# What `cmake --install` puts in the prefix: the command, libkeydeck with its
# soname link, the public headers, the CMake package (find_package(keydeck)
# gives keydeck::keydeck), the pkg-config file keydeck.pc and the docs.
include(CMakePackageConfigHelpers)

set_target_properties(libkeydeck PROPERTIES EXPORT_NAME keydeck)
target_compile_features(libkeydeck INTERFACE cxx_std_17) # the headers use std::string_view

install(TARGETS keydeck RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR})
install(TARGETS libkeydeck EXPORT keydeckTargets
  LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR})
install(DIRECTORY include/keydeck DESTINATION ${CMAKE_INSTALL_INCLUDEDIR})

set(keydeck_package_dir ${CMAKE_INSTALL_LIBDIR}/cmake/keydeck)
install(EXPORT keydeckTargets NAMESPACE keydeck:: DESTINATION ${keydeck_package_dir})
configure_package_config_file(cmake/keydeckConfig.cmake.in
  ${PROJECT_BINARY_DIR}/keydeckConfig.cmake INSTALL_DESTINATION ${keydeck_package_dir})
write_basic_package_version_file(${PROJECT_BINARY_DIR}/keydeckConfigVersion.cmake
  COMPATIBILITY SameMajorVersion)
install(FILES ${PROJECT_BINARY_DIR}/keydeckConfig.cmake
  ${PROJECT_BINARY_DIR}/keydeckConfigVersion.cmake DESTINATION ${keydeck_package_dir})

# keydeck.pc finds the prefix from its own place, so it holds for any
# `cmake --install --prefix`.
file(RELATIVE_PATH keydeck_pc_prefix /${CMAKE_INSTALL_LIBDIR}/pkgconfig /)
configure_file(cmake/keydeck.pc.in ${PROJECT_BINARY_DIR}/keydeck.pc @ONLY)
install(FILES ${PROJECT_BINARY_DIR}/keydeck.pc DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig)

install(FILES README.md DESTINATION ${CMAKE_INSTALL_DOCDIR})
install(DIRECTORY docs/ DESTINATION ${CMAKE_INSTALL_DOCDIR})
