#pragma once

// The disk laboratory that the tests run in: real disks out of files, and the disk service to be
// taken away. Everything here blocks without serving the event loop.

#include <QStringList>

namespace DiskLab {

/// Whether the tests run in one.
bool isHere();

/// Runs a program and fails the test, with what it said, unless it succeeds. Gives its standard
/// output.
QByteArray run(const QString &program, const QStringList &arguments, const QByteArray &input = {});

/// Makes a disk with this table (a script for sfdisk, or none). Gives its device, "/dev/loop3".
QString createDisk(const QString &name, int megabytes, const QByteArray &table = {});
/// As a hand would take it away, mounted or not.
void pull(const QString &disk);

/// A file of the laboratory's, such as "sda.img" behind the disk of that name.
QString file(const QString &name);

}  // namespace DiskLab
