#include "Platform/simulated/MachineFile.h"

#include <QDir>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QJsonParseError>
#include <QSet>
#include <algorithm>
#include <limits>
#include <utility>

#include "DiskArbitrator/daStatus.h"

using namespace Qt::StringLiterals;

// `Q_INIT_RESOURCE` must be used outside of every namespace.
static void haveMachines() {
  Q_INIT_RESOURCE(machines);
}

namespace {

constexpr int kLargestUnit = 99999;
constexpr int kLargestDelay = 3'600'000;
constexpr int kLargestCount = 1 << 30;
constexpr qint64 kLargestFile = 16 * 1024 * 1024;

/// One JSON object, its place in the file, and which of its keys were read. Throws
/// MachineFileError.
class Reader {
 public:
  Reader(const QJsonValue &value, QString place) : _place(std::move(place)) {
    if (!value.isObject()) throw MachineFileError{_place, u"an object in braces is needed"_s};
    _object = value.toObject();
  }

  QString text(const QString &key, const QString &absent = {}) {
    const QJsonValue value = take(key);
    if (value.isUndefined()) return absent;
    if (!value.isString()) fail(key, u"a text in quotes is needed"_s);
    return value.toString();
  }

  QString uuid(const QString &key) {
    const QString text = this->text(key);
    if (!text.isEmpty() && !DiskUUID::fromText(text)) fail(key, u"a UUID is needed"_s);
    return text;
  }

  bool flag(const QString &key, bool absent) {
    const QJsonValue value = take(key);
    if (value.isUndefined()) return absent;
    if (!value.isBool()) fail(key, u"true or false is needed"_s);
    return value.toBool();
  }

  int number(const QString &key, int smallest, int largest, std::optional<int> absent = {}) {
    const QJsonValue value = take(key);
    if (value.isUndefined() && absent.has_value()) return *absent;
    const int number = value.toInt(smallest - 1);
    if (number < smallest || number > largest) {
      fail(key, u"a whole number from %1 to %2 is needed"_s.arg(smallest).arg(largest));
    }
    return number;
  }

  std::optional<quint32> count(const QString &key) {
    const int count = number(key, 0, kLargestCount, -1);
    return count < 0 ? std::nullopt : std::optional(static_cast<quint32>(count));
  }

  std::optional<Reader> object(const QString &key) {
    const QJsonValue value = take(key);
    if (value.isUndefined()) return std::nullopt;
    return Reader(value, placeOf(key));
  }

  QStringList texts(const QString &key) {
    const QJsonValue value = take(key);
    QStringList texts;
    for (const auto &text : value.toArray()) {
      if (text.isString()) texts += text.toString();
    }
    if (!value.isUndefined() && (!value.isArray() || texts.size() != value.toArray().size())) {
      fail(key, u"a list of texts in quotes is needed"_s);
    }
    return texts;
  }

  std::optional<DissenterStatus> status(const QString &key) {
    const QJsonValue value = take(key);
    if (value.isUndefined()) return std::nullopt;
    const qint64 number = value.toInteger(-1);
    if (number > 0 && number <= std::numeric_limits<DissenterStatus>::max()) {
      return static_cast<DissenterStatus>(number);
    }
    for (DissenterStatus status = kDAReturnError; status <= kDAReturnUnsupported; ++status) {
      if (value.toString() == QLatin1StringView(daStatus(status))) return status;
    }
    fail(key, u"a status phrase such as \"busy\", or a number, is needed"_s);
  }

  template <typename Read>
  void forEach(const QString &key, Read read) {
    const QJsonValue value = take(key);
    if (value.isUndefined()) return;
    if (!value.isArray()) fail(key, u"a list in brackets is needed"_s);
    const QJsonArray array = value.toArray();
    for (qsizetype index = 0; index < array.size(); ++index) {
      Reader each(array[index], u"%1[%2]"_s.arg(placeOf(key)).arg(index));
      read(each);
      each.expectNothingElse();
    }
  }

