# Draws the SVG file DRAWING at each of the SCALES (separated by commas) into PNG files beside OUTPUT,
# and writes OUTPUT: their bytes as arrays, and the drawing's name in PascalCase as one constant
#   constexpr Artwork<number of scales> kName{{width, height}, {{bytes at the first scale, ...}}};
# where width and height are those of the SVG file, in logical pixels.
cmake_minimum_required(VERSION 3.25)

get_filename_component(name ${DRAWING} NAME_WE)
get_filename_component(folder ${OUTPUT} DIRECTORY)
file(MAKE_DIRECTORY ${folder})

file(READ ${DRAWING} svg)
if(NOT svg MATCHES "<svg [^>]*width=\"([0-9]+)\" height=\"([0-9]+)\"")
  message(FATAL_ERROR "${DRAWING}: the svg element has no whole width and height, in this order")
endif()
set(width ${CMAKE_MATCH_1})
set(height ${CMAKE_MATCH_2})

set(identifier "")
string(REPLACE "-" ";" words ${name})
foreach(word IN LISTS words)
  string(SUBSTRING ${word} 0 1 initial)
  string(SUBSTRING ${word} 1 -1 rest)
  string(TOUPPER ${initial} initial)
  string(APPEND identifier ${initial}${rest})
endforeach()

set(arrays "")
set(members "")
set(count 0)
string(REPLACE "," ";" SCALES ${SCALES})
foreach(scale IN LISTS SCALES)
  set(png ${folder}/${name}-${scale}.png)
  math(EXPR pixels_wide "${width} * ${scale}")
  math(EXPR pixels_high "${height} * ${scale}")
  execute_process(COMMAND ${RSVG_CONVERT} --width ${pixels_wide} --height ${pixels_high} --output ${png} ${DRAWING}
                  COMMAND_ERROR_IS_FATAL ANY)
  file(READ ${png} bytes HEX)
  string(REGEX REPLACE "(..)" "0x\\1," bytes "${bytes}")
  string(APPEND arrays "constexpr unsigned char k${identifier}${scale}[] = {${bytes}};\n")
  string(APPEND members "k${identifier}${scale}, ")
  math(EXPR count "${count} + 1")
endforeach()

file(WRITE ${OUTPUT} "${arrays}constexpr Artwork<${count}> k${identifier}{{${width}, ${height}}, {{${members}}}};\n")
