# orvane_flags(TARGET) gives a library or program the project's warnings, include path and sanitizers.
function(orvane_flags target)
  target_compile_options(${target} PRIVATE -Wall -Wextra -Wpedantic -Werror -Wshadow -Wconversion
                                           -Wnon-virtual-dtor -Woverloaded-virtual)
  # GCC 12 warns of an overlap in every "literal" + std::string (its bug 105651).
  if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU" AND CMAKE_CXX_COMPILER_VERSION VERSION_LESS 13)
    target_compile_options(${target} PRIVATE -Wno-restrict)
  endif()
  target_include_directories(${target} PUBLIC ${CMAKE_SOURCE_DIR})
  if(ORVANE_SANITIZE)
    target_compile_options(${target} PUBLIC -fsanitize=address,undefined -fno-sanitize-recover=all
                                            -fno-omit-frame-pointer)
    target_link_options(${target} PUBLIC -fsanitize=address,undefined)
  endif()
  if(ORVANE_FUZZ)
    target_compile_options(${target} PUBLIC -fsanitize=fuzzer-no-link,address,undefined -fno-sanitize-recover=all)
    target_link_options(${target} PUBLIC -fsanitize=address,undefined)
  endif()
endfunction()

# orvane_room(NAME [DEPENDS room...] [EXCLUDE file...]) makes the static library of one folder from its
# sources but the excluded ones. The DEPENDS list is the folder's row of the layer table in
# docs/architecture.md; a test reads the #include lines against the same table.
function(orvane_room name)
  cmake_parse_arguments(ROOM "" "" "DEPENDS;EXCLUDE" ${ARGN})
  file(GLOB sources CONFIGURE_DEPENDS ${CMAKE_CURRENT_SOURCE_DIR}/*.cpp)
  foreach(excluded IN LISTS ROOM_EXCLUDE)
    list(REMOVE_ITEM sources ${CMAKE_CURRENT_SOURCE_DIR}/${excluded})
  endforeach()
  if(sources)
    add_library(orvane_${name} STATIC ${sources})
    orvane_flags(orvane_${name})
    foreach(room IN LISTS ROOM_DEPENDS)
      target_link_libraries(orvane_${name} PUBLIC orvane_${room})
    endforeach()
  else()
    add_library(orvane_${name} INTERFACE)
    target_include_directories(orvane_${name} INTERFACE ${CMAKE_SOURCE_DIR})
    foreach(room IN LISTS ROOM_DEPENDS)
      target_link_libraries(orvane_${name} INTERFACE orvane_${room})
    endforeach()
  endif()
endfunction()

# orvane_tests(ROOM LINK room...) makes the test program of one room from tests/ROOM/*.cpp.
function(orvane_tests name)
  cmake_parse_arguments(T "" "" "LINK" ${ARGN})
  file(GLOB sources CONFIGURE_DEPENDS ${CMAKE_CURRENT_SOURCE_DIR}/*.cpp)
  if(NOT sources)
    return()
  endif()
  add_executable(test-${name} ${sources})
  orvane_flags(test-${name})
  # What is under test keeps its optimisation; the tests themselves are built twice as fast without, and
  # run as fast as anybody could notice.
  target_compile_options(test-${name} PRIVATE $<IF:$<BOOL:${ORVANE_SANITIZE}>,-O0,-O1>)
  foreach(room IN LISTS T_LINK)
    target_link_libraries(test-${name} PRIVATE orvane_${room})
  endforeach()
  target_link_libraries(test-${name} PRIVATE GTest::gtest GTest::gmock GTest::gtest_main)
  target_compile_definitions(test-${name} PRIVATE ORVANE_SOURCE_DIR="${CMAKE_SOURCE_DIR}"
                                                  ORVANE_BIN_DIR="${CMAKE_RUNTIME_OUTPUT_DIRECTORY}")
  add_test(NAME ${name} COMMAND test-${name})
endfunction()
