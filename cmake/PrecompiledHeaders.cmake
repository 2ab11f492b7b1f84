# The headers of libraries, most of the time that a source takes, are compiled ahead once for all targets that share
# their rules. Sources go on including what they use: tools/tidy compiles each by itself.
option(KELDRA_PRECOMPILED_HEADERS "Compile the headers of libraries ahead" ON)

set(KELDRA_LIBRARY_HEADERS
  <algorithm> <chrono> <functional> <memory> <optional> <utility> <vector>
  <QtCore/QCoreApplication> <QtCore/QDir> <QtCore/QFile> <QtCore/QFileInfo> <QtCore/QHash> <QtCore/QJsonObject>
  <QtCore/QPointer> <QtCore/QSet> <QtCore/QStandardPaths> <QtCore/QString> <QtCore/QStringList> <QtCore/QTimer>
  <QtCore/QUrl> <QtCore/QVariantMap>
  <QtGui/QAccessible> <QtGui/QIcon> <QtGui/QImage> <QtGui/QKeyEvent> <QtGui/QPainter>
  <QtWidgets/QApplication> <QtWidgets/QMenu> <QtWidgets/QPushButton> <QtWidgets/QVBoxLayout>)

# What Qt's libraries define when they are linked; whoever shares headers must have the same defined.
set(KELDRA_LIBRARY_MACROS QT_CORE_LIB QT_GUI_LIB QT_WIDGETS_LIB)

# precompile_headers(NAME RULES HEADERS...): a target that holds those headers, compiled under the rules of `RULES`.
function(precompile_headers name rules)
  if(NOT KELDRA_PRECOMPILED_HEADERS)
    return()
  endif()
  set(source ${CMAKE_BINARY_DIR}/${name}.cpp)
  if(NOT EXISTS ${source})
    file(WRITE ${source} "")
  endif()
  add_library(${name} STATIC ${source})
  target_link_libraries(${name} PRIVATE ${rules} Qt6::Widgets)
  target_precompile_headers(${name} PRIVATE ${ARGN})
  set_target_properties(${name} PROPERTIES AUTOMOC OFF)
endfunction()

# use_precompiled_headers(NAME FOLDER): by all programs and libraries of the folder and those below it that do not use
# any yet.
function(use_precompiled_headers name folder)
  if(NOT TARGET ${name})
    return()
  endif()
  get_property(targets DIRECTORY ${folder} PROPERTY BUILDSYSTEM_TARGETS)
  foreach(target ${targets})
    get_target_property(type ${target} TYPE)
    get_target_property(used ${target} PRECOMPILE_HEADERS_REUSE_FROM)
    if(type MATCHES "STATIC_LIBRARY|EXECUTABLE" AND NOT used AND NOT target STREQUAL name)
      target_compile_definitions(${target} PRIVATE ${KELDRA_LIBRARY_MACROS})
      target_precompile_headers(${target} REUSE_FROM ${name})
    endif()
  endforeach()
  get_property(folders DIRECTORY ${folder} PROPERTY SUBDIRECTORIES)
  foreach(below ${folders})
    use_precompiled_headers(${name} ${below})
  endforeach()
endfunction()
