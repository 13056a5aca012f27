# Emscripten as Debian packs it.
set(CMAKE_MODULE_PATH ${CMAKE_MODULE_PATH} /usr/share/emscripten/cmake/Modules)
include(/usr/share/emscripten/cmake/Modules/Platform/Emscripten.cmake)