  void expectNothingElse() const {
    for (const QString &key : _object.keys()) {
      if (!_known.contains(key)) fail(key, u"nothing by this name is known here"_s);
    }
  }

  [[noreturn]] void fail(const QString &key, const QString &reason) const {
    throw MachineFileError{placeOf(key), reason};
  }

 private:
  QJsonValue take(const QString &key) {
    _known.insert(key);
    return _object.value(key);
  }

  QString placeOf(const QString &key) const { return _place.isEmpty() ? key : _place + u'.' + key; }

  QString _place;
  QJsonObject _object;
  QSet<QString> _known;
};

void readVolume(Reader &reader, SimulatedPartition &partition) {
  partition.volumeKind = reader.text(u"kind"_s);
  partition.volumeName = reader.text(u"name"_s);
  partition.volumeUUID = reader.text(u"uuid"_s);
  partition.usedBy = reader.texts(u"usedBy"_s);
  partition.volumeSubtype = reader.count(u"subtype"_s);
  const QString mountPoint = reader.text(u"mountPoint"_s);
  if (mountPoint.contains(u'/') && !mountPoint.startsWith(u'/')) {
    reader.fail(u"mountPoint"_s, u"an absolute path or a name without \"/\" is needed"_s);
  }
  if (!mountPoint.isEmpty()) partition.mountPoint = mountPoint;
  reader.expectNothingElse();
}

std::optional<Mishap> readMishap(Reader &reader) {
  using enum Mishap;
  const QString mishap = reader.text(u"mishap"_s);
  if (mishap.isEmpty()) return std::nullopt;
  if (mishap == "disk vanishes before"_L1) return DiskVanishesBefore;
  if (mishap == "disk vanishes during"_L1) return DiskVanishesDuring;
  if (mishap == "disk vanishes after"_L1) return DiskVanishesAfter;
  if (mishap == "service dies"_L1) return ServiceDies;
  reader.fail(
      u"mishap"_s,
      u"\"disk vanishes before\", \"... during\", \"... after\" or \"service dies\" is needed"_s);
}

SimulatedPartition readPartition(Reader &reader) {
  SimulatedPartition partition;
  partition.slice = reader.number(u"slice"_s, 1, kLargestUnit);
  partition.media = reader.text(u"media"_s);
  partition.content = reader.text(u"content"_s);
  partition.uuid = reader.uuid(u"uuid"_s);
  partition.deviceNode = reader.text(u"device"_s);
  partition.delay = std::chrono::milliseconds(reader.number(u"delay"_s, 0, kLargestDelay, 0));
  partition.mishap = readMishap(reader);
  if (auto volume = reader.object(u"volume"_s)) readVolume(*volume, partition);
  if (auto refuse = reader.object(u"refuse"_s)) {
    partition.mountRefusal = refuse->status(u"mount"_s);
    partition.unmountRefusal = refuse->status(u"unmount"_s);
    refuse->expectNothingElse();
  }
  return partition;
}

SimulatedDisk readDisk(Reader &reader) {
  SimulatedDisk disk;
  disk.unit = reader.number(u"unit"_s, 0, kLargestUnit);
  disk.media = reader.text(u"media"_s);
  disk.scheme = reader.text(u"scheme"_s);
  disk.uuid = reader.uuid(u"uuid"_s);
  disk.protocol = reader.text(u"protocol"_s);
  disk.deviceNode = reader.text(u"device"_s);
  disk.isWritable = reader.flag(u"writable"_s, true);
  disk.isEjectable = reader.flag(u"ejectable"_s, false);
  disk.isInternal = reader.flag(u"internal"_s, false);
  disk.physicalBlockSize = reader.count(u"physicalBlockSize"_s);
  disk.logicalBlockSize = reader.count(u"logicalBlockSize"_s);
  if (auto icon = reader.object(u"icon"_s)) {
    disk.icon = {{kMediaIconBundleKey, icon->text(u"bundle"_s)},
                 {kMediaIconFileKey, icon->text(u"file"_s)}};
    icon->expectNothingElse();
  }
  QSet<int> slices;
  reader.forEach(u"partitions"_s, [&](Reader &each) {
    disk.partitions.append(readPartition(each));
    const int slice = disk.partitions.last().slice;
    if (slices.contains(slice))
      each.fail(u"slice"_s, u"the disk has a slice %1 already"_s.arg(slice));
    slices.insert(slice);
  });
  return disk;
}

DiskService::Presence readPresence(Reader &reader) {
  using enum DiskService::Presence;
  const QString presence = reader.text(u"service"_s, u"answering"_s);
  if (presence == "answering"_L1) return Answering;
  if (presence == "asking"_L1) return Asking;
  if (presence == "absent"_L1) return Absent;
  reader.fail(u"service"_s, u"\"answering\", \"asking\" or \"absent\" is needed"_s);
}

Machine readMachine(const QJsonValue &root) {
  Machine machine;
  Reader reader(root, QString());
  machine.productVersion = reader.text(u"productVersion"_s, machine.productVersion);
  machine.isPrivileged = reader.flag(u"root"_s, machine.isPrivileged);
  machine.presence = readPresence(reader);
  if (machine.presence == DiskService::Presence::Asking) {
    const int after = reader.number(u"answersAfter"_s, 0, kLargestDelay, -1);
    if (after >= 0) machine.answersAfter = std::chrono::milliseconds(after);
  }
  QSet<int> units;
  reader.forEach(u"disks"_s, [&](Reader &each) {
    machine.disks.append(readDisk(each));
    const int unit = machine.disks.last().unit;
    if (units.contains(unit)) each.fail(u"unit"_s, u"the machine has a disk%1 already"_s.arg(unit));
    units.insert(unit);
  });
  reader.expectNothingElse();
  return machine;
}

/// The parser's offset is one past the character that it could not use.
QString lineAndColumn(const QByteArray &json, qsizetype offset) {
  const qsizetype before = qBound(qsizetype{0}, offset - 1, json.size());
  const QByteArrayView text = QByteArrayView(json).first(before);
  const qsizetype line = std::count(text.begin(), text.end(), '\n') + 1;
  const qsizetype column = text.size() - text.lastIndexOf('\n');
  return u"line %1, column %2"_s.arg(line).arg(column);
}

}  // namespace

