#pragma once

// Which disk is disk0, which disk1 and so on.
//
// A disk keeps its number until the machine restarts, in every program of the session and whatever
// the order of announcements. Where the numbers cannot be shared, this program uses its own.

#include "Platform/linux/BlockDevices.h"
#include "Platform/linux/UnitFile.h"

class UnitNumbers {
 public:
  UnitNumbers(BlockDevices devices, UnitFile file);

  /// The numbers of these disks, in the same order. May write the file, and block for a short time
  /// while another program writes it.
  QList<int> unitsOf(const QList<WholeDisk> &disks);

 private:
  struct Candidate {
    WholeDisk disk;
    QString identity;
  };

  void number(QList<Candidate> candidates);
  void numberOnwards(const QList<Candidate> &candidates);
  void keepOnly(const QList<Candidate> &candidates);
  void adopt(const Units &shared);

  BlockDevices _devices;
  UnitFile _file;
  Units _units;
};
