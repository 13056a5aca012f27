# The libraries of the script player for node. The page needs none of it.
option(ORVANE_NODE_PLAYER "Build the script player for node" OFF)
if(ORVANE_NODE_PLAYER)
  include(cmake/source_libraries.cmake)
  orvane_fetch_sources(lua5.4 libpng1.6 zlib)
  orvane_lua_from_sources(CXX)
  orvane_zlib_from_sources()
  orvane_png_from_sources()
endif()
