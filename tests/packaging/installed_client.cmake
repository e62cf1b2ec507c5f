# Installs the build into a directory of its own and starts what lies there.
function(must_run)
  execute_process(COMMAND ${ARGV} RESULT_VARIABLE result OUTPUT_VARIABLE output ERROR_VARIABLE output)
  if(NOT result EQUAL 0)
    message(FATAL_ERROR "${ARGV} ended with ${result}:\n${output}")
  endif()
endfunction()

file(REMOVE_RECURSE ${PREFIX})
must_run(${CMAKE_COMMAND} --install ${BUILD_DIR} --prefix ${PREFIX})
must_run(${PREFIX}/bin/qarn-client --self-test --store ${PREFIX}/new.db)
must_run(${PREFIX}/bin/face-device-sim --help)

set(id org.qarn.PersonRegister)
foreach(file share/applications/${id}.desktop share/metainfo/${id}.metainfo.xml
             share/icons/hicolor/scalable/apps/${id}.svg)
  if(NOT EXISTS ${PREFIX}/${file})
    message(FATAL_ERROR "${file} is not installed")
  endif()
endforeach()
must_run(desktop-file-validate ${PREFIX}/share/applications/${id}.desktop)
must_run(appstreamcli validate --no-net ${PREFIX}/share/metainfo/${id}.metainfo.xml)
