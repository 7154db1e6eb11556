# Readers of model files, of their texts, and of dates of the host's records.
if(COMMAND qm_fuzz)
  qm_fuzz(model_fuzz SOURCES model_fuzz.cpp DEPENDS qm_model CORPUS "${CMAKE_CURRENT_LIST_DIR}/corpus/model")
  qm_fuzz(text_numbers_fuzz SOURCES text_numbers_fuzz.cpp DEPENDS qm_text
          CORPUS "${CMAKE_CURRENT_LIST_DIR}/corpus/text_numbers")
  qm_fuzz(dates_fuzz SOURCES dates_fuzz.cpp DEPENDS qm_data CORPUS "${CMAKE_CURRENT_LIST_DIR}/corpus/dates")
endif()
