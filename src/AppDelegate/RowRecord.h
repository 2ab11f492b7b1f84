#pragma once

#include <QImage>
#include <QString>

/// One entry of the partition list: the state of one partition when the list was built. It never
/// changes; the next refresh makes new records.
struct RowRecord {
  QImage img;
  QString parentOf;       // the BSD name of the whole disk
  QString parentOfMedia;  // one line that names everything on that disk
  bool isMounted = false;
  QString mountPoint;  // "(null)" while it is not mounted
  QString ESP;         // the BSD name of the partition, whether it is an ESP or not

  // The buttons' titles, which also decide what a click does.
  QString mountTitle() const {
    return (isMounted ? QStringLiteral("umount ") : QStringLiteral("mount ")) + ESP;
  }
  QString openTitle() const { return QStringLiteral("open ") + mountPoint; }
  bool canBeMountedOrUmounted() const { return mountPoint != QLatin1String("/"); }
};
