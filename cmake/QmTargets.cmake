# The few commands with which every folder of the project declares what it builds.

if(WIN32)
  enable_language(RC)
  set(ZLIB_USE_STATIC_LIBS ON)
  # Programs and DLLs stand side by side at the top of the build tree.
  set(CMAKE_RUNTIME_OUTPUT_DIRECTORY "${CMAKE_BINARY_DIR}")
  set(CMAKE_SHARED_LIBRARY_PREFIX "")
endif()

add_library(qm_settings INTERFACE)
target_compile_features(qm_settings INTERFACE cxx_std_20)
target_include_directories(qm_settings INTERFACE "${CMAKE_SOURCE_DIR}/src")
target_compile_options(qm_settings INTERFACE -Wall -Wextra -Wconversion -Wno-unknown-pragmas)
if(CMAKE_CXX_COMPILER_ID STREQUAL GNU AND CMAKE_CXX_COMPILER_VERSION VERSION_LESS 13)
  target_compile_options(qm_settings INTERFACE -Wno-restrict)  # false alarms on "literal" + std::string
endif()
if(WIN32)
  target_compile_definitions(qm_settings INTERFACE UNICODE _UNICODE NOMINMAX WIN32_LEAN_AND_MEAN
                                                   _WIN32_WINNT=0x0A00)
  target_link_options(qm_settings INTERFACE -static)
endif()
if(QM_SANITIZE)
  target_compile_options(qm_settings INTERFACE -fsanitize=address,undefined -fno-sanitize-recover=all
                                               -fno-omit-frame-pointer)
  target_link_options(qm_settings INTERFACE -fsanitize=address,undefined)
endif()
file(REMOVE_RECURSE "${CMAKE_BINARY_DIR}/cases")
if(QM_FUZZ)
  file(REMOVE_RECURSE "${CMAKE_BINARY_DIR}/corpora")
  target_compile_options(qm_settings INTERFACE -fsanitize=fuzzer-no-link,address,undefined
                                               -fno-sanitize-recover=all -fno-omit-frame-pointer)
  target_link_options(qm_settings INTERFACE -fsanitize=address,undefined)
endif()

# qm_library(NAME SOURCES file... [DEPENDS target...])
# A static library of one source folder.
function(qm_library name)
  cmake_parse_arguments(arg "" "" "SOURCES;DEPENDS" ${ARGN})
  add_library(${name} STATIC ${arg_SOURCES})
  target_link_libraries(${name} PUBLIC qm_settings ${arg_DEPENDS})
endfunction()

# qm_test(NAME SOURCES file... [DEPENDS target...] [TIMEOUT seconds] [ARGS argument...])
# A GoogleTest program; it runs natively or, in a Windows build, through scripts/wine-run.sh, and
# leaves its results as build/<preset>/results/NAME.xml. It runs with QM_SOURCE_DIR as a definition, and
# with QM_PRINT_JOBS in its environment naming a folder of its own for what it prints.
function(qm_test name)
  if(QM_FUZZ)
    return()
  endif()
  cmake_parse_arguments(arg "" "TIMEOUT" "SOURCES;DEPENDS;ARGS" ${ARGN})
  if(NOT arg_TIMEOUT)
    set(arg_TIMEOUT 120)
  endif()
  find_package(GTest REQUIRED)
  add_executable(${name} ${arg_SOURCES})
  target_link_libraries(${name} PRIVATE qm_settings ${arg_DEPENDS} GTest::gmock_main)
  target_compile_options(${name} PRIVATE -O0)  # compiles three times as fast; the code under test is optimized
  target_include_directories(${name} PRIVATE "${CMAKE_SOURCE_DIR}")
  target_compile_definitions(${name} PRIVATE QM_SOURCE_DIR="${CMAKE_SOURCE_DIR}"
                                             QM_BINARY_DIR="${CMAKE_BINARY_DIR}")
  file(WRITE "${CMAKE_BINARY_DIR}/cases/${name}" "")  # tells scripts/count_tests.py to count its cases
  # GoogleTest takes a path without a drive for a relative one; under Wine this system's files are drive Z.
  set(drive)
  if(WIN32 AND CMAKE_CROSSCOMPILING)
    set(drive "Z:")
  endif()
  add_test(NAME ${name} COMMAND ${name} --gtest_brief=1
                                "--gtest_output=xml:${drive}${CMAKE_BINARY_DIR}/results/${name}.xml" ${arg_ARGS})
  set_tests_properties(${name} PROPERTIES
    TIMEOUT ${arg_TIMEOUT} SKIP_RETURN_CODE 77
    ENVIRONMENT "QM_PRINT_JOBS=${CMAKE_BINARY_DIR}/jobs/${name}")
