# Record files.
if(COMMAND qm_fuzz)
  qm_fuzz(record_file_fuzz SOURCES record_file_fuzz.cpp DEPENDS qm_recordfile
          CORPUS "${CMAKE_CURRENT_LIST_DIR}/corpus/record_file")
endif()
