# `format-check` tells where everything that we wrote is not formatted; `format` formats it.
find_program(KELVO_CLANG_FORMAT clang-format)

file(GLOB_RECURSE KELVO_SOURCES CONFIGURE_DEPENDS
  ${CMAKE_SOURCE_DIR}/src/*.h ${CMAKE_SOURCE_DIR}/src/*.cpp ${CMAKE_SOURCE_DIR}/tools/*.h
  ${CMAKE_SOURCE_DIR}/tools/*.cpp ${CMAKE_SOURCE_DIR}/tests/*.h ${CMAKE_SOURCE_DIR}/tests/*.cpp
  ${CMAKE_SOURCE_DIR}/benchmarks/*.h ${CMAKE_SOURCE_DIR}/benchmarks/*.cpp ${CMAKE_SOURCE_DIR}/fuzz/*.h
  ${CMAKE_SOURCE_DIR}/fuzz/*.cpp)

if(KELVO_CLANG_FORMAT)
  add_custom_target(format-check COMMAND ${KELVO_CLANG_FORMAT} --dry-run --Werror ${KELVO_SOURCES} VERBATIM
    COMMENT "clang-format")
  add_custom_target(format COMMAND ${KELVO_CLANG_FORMAT} -i ${KELVO_SOURCES} VERBATIM)
endif()
