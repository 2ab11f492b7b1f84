#include "Platform/linux/XdgLoginItems.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QStandardPaths>
#include <filesystem>
#include <system_error>
#include <utility>

#include "Foundation/PlainFile.h"
#include "Platform/common/KeyFile.h"

using namespace Qt::StringLiterals;

namespace {

constexpr qint64 kLargestEntry = 64 * 1024;
const QByteArray kGroup = "Desktop Entry";
const QByteArray kHidden = "Hidden";
const QByteArray kEnabled = "X-GNOME-Autostart-enabled";

/// Empty unless the file is a plain file of a sensible size.
KeyFile readKeyFile(const QString &fileName) {
  const auto content = readPlainFile(QFile::encodeName(fileName), kLargestEntry);
  const auto *bytes = std::get_if<QByteArray>(&content);
  return KeyFile(bytes == nullptr ? QByteArray() : *bytes);
}

/// The program that an "Exec" line starts: its first word, which may stand in double quotes.
QString firstWord(QString exec) {
  exec.replace("\\\\"_L1, "\\"_L1);  // the reverse of `escaped`
  if (!exec.startsWith(u'"')) return exec.section(u' ', 0, 0);
  QString word;
  for (qsizetype index = 1; index < exec.size() && exec[index] != u'"'; ++index) {
    if (exec[index] == u'\\' && index + 1 < exec.size()) ++index;
    word += exec[index];
  }
  return word;
}

/// The escape that all values in desktop entries need.
QString escaped(QString value) {
  return value.replace(u'\\', "\\\\"_L1);
}

/// The reverse of `firstWord`. A literal "%" is doubled.
QString quotedForExec(QString program) {
  for (const char character : {'\\', '"', '`', '$'}) {
    program.replace(QLatin1Char(character), QString(u'\\') + QLatin1Char(character));
  }
  return u'"' + escaped(program.replace(u'%', "%%"_L1)) + u'"';
}

bool isSwitchedOff(const KeyFile &entry) {
  return entry.value(kGroup, kHidden) == "true" || entry.value(kGroup, kEnabled) == "false";
}

/// A program that was killed while writing the entry may have left the ".new" file.
void clearLeftover(const QString &fileName) {
  if (QFile::exists(fileName + ".new"_L1)) PlainFileWriter{fileName};
}

}  // namespace

XdgLoginItems::XdgLoginItems(QString folder, const QString &program, Look look)
    : _folder(std::move(folder)),
      _program(QFileInfo(program).canonicalFilePath()),
      _look(std::move(look)) {}

LookAtPath XdgLoginItems::lookAtOnce(const QString &path) {
  return {LookAtPath::Access::Open, QFileInfo(path).canonicalFilePath()};
}

XdgLoginItems XdgLoginItems::ofThisUser(Look look) {
  const QString configuration =
      QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation);
  return {configuration + "/autostart"_L1, QCoreApplication::applicationFilePath(),
          std::move(look)};
}

QString XdgLoginItems::ownLocation() const {
  return _program;
}

// Not by QDir: it may follow a link, and the volume behind that may not answer.
QStringList XdgLoginItems::entryNames() const {
  QStringList names;
  std::error_code problem;
  std::error_code noStatus;
  std::filesystem::directory_iterator entry(QFile::encodeName(_folder).toStdString(), problem);
  for (; entry != std::filesystem::directory_iterator(); entry.increment(problem)) {
    const QString name = QFile::decodeName(entry->path().filename().c_str());
    const bool isFolder = std::filesystem::is_directory(entry->symlink_status(noStatus));
    if (name.endsWith(".desktop"_L1) && !isFolder) names << name;
  }
  names.sort();
  return names;
}

QString XdgLoginItems::realPath(const QString &path) const {
  const LookAtPath look = _look(path);
  if (look.access == LookAtPath::Access::Unknown) _isAnsweredLate = true;
  return look.realPath;
}

KeyFile XdgLoginItems::readEntry(const QString &name) const {
  const QString fileName = QDir(_folder).filePath(name);
  return readKeyFile(QFileInfo(fileName).isSymLink() ? realPath(fileName) : fileName);
}

std::optional<QString> XdgLoginItems::programOf(const KeyFile &entry) const {
  const QString exec = QString::fromUtf8(entry.value(kGroup, "Exec").value_or(QByteArray()));
  const QString word = firstWord(exec).replace("%%"_L1, "%"_L1);
  QString program = word.startsWith(u'/') ? word : QStandardPaths::findExecutable(word);
  if (!program.isEmpty() && program != _program) program = realPath(program);
  if (program.isEmpty()) return std::nullopt;
  return program;
}

std::optional<QVector<LoginItems::Item>> XdgLoginItems::snapshot() const {
  QVector<Item> items;
  for (const QString &name : entryNames()) {
    const QString fileName = QDir(_folder).filePath(name);
    const bool isDone = _leftAlone.contains(name);
    items.append({name, isDone ? std::nullopt : programOf(readEntry(name))});
    if (items.last().location == _program) clearLeftover(fileName);
  }
  return items;
}

bool XdgLoginItems::switchOn(const QString &name) {
  KeyFile entry = readEntry(name);
  if (programOf(entry) != _program || !isSwitchedOff(entry)) return false;
  entry.remove(kGroup, kHidden);
  entry.remove(kGroup, kEnabled);
  if (!PlainFileWriter(QDir(_folder).filePath(name)).write(entry.bytes())) _leftAlone.remove(name);
  return true;
}

void XdgLoginItems::insertOwnItem() {
  const bool fitsInALine = !_program.contains(u'\n') && !_program.contains(u'\r');
  if (_program.isEmpty() || !fitsInALine) return;
  const QStringList names = entryNames();
  _isAnsweredLate = false;
  for (const QString &name : names) {
    if (switchOn(name)) return;
  }
  if (_isAnsweredLate) return;  // no entry is better than a second one for this program
  QString name = u"keldra.desktop"_s;
  for (int number = 1; names.contains(name); ++number) name = u"keldra-%1.desktop"_s.arg(number);
  const QString entry =
      u"[Desktop Entry]\nType=Application\nName=Keldra\n"
      u"Comment=EFI System Partitions one click away\nExec=%1\nTryExec=%2\n"
      u"Icon=com.brinmoor.Keldra\nX-GNOME-Autostart-enabled=true\n"_s.arg(quotedForExec(_program),
                                                                          escaped(_program));
  PlainFileWriter(QDir(_folder).filePath(name)).write(entry.toUtf8());
}

void XdgLoginItems::remove(const Item &item) {
  if (isSwitchedOff(readEntry(item.identifier))) {
    _leftAlone.insert(item.identifier);
  } else {
    QFile::remove(QDir(_folder).filePath(item.identifier));
  }
}
