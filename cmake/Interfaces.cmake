# What is made of an IDL file of the current folder: C++ declarations, ids and type libraries.
set(idl_platform_folder ${CMAKE_SOURCE_DIR}/src/resources/idl)
set(widl ${WIDL} -I ${idl_platform_folder} -L /usr/lib/x86_64-linux-gnu/wine/x86_64-windows)

# <name>.h and <name>_i.c
function(idl_header name)
  set(idl ${CMAKE_CURRENT_SOURCE_DIR}/${name}.idl)
  set(out ${CMAKE_CURRENT_BINARY_DIR}/${name})
  add_custom_command(
    OUTPUT ${out}.h ${out}_i.c
    COMMAND ${widl} --win64 -h -o ${out}.h ${idl}
    COMMAND ${widl} --win64 -u -o ${out}_i.c ${idl}
    DEPENDS ${idl} ${idl_platform_folder}/oaidl.idl
    COMMENT "Generating ${name}.h")
endfunction()

# <name>.tlb, of kind win32 on every architecture, so that it always registers under one key.
function(type_library name)
  set(idl ${CMAKE_CURRENT_SOURCE_DIR}/${name}.idl)
  set(out ${CMAKE_CURRENT_BINARY_DIR}/${name}.tlb)
  add_custom_command(
    OUTPUT ${out}
    COMMAND ${widl} --win32 -t -o ${out} ${idl}
    DEPENDS ${idl} ${idl_platform_folder}/oaidl.idl
    COMMENT "Generating ${name}.tlb")
endfunction()
