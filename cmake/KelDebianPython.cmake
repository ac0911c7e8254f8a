# The Python module as a Debian package. It is one file for all releases of Python from 3.10 on.
set(pythonFolder lib/python3/dist-packages)
install(DIRECTORY python/kelpower DESTINATION ${pythonFolder} COMPONENT python3
  PATTERN "__pycache__" EXCLUDE PATTERN "*.so" EXCLUDE)
install(TARGETS kelpower_python LIBRARY DESTINATION ${pythonFolder}/kelpower COMPONENT python3)

# pip and importlib.metadata read this.
configure_file(packaging/debian/METADATA.in debian/METADATA @ONLY)
install(FILES ${PROJECT_BINARY_DIR}/debian/METADATA DESTINATION ${pythonFolder}/kelpower-${PROJECT_VERSION}.dist-info
        COMPONENT python3)

kel_debian_package(python3 python3-kelpower python
  "plan studies: power, sample size and precision (Python 3)"
  "${about}" "This package has the module kelpower for Python 3: every test as a function, arrays in and arrays \
out, and the library's functions.")
# A module built with the headers of NumPy 1 does not run with NumPy 2, but the other way round it does.
execute_process(COMMAND ${Python_EXECUTABLE} -c "import numpy; print(numpy.__version__, end='')"
  OUTPUT_VARIABLE numpyVersion COMMAND_ERROR_IS_FATAL ANY)
set(numpy "python3-numpy (>= 1:1.22)")
if(numpyVersion VERSION_LESS 2)
  string(APPEND numpy ", python3-numpy (<< 1:2)")
endif()
set(CPACK_DEBIAN_PYTHON3_PACKAGE_DEPENDS "python3 (>= 3.10), ${numpy}")
set(CPACK_DEBIAN_PYTHON3_PACKAGE_SUGGESTS "python3-matplotlib, python3-pandas")
set(CPACK_DEBIAN_PYTHON3_PACKAGE_CONTROL_EXTRA
  ${PROJECT_SOURCE_DIR}/packaging/debian/postinst ${PROJECT_SOURCE_DIR}/packaging/debian/prerm)
set(CPACK_DEBIAN_PYTHON3_PACKAGE_CONTROL_STRICT_PERMISSION ON)