std::variant<Machine, MachineFileError> readMachineFile(const QByteArray &json) {
  QJsonParseError error;
  const QJsonDocument document = QJsonDocument::fromJson(json, &error);
  if (error.error != QJsonParseError::NoError) {
    return MachineFileError{lineAndColumn(json, error.offset), error.errorString()};
  }
  try {
    const QJsonValue root = document.isObject() ? QJsonValue(document.object()) : QJsonValue();
    return readMachine(root);
  } catch (const MachineFileError &problem) {
    if (problem.place.isEmpty()) return MachineFileError{u"line 1, column 1"_s, problem.reason};
    return problem;
  }
}

std::variant<Machine, MachineFileError> loadMachineFile(const QString &name) {
  const QString fileName =
      shippedMachines().contains(name) ? u":/machines/"_s + name + u".json"_s : name;
  QFile file(fileName);
  if (!file.open(QIODevice::ReadOnly)) return MachineFileError{fileName, file.errorString()};
  const QByteArray json = file.read(kLargestFile + 1);
  if (json.size() > kLargestFile) return MachineFileError{fileName, u"the file is too large"_s};
  auto machine = readMachineFile(json);
  if (auto *error = std::get_if<MachineFileError>(&machine)) {
    error->place = fileName + ": "_L1 + error->place;
  }
  return machine;
}

QStringList shippedMachines() {
  haveMachines();
  QStringList names;
  for (const QFileInfo &file : QDir(u":/machines"_s).entryInfoList()) names << file.baseName();
  return names;
}