endfunction()

# qm_script_test(NAME COMMAND script argument... [TIMEOUT seconds] [LABELS label...] [ALONE])
# A test that is a script: 0 passes, 77 skips, anything else fails. ALONE: nothing runs beside it.
# Its environment:
#   QM_SOURCE_DIR, QM_BINARY_DIR   the project and this build tree
#   QM_RUN_FLAGS                   how scripts/wine-run.sh runs a Windows program of this build: --win32, or empty
#   QM_PRINT_JOBS                  a folder of its own for printed jobs (not made, not emptied beforehand)
#   QM_SCRATCH                     a folder of its own for anything else (likewise)
function(qm_script_test name)
  if(QM_FUZZ)
    return()
  endif()
  cmake_parse_arguments(arg "ALONE" "TIMEOUT" "COMMAND;LABELS" ${ARGN})
  if(NOT arg_TIMEOUT)
    set(arg_TIMEOUT 120)
  endif()
  set(flags "${CMAKE_CROSSCOMPILING_EMULATOR}")
  list(POP_FRONT flags)
  add_test(NAME ${name} COMMAND ${arg_COMMAND} WORKING_DIRECTORY "${CMAKE_SOURCE_DIR}")
  set_tests_properties(${name} PROPERTIES
    TIMEOUT ${arg_TIMEOUT} SKIP_RETURN_CODE 77 LABELS "${arg_LABELS}"
    ENVIRONMENT "QM_SOURCE_DIR=${CMAKE_SOURCE_DIR};QM_BINARY_DIR=${CMAKE_BINARY_DIR};QM_RUN_FLAGS=${flags};\
QM_PRINT_JOBS=${CMAKE_BINARY_DIR}/jobs/${name};QM_SCRATCH=${CMAKE_BINARY_DIR}/scratch/${name}")
  if(arg_ALONE)
    set_tests_properties(${name} PROPERTIES RUN_SERIAL ON)
  endif()
endfunction()

# qm_fuzz(NAME SOURCES file... [DEPENDS target...] CORPUS folder)
# A libFuzzer target; only the preset "fuzz" builds it. scripts/fuzz.sh runs it on a copy of its seed corpus.
function(qm_fuzz name)
  if(NOT QM_FUZZ)
    return()
  endif()
  cmake_parse_arguments(arg "" "CORPUS" "SOURCES;DEPENDS" ${ARGN})
  get_filename_component(corpus "${arg_CORPUS}" ABSOLUTE)
  add_executable(${name} ${arg_SOURCES})
  target_link_libraries(${name} PRIVATE qm_settings ${arg_DEPENDS})
  target_include_directories(${name} PRIVATE "${CMAKE_SOURCE_DIR}")
  target_link_options(${name} PRIVATE -fsanitize=fuzzer)
  set_target_properties(${name} PROPERTIES RUNTIME_OUTPUT_DIRECTORY "${CMAKE_BINARY_DIR}/targets")
  file(WRITE "${CMAKE_BINARY_DIR}/corpora/${name}" "${corpus}\n")
endfunction()
