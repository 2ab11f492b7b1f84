#pragma once

#include <QDesktopServices>
#include <QObject>
#include <QStringList>
#include <QUrl>

/// Replaces the desktop's file manager while this object exists.
class OpenedFolders : public QObject {
  Q_OBJECT

 public:
  OpenedFolders() { QDesktopServices::setUrlHandler("file", this, "open"); }
  ~OpenedFolders() override { QDesktopServices::unsetUrlHandler("file"); }
  Q_INVOKABLE void open(const QUrl &url) { paths += url.toLocalFile(); }

  QStringList paths;
};
