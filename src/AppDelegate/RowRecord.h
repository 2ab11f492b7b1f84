#pragma once

#include <QImage>
#include <QString>

/// One entry of the partition list: what was true of one partition when the list was built. It is
/// never changed afterwards; the next refresh makes another.
struct RowRecord {
  QImage img;
  QString parentOf;       // the BSD name of the whole disk
  QString parentOfMedia;  // one line that names everything on that disk
  bool isMounted = false;
  QString mountPoint;  // "(null)" while it is not mounted
  QString ESP;         // the BSD name of the partition, whether it is an ESP or not

  // What the buttons of its row say, and with it do.
  QString mountTitle() const {
    return (isMounted ? QStringLiteral("umount ") : QStringLiteral("mount ")) + ESP;
  }
  QString openTitle() const { return QStringLiteral("open ") + mountPoint; }
  bool canBeMountedOrUmounted() const { return mountPoint != QLatin1String("/"); }
};
