# HTML of message templates and of hosts.
if(COMMAND qm_fuzz)
  qm_fuzz(html_references_fuzz SOURCES html_references_fuzz.cpp DEPENDS qm_text
          CORPUS "${CMAKE_CURRENT_LIST_DIR}/corpus/html_references")
  qm_fuzz(html_body_fuzz SOURCES html_body_fuzz.cpp DEPENDS qm_mail
          CORPUS "${CMAKE_CURRENT_LIST_DIR}/corpus/html_body")
endif()
