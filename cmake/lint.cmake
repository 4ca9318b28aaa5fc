# `lint`: clang-format, clang-tidy and cppcheck over everything that we wrote. Nothing is changed; findings fail the
# target.
find_program(KELVO_CLANG_FORMAT clang-format)
find_program(KELVO_RUN_CLANG_TIDY NAMES run-clang-tidy run-clang-tidy-14)
find_program(KELVO_CPPCHECK cppcheck)

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
if(KELVO_CLANG_FORMAT AND KELVO_RUN_CLANG_TIDY)
  add_custom_target(lint
    COMMAND ${KELVO_RUN_CLANG_TIDY} -quiet -p ${CMAKE_BINARY_DIR} "${CMAKE_SOURCE_DIR}/(src|tools)/.*cpp$"
    DEPENDS format-check VERBATIM COMMENT "clang-tidy")
endif()

# What is switched off: the headers of Qt and of the standard library are not read (missingIncludeSystem), and a short
# loop may stay one where the algorithm would be longer (useStlAlgorithm). `emit` is a word without a meaning.
if(KELVO_CPPCHECK AND TARGET lint)
  add_custom_target(cppcheck
    COMMAND ${KELVO_CPPCHECK} --quiet -j2 --std=c++20 --language=c++ --library=qt -Demit= --inline-suppr
      --enable=warning,performance,portability,style --suppress=missingIncludeSystem --suppress=useStlAlgorithm
      --error-exitcode=1 -I ${CMAKE_SOURCE_DIR}/src ${CMAKE_SOURCE_DIR}/src ${CMAKE_SOURCE_DIR}/tools
    VERBATIM COMMENT "cppcheck")
  add_dependencies(lint cppcheck)
endif()
