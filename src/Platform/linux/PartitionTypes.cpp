#include "Platform/linux/PartitionTypes.h"

#include <QHash>

using namespace Qt::StringLiterals;

namespace {

const QHash<QString, QString> &namesByGuid() {
  static const QHash<QString, QString> names{
      {u"0FC63DAF-8483-4772-8E79-3D69D8477DE4"_s, u"Linux filesystem"_s},
      {u"4F68BCE3-E8CD-4DB1-96E7-FBCAF984B709"_s, u"Linux root"_s},
      {u"B921B045-1DF0-41C3-AF44-4C6F280D3FAE"_s, u"Linux root"_s},
      {u"933AC7E1-2EB4-4F13-B844-0E14E2AEF915"_s, u"Linux home"_s},
      {u"BC13C2FF-59E6-4262-A352-B275FD6F7172"_s, u"Linux boot"_s},
      {u"0657FD6D-A4AB-43C4-84E5-0933C84B4F4F"_s, u"Linux swap"_s},
      {u"E6D6D379-F507-44C2-A23C-238F2A3DF928"_s, u"Linux LVM"_s},
      {u"A19D880F-05FC-4D3B-A006-743F0F84911E"_s, u"Linux RAID"_s},
      {u"CA7D7CCB-63ED-4C53-861C-1742536059CC"_s, u"Linux encrypted"_s},
      {u"21686148-6449-6E6F-744E-656564454649"_s, u"BIOS boot"_s},
      {u"EBD0A0A2-B9E5-4433-87C0-68B6B72699C7"_s, u"Microsoft basic data"_s},
      {u"E3C9E316-0B5C-4DB8-817D-F92DF00215AE"_s, u"Microsoft reserved"_s},
      {u"DE94BBA4-06D1-4D40-A16A-BFD50179D6AC"_s, u"Windows recovery environment"_s},
      {u"5808C8AA-7E8F-42E0-85D2-E1E90434CFB3"_s, u"Windows dynamic disk"_s},
      {u"AF9B60A0-1431-4F62-BC68-3311714A69AD"_s, u"Windows dynamic disk"_s},
      {u"48465300-0000-11AA-AA11-00306543ECAC"_s, u"HFS volume"_s},
      {u"7C3457EF-0000-11AA-AA11-00306543ECAC"_s, u"APFS container"_s},
  };
  return names;
}

const QHash<uint, QString> &namesByNumber() {
  static const QHash<uint, QString> names{
      {0x01, u"FAT"_s},
      {0x04, u"FAT"_s},
      {0x06, u"FAT"_s},
      {0x0b, u"FAT"_s},
      {0x0c, u"FAT"_s},
      {0x0e, u"FAT"_s},
      {0x05, u"Extended partition"_s},
      {0x0f, u"Extended partition"_s},
      {0x85, u"Extended partition"_s},
      {0x07, u"NTFS or exFAT"_s},
      {0x27, u"Windows recovery environment"_s},
      {0x82, u"Linux swap"_s},
      {0x83, u"Linux filesystem"_s},
      {0x8e, u"Linux LVM"_s},
      {0xaf, u"HFS volume"_s},
      {0xee, u"GPT protective"_s},
      {0xfd, u"Linux RAID"_s},
  };
  return names;
}

}  // namespace

bool isSystemPartitionType(const QString &type) {
  const QString guid = u"C12A7328-F81F-11D2-BA4B-00A0C93EC93B"_s;
  return type.compare(guid, Qt::CaseInsensitive) == 0 ||
         type.compare("0xef"_L1, Qt::CaseInsensitive) == 0;
}

QString partitionTypeName(const QString &type) {
  const QString plain = u"Partition"_s;
  if (type.startsWith("0x"_L1)) return namesByNumber().value(type.toUInt(nullptr, 16), plain);
  return namesByGuid().value(type.toUpper(), plain);
}
