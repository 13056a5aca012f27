# Libraries from the sources that Debian packs, for systems that it has no packages of them for. They bear the names
# that their packages have elsewhere.
set(ORVANE_SOURCES ${CMAKE_BINARY_DIR}/sources)
enable_language(C)

# Fetches the sources of packages that are not there yet.
function(orvane_fetch_sources)
  execute_process(COMMAND ${PROJECT_SOURCE_DIR}/tools/sources.sh ${ORVANE_SOURCES} ${ARGN} COMMAND_ERROR_IS_FATAL ANY)
endfunction()

# A library of files of theirs; what compilers warn of in them is theirs to mend.
function(orvane_source_library name)
  add_library(${name} STATIC EXCLUDE_FROM_ALL ${ARGN})
  target_compile_options(${name} PRIVATE -w)
endfunction()

# Lua, compiled as C or as CXX: then its errors fly by the means of C++.
function(orvane_lua_from_sources language)
  file(GLOB files ${ORVANE_SOURCES}/lua5.4/src/*.c)
  list(FILTER files EXCLUDE REGEX "/luac?\\.c$")
  set_source_files_properties(${files} PROPERTIES LANGUAGE ${language})
  orvane_source_library(orvane-lua ${files})
  # Debian's build names the machine here, for a search path of native modules that are of no use elsewhere.
  file(CONFIGURE OUTPUT ${CMAKE_BINARY_DIR}/libraries/lua5.4-deb-multiarch.h
       CONTENT "#define DEB_HOST_MULTIARCH \"none\"\n")
  target_include_directories(orvane-lua SYSTEM PUBLIC ${ORVANE_SOURCES}/lua5.4/src ${CMAKE_BINARY_DIR}/libraries)
  add_library(PkgConfig::Lua54 ALIAS orvane-lua)
endfunction()

# zlib, without what reads and writes compressed files by name: that needs more of a system.
function(orvane_zlib_from_sources)
  set(files adler32 compress crc32 deflate infback inffast inflate inftrees trees uncompr zutil)
  list(TRANSFORM files REPLACE "(.+)" "${ORVANE_SOURCES}/zlib/\\1.c")
  orvane_source_library(orvane-zlib ${files})
  target_include_directories(orvane-zlib SYSTEM PUBLIC ${ORVANE_SOURCES}/zlib)
  add_library(ZLIB::ZLIB ALIAS orvane-zlib)
endfunction()

# libpng, on ZLIB::ZLIB.
function(orvane_png_from_sources)
  file(GLOB files ${ORVANE_SOURCES}/libpng1.6/png*.c)
  list(FILTER files EXCLUDE REGEX "/pngtest\\.c$")
  orvane_source_library(orvane-png ${files})
  configure_file(${ORVANE_SOURCES}/libpng1.6/scripts/pnglibconf.h.prebuilt ${CMAKE_BINARY_DIR}/libraries/pnglibconf.h
                 COPYONLY)
  target_include_directories(orvane-png SYSTEM PUBLIC ${ORVANE_SOURCES}/libpng1.6 ${CMAKE_BINARY_DIR}/libraries)
  target_link_libraries(orvane-png PUBLIC ZLIB::ZLIB)
  add_library(PNG::PNG ALIAS orvane-png)
endfunction()
