# cmake -D FROM=file -D TO=file -P copy_if_missing.cmake
if(NOT EXISTS ${TO})
  configure_file(${FROM} ${TO} COPYONLY)
endif()
