# A bundle that can be handed on, of the one that was built: with Qt and the other libraries inside, signed ad hoc, in an
# archive. Run with BUNDLE, MACDEPLOYQT and ARCHIVE.
cmake_minimum_required(VERSION 3.22)

function(run)
  execute_process(COMMAND ${ARGN} COMMAND_ERROR_IS_FATAL ANY)
endfunction()

cmake_path(GET ARCHIVE PARENT_PATH folder)
cmake_path(GET BUNDLE FILENAME name)
set(bundle ${folder}/${name})
file(REMOVE_RECURSE ${folder})
file(COPY ${BUNDLE} DESTINATION ${folder})
run(${MACDEPLOYQT} ${bundle} -always-overwrite)

# A library says for which system it was built, and the bundle runs on none that is older.
set(info ${bundle}/Contents/Info.plist)
execute_process(COMMAND plutil -extract LSMinimumSystemVersion raw ${info}
  OUTPUT_VARIABLE oldest OUTPUT_STRIP_TRAILING_WHITESPACE COMMAND_ERROR_IS_FATAL ANY)
file(GLOB_RECURSE files LIST_DIRECTORIES false ${bundle}/Contents/Frameworks/* ${bundle}/Contents/PlugIns/*)
foreach(file ${files})
  execute_process(COMMAND otool -l ${file} OUTPUT_VARIABLE commands ERROR_QUIET)
  string(REGEX MATCHALL "minos [0-9.]+" systems "${commands}")
  foreach(system ${systems})
    string(REPLACE "minos " "" system ${system})
    if(system VERSION_GREATER oldest)
      set(oldest ${system})
    endif()
  endforeach()
endforeach()
run(plutil -replace LSMinimumSystemVersion -string ${oldest} ${info})

run(codesign --force --deep --sign - ${bundle})
run(codesign --verify --deep --strict ${bundle})
run(ditto -c -k --keepParent ${bundle} ${ARCHIVE})
message(STATUS "${ARCHIVE}, for macOS ${oldest} and later")
