# Readers of model files, of their texts, of dates of the host's records, of definition files and of the headers
# of pictures.
if(COMMAND qm_fuzz)
  qm_fuzz(model_fuzz SOURCES model_fuzz.cpp DEPENDS qm_model CORPUS "${CMAKE_CURRENT_LIST_DIR}/corpus/model")
  qm_fuzz(text_numbers_fuzz SOURCES text_numbers_fuzz.cpp DEPENDS qm_text
          CORPUS "${CMAKE_CURRENT_LIST_DIR}/corpus/text_numbers")
  qm_fuzz(dates_fuzz SOURCES dates_fuzz.cpp DEPENDS qm_data CORPUS "${CMAKE_CURRENT_LIST_DIR}/corpus/dates")
  qm_fuzz(definition_fuzz SOURCES definition_fuzz.cpp DEPENDS qm_data
          CORPUS "${CMAKE_CURRENT_LIST_DIR}/corpus/definition")
  qm_fuzz(picture_size_fuzz SOURCES picture_size_fuzz.cpp DEPENDS qm_platform
          CORPUS "${CMAKE_CURRENT_LIST_DIR}/corpus/picture_size")
endif()
