# The second compiler: clang with the headers, libraries and resource compiler of MinGW-w64.
include(${CMAKE_CURRENT_LIST_DIR}/mingw.cmake)

# Debian names MinGW's version folder after its thread model, and clang looks for a number.
set(gcc_folder lib/gcc/${MINGW_TRIPLET})
file(GLOB posix_folder /usr/${gcc_folder}/*-posix)
string(REGEX REPLACE ".*/([0-9]+)-posix$" "\\1" gcc_version "${posix_folder}")
set(CMAKE_SYSROOT ${CMAKE_CURRENT_LIST_DIR}/../build/sysroot)
if(NOT EXISTS ${CMAKE_SYSROOT}/${gcc_folder}/${gcc_version})
  file(MAKE_DIRECTORY ${CMAKE_SYSROOT}/${gcc_folder})
  file(CREATE_LINK ${posix_folder} ${CMAKE_SYSROOT}/${gcc_folder}/${gcc_version} SYMBOLIC)
  file(CREATE_LINK /usr/${MINGW_TRIPLET} ${CMAKE_SYSROOT}/${MINGW_TRIPLET} SYMBOLIC)
endif()

# The one whose tables the tests read; its own prints others.
set(CMAKE_OBJDUMP ${MINGW_TRIPLET}-objdump CACHE FILEPATH "")
set(CMAKE_C_COMPILER clang)
set(CMAKE_CXX_COMPILER clang++)
set(CMAKE_C_COMPILER_TARGET ${MINGW_TRIPLET})
set(CMAKE_CXX_COMPILER_TARGET ${MINGW_TRIPLET})
set(CMAKE_CXX_FLAGS_INIT -pthread)
set(CMAKE_EXE_LINKER_FLAGS_INIT -fuse-ld=lld)
set(CMAKE_SHARED_LINKER_FLAGS_INIT -fuse-ld=lld)
# clang emits a function of the standard library's headers that the library holds too.
set(CMAKE_EXE_LINKER_FLAGS_INIT "${CMAKE_EXE_LINKER_FLAGS_INIT} -Wl,--allow-multiple-definition")
set(CMAKE_SHARED_LINKER_FLAGS_INIT "${CMAKE_SHARED_LINKER_FLAGS_INIT} -Wl,--allow-multiple-definition")
