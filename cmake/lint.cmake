# `lint`: clang-format and clang-tidy over everything that we wrote. Nothing is changed; findings fail the target.
find_program(KELVO_CLANG_FORMAT clang-format)
find_program(KELVO_RUN_CLANG_TIDY NAMES run-clang-tidy run-clang-tidy-14)

file(GLOB_RECURSE KELVO_SOURCES CONFIGURE_DEPENDS
  ${CMAKE_SOURCE_DIR}/src/*.h ${CMAKE_SOURCE_DIR}/src/*.cpp ${CMAKE_SOURCE_DIR}/tools/*.h
  ${CMAKE_SOURCE_DIR}/tools/*.cpp ${CMAKE_SOURCE_DIR}/tests/*.h ${CMAKE_SOURCE_DIR}/tests/*.cpp
  ${CMAKE_SOURCE_DIR}/benchmarks/*.h ${CMAKE_SOURCE_DIR}/benchmarks/*.cpp)

if(KELVO_CLANG_FORMAT)
  add_custom_target(format-check COMMAND ${KELVO_CLANG_FORMAT} --dry-run --Werror ${KELVO_SOURCES} VERBATIM
    COMMENT "clang-format")
  add_custom_target(format COMMAND ${KELVO_CLANG_FORMAT} -i ${KELVO_SOURCES} VERBATIM)
endif()
if(KELVO_CLANG_FORMAT AND KELVO_RUN_CLANG_TIDY)
  add_custom_target(lint
    COMMAND ${KELVO_RUN_CLANG_TIDY} -quiet -p ${CMAKE_BINARY_DIR} "${CMAKE_SOURCE_DIR}/(src|tools)/.*cpp$"
    DEPENDS format-check VERBATIM COMMENT "clang-tidy")
endif()
