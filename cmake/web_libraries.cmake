# The libraries of the script player for node, from the sources that tools/web_sources.sh unpacks: Lua, and libpng
# with zlib for pictures that scripts save. Without the sources the player is left out; the page needs none of it.
set(ORVANE_WEB_SOURCES "" CACHE PATH "Sources of Lua, libpng and zlib, for the script player in node")
if(NOT ORVANE_WEB_SOURCES)
  return()
endif()
enable_language(C)

# As C++, so that Lua's errors and the player's fly by the same means.
set(lua ${ORVANE_WEB_SOURCES}/lua5.4/src)
file(GLOB lua_sources ${lua}/*.c)
list(REMOVE_ITEM lua_sources ${lua}/lua.c ${lua}/luac.c)
set_source_files_properties(${lua_sources} PROPERTIES LANGUAGE CXX)
add_library(orvane-web-lua STATIC ${lua_sources})
target_compile_options(orvane-web-lua PRIVATE -w)
target_include_directories(orvane-web-lua SYSTEM PUBLIC ${lua} ${CMAKE_BINARY_DIR}/libraries)
# Debian's build names the machine here, for a search path of native modules that are of no use here.
file(CONFIGURE OUTPUT ${CMAKE_BINARY_DIR}/libraries/lua5.4-deb-multiarch.h
     CONTENT "#define DEB_HOST_MULTIARCH \"none\"\n")
add_library(PkgConfig::Lua54 ALIAS orvane-web-lua)
set(Lua54_FOUND TRUE)

# What neither reads nor writes compressed files by name: they need more of a system.
set(zlib ${ORVANE_WEB_SOURCES}/zlib)
set(zlib_parts adler32 compress crc32 deflate infback inffast inflate inftrees trees uncompr zutil)
list(TRANSFORM zlib_parts REPLACE "(.+)" "${zlib}/\\1.c" OUTPUT_VARIABLE zlib_sources)
add_library(orvane-web-zlib STATIC ${zlib_sources})
target_compile_options(orvane-web-zlib PRIVATE -w)
target_include_directories(orvane-web-zlib SYSTEM PUBLIC ${zlib})

set(png ${ORVANE_WEB_SOURCES}/libpng1.6)
configure_file(${png}/scripts/pnglibconf.h.prebuilt ${CMAKE_BINARY_DIR}/libraries/pnglibconf.h COPYONLY)
file(GLOB png_sources ${png}/png*.c)
list(REMOVE_ITEM png_sources ${png}/pngtest.c)
add_library(orvane-web-png STATIC ${png_sources})
target_compile_options(orvane-web-png PRIVATE -w)
target_include_directories(orvane-web-png SYSTEM PUBLIC ${png} ${CMAKE_BINARY_DIR}/libraries)
target_link_libraries(orvane-web-png PUBLIC orvane-web-zlib)
add_library(PNG::PNG ALIAS orvane-web-png)
