# Models as layouts of the designer.
if(COMMAND qm_fuzz)
  qm_fuzz(layout_fuzz SOURCES layout_fuzz.cpp DEPENDS qm_designer CORPUS "${CMAKE_CURRENT_LIST_DIR}/corpus/layout")
endif()
