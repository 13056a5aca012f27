# What is special to programs that are compiled to WebAssembly, for browsers and for node.

# Errors fly by the machine's own means, which all browsers since 2022 have; scripts would carry them at five
# times the price.
add_compile_options(-fwasm-exceptions)
add_link_options(-fwasm-exceptions)
include(cmake/web_libraries.cmake)
