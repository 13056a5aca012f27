# What a build for Windows needs besides what all builds do.
add_compile_definitions(_WIN32_WINNT=0x0A00 UNICODE NOMINMAX WIN32_LEAN_AND_MEAN)
# No file tells where it was built.
add_compile_options(-ffile-prefix-map=${PROJECT_SOURCE_DIR}=. -ffile-prefix-map=${PROJECT_BINARY_DIR}=.)
enable_language(C)
add_subdirectory(tools/windows)
