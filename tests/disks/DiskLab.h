#pragma once

// The disk laboratory that the tests run in: real disks made of files, and the disk service, which
// can be removed. Everything here blocks without serving the event loop.

#include <QStringList>

namespace DiskLab {

/// Whether the tests run in a disk laboratory.
bool isHere();

/// Runs a program. If it does not succeed, fails the test with the program's error output. Returns
/// its standard output.
QByteArray run(const QString &program, const QStringList &arguments, const QByteArray &input = {});

/// Makes a disk with this table (a script for sfdisk, or none). Returns its device, "/dev/loop3".
QString createDisk(const QString &name, int megabytes, const QByteArray &table = {});
/// Removes the disk without an unmount.
void pull(const QString &disk);

/// The path of a file of the laboratory, such as "sda.img" for the disk of that name.
QString file(const QString &name);

}  // namespace DiskLab
