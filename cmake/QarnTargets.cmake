# Functions that every folder uses to declare its targets, so that warnings, include roots and borders
# are the same everywhere.

set(QARN_SOURCE_DIR ${PROJECT_SOURCE_DIR})
set(QARN_BINARY_DIR ${PROJECT_BINARY_DIR})

add_library(qarn_compile_options INTERFACE)
target_compile_options(qarn_compile_options INTERFACE -Wall -Wextra -Wpedantic -Wconversion
                                                      $<$<BOOL:${QARN_WARNINGS_AS_ERRORS}>:-Werror>)
if(QARN_SANITIZE)
  target_compile_options(qarn_compile_options INTERFACE -fsanitize=address,undefined -fno-omit-frame-pointer
                                                        -fno-sanitize-recover=undefined)
  target_link_options(qarn_compile_options INTERFACE -fsanitize=address,undefined)
elseif(QARN_SANITIZE_THREAD)
  target_compile_options(qarn_compile_options INTERFACE -fsanitize=thread -fno-omit-frame-pointer)
  target_link_options(qarn_compile_options INTERFACE -fsanitize=thread)
endif()

# Two precompiled headers: one for code that must not see a widget, one for the rest.
foreach(kind core widgets)
  add_library(qarn_pch_${kind} OBJECT ${QARN_SOURCE_DIR}/cmake/pch/${kind}.cpp)
  set_target_properties(qarn_pch_${kind} PROPERTIES AUTOMOC OFF AUTOUIC OFF AUTORCC OFF)
  target_precompile_headers(qarn_pch_${kind} PRIVATE ${QARN_SOURCE_DIR}/cmake/pch/${kind}.h)
  target_link_libraries(qarn_pch_${kind} PRIVATE qarn_compile_options)
endforeach()
target_link_libraries(qarn_pch_core PRIVATE Qt5::Core)
target_link_libraries(qarn_pch_widgets PRIVATE Qt5::Widgets)

# qarn_use_pch(<target> core|widgets)
function(qarn_use_pch target kind)
  if(NOT QARN_NO_PCH)
    target_precompile_headers(${target} REUSE_FROM qarn_pch_${kind})
  endif()
endfunction()

# qarn_add_contract(<library> HEADERS <names...>)
# Gives <library> its own include root: <build>/include/<library>/<library>/ leads to its contract headers,
# so that a target sees only the libraries that it links.
function(qarn_add_contract library)
  set(root ${QARN_BINARY_DIR}/include/${library})
  file(MAKE_DIRECTORY ${root})
  file(CREATE_LINK ${CMAKE_CURRENT_SOURCE_DIR}/${library} ${root}/${library} SYMBOLIC)
  add_library(${library}_contract INTERFACE)
  target_include_directories(${library}_contract INTERFACE ${root})
endfunction()

