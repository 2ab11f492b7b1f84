# Most of the time that a source takes goes into the headers of Qt and the standard library. A target of many sources
# compiles them ahead, for itself alone and under its own rules. Sources go on including what they use: tools/tidy reads
# each without them.
option(KELDRA_PRECOMPILED_HEADERS "Compile the headers of libraries ahead" ON)

set(KELDRA_CORE_HEADERS
  <algorithm> <functional> <memory> <optional> <utility> <vector>
  <QDir> <QFileInfo> <QHash> <QJsonObject> <QPointer> <QSet> <QString> <QStringList> <QTimer> <QUrl> <QVariantMap>
  <QImage>)
set(KELDRA_WIDGET_HEADERS <QAccessible> <QApplication> <QIcon> <QKeyEvent> <QMenu> <QPainter> <QPushButton> <QVBoxLayout>)

# precompile_headers(TARGET core|widgets [HEADERS...]): with core, for what uses no widgets.
function(precompile_headers target kind)
  set(core ${KELDRA_CORE_HEADERS})
  set(widgets ${KELDRA_CORE_HEADERS} ${KELDRA_WIDGET_HEADERS})
  if(KELDRA_PRECOMPILED_HEADERS)
    target_precompile_headers(${target} PRIVATE ${${kind}} ${ARGN})
  endif()
endfunction()
