# Options that every target of the project shares. Third-party sources do not link `house`.
set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)

add_library(house INTERFACE)
target_compile_options(house INTERFACE $<$<COMPILE_LANGUAGE:CXX>:-Wall -Wextra -Werror>)
target_include_directories(house INTERFACE ${CMAKE_SOURCE_DIR}/src)

if(WIN32)
  target_compile_definitions(house INTERFACE UNICODE _UNICODE NOMINMAX WIN32_LEAN_AND_MEAN _WIN32_WINNT=0x0601)
  # Nothing but Windows' own DLLs may be imported.
  set(CMAKE_CXX_FLAGS_RELEASE "-O2 -DNDEBUG")
  set(CMAKE_C_FLAGS_RELEASE "-O2 -DNDEBUG")
  add_link_options(-static)
  add_compile_options($<$<COMPILE_LANGUAGE:C,CXX>:-ffunction-sections> $<$<COMPILE_LANGUAGE:C,CXX>:-fdata-sections>)
  if(CMAKE_BUILD_TYPE STREQUAL "Release")
    add_link_options(-Wl,--gc-sections)
    if(KEEP_SYMBOLS)
      # Taken out of the files when they are packed. No folder of the building machine is named.
      add_compile_options($<$<COMPILE_LANGUAGE:C,CXX>:-g>
                          $<$<COMPILE_LANGUAGE:C,CXX>:-ffile-prefix-map=${CMAKE_BINARY_DIR}=build>
                          $<$<COMPILE_LANGUAGE:C,CXX>:-ffile-prefix-map=${CMAKE_SOURCE_DIR}=RecoveryUI>)
    else()
      add_link_options(-s)
    endif()
  else()
    target_compile_options(house INTERFACE $<$<COMPILE_LANGUAGE:CXX>:-fsanitize=undefined>
                                           $<$<COMPILE_LANGUAGE:CXX>:-fsanitize-undefined-trap-on-error>)
  endif()
else()
  add_compile_options(-g -fsanitize=address,undefined -fno-sanitize-recover=all)
  add_link_options(-fsanitize=address,undefined)
  if(FUZZ)
    set(CMAKE_CXX_FLAGS_RELWITHDEBINFO "-O2 -gline-tables-only")
    add_compile_options(-fsanitize=fuzzer-no-link)
  endif()
endif()
