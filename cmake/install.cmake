# Installation: component runtime is the shared library, component development all that is needed to
# build against it, with CMake (package dakvmpx) or with pkg-config (dakvmpx.pc). Both find their
# files relative to themselves, so the installed tree can be staged, moved and packaged. Component
# tools is the command dakvm, accuracy the command that measures, python the module for NumPy.
include(CMakePackageConfigHelpers)

install(
  TARGETS dakvmpx dakvmpx_static
  EXPORT dakvmpx
  LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT runtime
  ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT development)
install(
  FILES ${PROJECT_SOURCE_DIR}/include/dakvmpx.h ${PROJECT_SOURCE_DIR}/include/dakvmpx.hpp
        ${PROJECT_SOURCE_DIR}/bindings/fortran/dakvmpx.f90
  DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}
  COMPONENT development)

# The version file also refuses consumers of another pointer size.
set(package_dir ${CMAKE_INSTALL_LIBDIR}/cmake/dakvmpx)
write_basic_package_version_file(${PROJECT_BINARY_DIR}/dakvmpxConfigVersion.cmake
                                 COMPATIBILITY SameMajorVersion)
configure_file(${CMAKE_CURRENT_LIST_DIR}/dakvmpxConfig.cmake.in
               ${PROJECT_BINARY_DIR}/dakvmpxConfig.cmake @ONLY)
install(
  FILES ${PROJECT_BINARY_DIR}/dakvmpxConfig.cmake ${PROJECT_BINARY_DIR}/dakvmpxConfigVersion.cmake
  DESTINATION ${package_dir}
  COMPONENT development)
install(
  EXPORT dakvmpx
  FILE dakvmpxTargets.cmake
  NAMESPACE dakvmpx::
  DESTINATION ${package_dir}
  COMPONENT development)

file(RELATIVE_PATH pc_to_prefix ${CMAKE_INSTALL_FULL_LIBDIR}/pkgconfig ${CMAKE_INSTALL_PREFIX})
cmake_path(APPEND pc_libdir "\${prefix}" "${CMAKE_INSTALL_LIBDIR}")
cmake_path(APPEND pc_includedir "\${prefix}" "${CMAKE_INSTALL_INCLUDEDIR}")
configure_file(${CMAKE_CURRENT_LIST_DIR}/dakvmpx.pc.in ${PROJECT_BINARY_DIR}/dakvmpx.pc @ONLY)
install(
  FILES ${PROJECT_BINARY_DIR}/dakvmpx.pc
  DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig
  COMPONENT development)

# Python loads a library of its own word size.
if(CMAKE_SIZEOF_VOID_P EQUAL 8)
  set(DAKVM_PYTHON_DIR lib/python3/dist-packages CACHE STRING "Where the Python module goes")
  install(
    DIRECTORY ${PROJECT_SOURCE_DIR}/bindings/python/dakvmpx
    DESTINATION ${DAKVM_PYTHON_DIR}
    COMPONENT python
    FILES_MATCHING
    PATTERN "*.py")
endif()

install(
  FILES ${PROJECT_SOURCE_DIR}/LICENSE
  DESTINATION ${CMAKE_INSTALL_DOCDIR}
  COMPONENT runtime)
install(
  FILES ${PROJECT_SOURCE_DIR}/README.md
  DESTINATION ${CMAKE_INSTALL_DOCDIR}
  COMPONENT development)
install(
  DIRECTORY ${PROJECT_SOURCE_DIR}/docs/
  DESTINATION ${CMAKE_INSTALL_DOCDIR}
  COMPONENT development
  FILES_MATCHING
  PATTERN "*.md"
  PATTERN "*.json"
  PATTERN "*.svg"
  PATTERN manual EXCLUDE)
include(${CMAKE_CURRENT_LIST_DIR}/packages.cmake)