# qarn_add_library(<name> PCH core|widgets SOURCES ... LINK ... [PRIVATE_LINK ...])
# A host library: <name>_objects (what tests of internals link), <name> (shared) and <name>_host
# (adds the headers that the module must not see). Its contract headers are moc'ed here.
function(qarn_add_library name)
  cmake_parse_arguments(ARG "" "PCH" "SOURCES;LINK;PRIVATE_LINK" ${ARGN})
  file(GLOB contract_headers CONFIGURE_DEPENDS ${QARN_SOURCE_DIR}/personMgr/contracts/${name}/*.h)
  file(GLOB host_headers CONFIGURE_DEPENDS ${CMAKE_CURRENT_SOURCE_DIR}/public/${name}/*.h)
  add_library(${name}_objects OBJECT ${ARG_SOURCES} ${contract_headers} ${host_headers})
  target_link_libraries(${name}_objects PUBLIC ${name}_contract ${ARG_LINK} PRIVATE qarn_compile_options
                                                                                 ${ARG_PRIVATE_LINK})
  target_include_directories(${name}_objects PUBLIC ${CMAKE_CURRENT_SOURCE_DIR}/public)
  target_include_directories(${name}_objects PRIVATE ${CMAKE_CURRENT_SOURCE_DIR})
  set_target_properties(${name}_objects PROPERTIES POSITION_INDEPENDENT_CODE ON)
  qarn_use_pch(${name}_objects ${ARG_PCH})

  add_library(${name} SHARED $<TARGET_OBJECTS:${name}_objects>)
  set_target_properties(${name} PROPERTIES AUTOMOC OFF AUTOUIC OFF AUTORCC OFF LINKER_LANGUAGE CXX
                                           LIBRARY_OUTPUT_DIRECTORY ${QARN_BINARY_DIR}/lib
                                           INSTALL_RPATH "$ORIGIN")
  target_link_libraries(${name} PUBLIC ${name}_contract ${ARG_LINK} PRIVATE qarn_compile_options
                                                                         ${ARG_PRIVATE_LINK})
  if(NOT QARN_SANITIZE AND NOT QARN_SANITIZE_THREAD) # a sanitizer's runtime comes with the program
    target_link_options(${name} PRIVATE -Wl,--no-undefined)
  endif()
  install(TARGETS ${name} LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR}/qarn)

  add_library(${name}_host INTERFACE)
  target_include_directories(${name}_host INTERFACE ${CMAKE_CURRENT_SOURCE_DIR}/public)
  target_link_libraries(${name}_host INTERFACE ${name})
endfunction()

# qarn_add_test(<name> [PCH core|widgets] [SOURCES ...] LINK ... [LABELS ...] [TIMEOUT seconds])
# A QtTest program; <name>.cpp is its source unless SOURCES says otherwise. Runs without a display and in
# directories of its own.
function(qarn_add_test name)
  cmake_parse_arguments(ARG "" "PCH;TIMEOUT" "SOURCES;LINK;LABELS" ${ARGN})
  if(NOT ARG_SOURCES)
    set(ARG_SOURCES ${name}.cpp)
  endif()
  if(NOT ARG_PCH)
    set(ARG_PCH widgets)
  endif()
  if(NOT ARG_TIMEOUT)
    set(ARG_TIMEOUT 120)
  endif()
  add_executable(${name} ${ARG_SOURCES})
  target_link_libraries(${name} PRIVATE qarn_compile_options qarn_test_support Qt5::Test ${ARG_LINK})
  qarn_use_pch(${name} ${ARG_PCH})
  add_test(NAME ${name} COMMAND ${name})
  qarn_test_environment(${name} ${ARG_TIMEOUT} "${ARG_LABELS}")
endfunction()

# qarn_test_environment(<ctest name> <timeout> <labels>)
function(qarn_test_environment name timeout labels)
  set(home ${QARN_BINARY_DIR}/test-home/${name})
  file(MAKE_DIRECTORY ${home}/run)
  file(CHMOD ${home}/run PERMISSIONS OWNER_READ OWNER_WRITE OWNER_EXECUTE)
  if(QARN_SANITIZE)
    math(EXPR timeout "${timeout} * 3")
  endif()
  set_tests_properties(
    ${name}
    PROPERTIES
      TIMEOUT ${timeout}
      LABELS "${labels}"
      ENVIRONMENT
      "QT_QPA_PLATFORM=offscreen;HOME=${home};XDG_CONFIG_HOME=${home}/config;XDG_DATA_HOME=${home}/data;XDG_CACHE_HOME=${home}/cache;XDG_RUNTIME_DIR=${home}/run;XDG_DESKTOP_DIR=${home};TZ=Europe/Berlin;LANG=C.UTF-8;LC_ALL=C.UTF-8;QT_LOGGING_RULES=qt.qpa.*=false;LSAN_OPTIONS=suppressions=${QARN_SOURCE_DIR}/tests/lsan.supp:print_suppressions=0;ASAN_OPTIONS=fast_unwind_on_malloc=0;UBSAN_OPTIONS=print_stacktrace=1"
  )
endfunction()
