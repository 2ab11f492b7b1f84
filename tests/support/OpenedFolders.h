#pragma once

#include <QDesktopServices>
#include <QObject>
#include <QStringList>
#include <QUrl>

/// Takes the place of the desktop's file manager while it lives.
class OpenedFolders : public QObject {
  Q_OBJECT

 public:
  OpenedFolders() { QDesktopServices::setUrlHandler("file", this, "open"); }
  ~OpenedFolders() override { QDesktopServices::unsetUrlHandler("file"); }
  Q_INVOKABLE void open(const QUrl &url) { paths += url.toLocalFile(); }

  QStringList paths;
};
