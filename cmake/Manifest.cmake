# embed_manifest(<program>): common controls 6, DPI awareness per monitor, and every class of the component
# and of the reference host's stand-ins, which lie beside the program: no registration is needed.
file(GLOB_RECURSE host_object_headers CONFIGURE_DEPENDS ${CMAKE_SOURCE_DIR}/host/objects/*.h)
set(component_idl ${CMAKE_SOURCE_DIR}/src/resources/RecoveryUI.idl)
set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${component_idl} ${host_object_headers})

function(com_class_element out clsid progid)
  set(${out} "    <comClass clsid=\"{${clsid}}\" threadingModel=\"Apartment\" progid=\"${progid}\">
      <progid>${progid}.1</progid>
    </comClass>
" PARENT_SCOPE)
endfunction()

# The component's: the coclasses of its type library.
file(READ ${component_idl} text)
string(REPLACE "]" "}" text "${text}") # an unpaired bracket would hold a list together
string(REGEX MATCHALL "uuid\\([-0-9A-Fa-f]+\\)[^}]*}[ \t\r\n]*coclass [A-Za-z0-9_]+" entries "${text}")
foreach(entry ${entries})
  string(REGEX MATCH "uuid\\(([-0-9A-Fa-f]+)\\).* ([A-Za-z0-9_]+)$" _ "${entry}")
  com_class_element(element ${CMAKE_MATCH_1} Vantrel.${CMAKE_MATCH_2})
  string(APPEND component_classes "${element}")
endforeach()

# The stand-ins': kClsid<Name> of ClassIds.h belongs to the ProgID that ends in ".<Name>".
foreach(header ${host_object_headers})
  file(STRINGS ${header} lines REGEX "kProgId = L\"")
  string(REGEX MATCHALL "L\"[A-Za-z0-9_.]+\"" found "${lines}")
  list(APPEND progids ${found})
endforeach()
file(READ ${CMAKE_SOURCE_DIR}/host/objects/ClassIds.h text)
string(REGEX MATCHALL "{[-0-9A-Fa-f]+}[ \t\r\n]+inline constexpr CLSID kClsid[A-Za-z0-9_]+" entries "${text}")
foreach(entry ${entries})
  string(REGEX MATCH "^{([-0-9A-Fa-f]+)}.*kClsid([A-Za-z0-9_]+)$" _ "${entry}")
  set(clsid ${CMAKE_MATCH_1})
  set(name ${CMAKE_MATCH_2})
  if(NOT "${progids}" MATCHES "L\"([A-Za-z0-9_.]+\\.${name})\"")
    message(FATAL_ERROR "No stand-in has a ProgID that ends in .${name}")
  endif()
  com_class_element(element ${clsid} ${CMAKE_MATCH_1})
  string(APPEND host_classes "${element}")
endforeach()

if(MINGW_ARCH STREQUAL "i686")
  set(manifest_architecture x86)
else()
  set(manifest_architecture amd64)
endif()

function(embed_manifest program)
  set(manifest ${CMAKE_CURRENT_BINARY_DIR}/${program}.manifest)
  configure_file(${CMAKE_SOURCE_DIR}/cmake/program.manifest.in ${manifest} @ONLY)
  set(script ${CMAKE_CURRENT_BINARY_DIR}/${program}.manifest.rc)
  file(CONFIGURE OUTPUT ${script} CONTENT "1 24 \"${manifest}\"\n")
  set_source_files_properties(${script} PROPERTIES OBJECT_DEPENDS ${manifest})
  target_sources(${program} PRIVATE ${script})
endfunction()
