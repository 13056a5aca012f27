# What is special to programs that are compiled to WebAssembly, for browsers and for node.

# Errors fly by the machine's own means, which all browsers since 2022 have; scripts would carry them at five
# times the price.
add_compile_options(-fwasm-exceptions)
add_link_options(-fwasm-exceptions)

# The linker's own scripts find a parser of Debian's there.
foreach(language C CXX)
  set(CMAKE_${language}_LINKER_LAUNCHER ${CMAKE_COMMAND} -E env NODE_PATH=/usr/share/nodejs)
endforeach()
include(cmake/web_libraries.cmake)
