#include "Platform/linux/XdgLoginItems.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QStandardPaths>
#include <utility>

#include "Foundation/PlainFile.h"
#include "Platform/common/KeyFile.h"

using namespace Qt::StringLiterals;

namespace {

constexpr qint64 kLargestEntry = 64 * 1024;
const QByteArray kGroup = "Desktop Entry";
const QByteArray kHidden = "Hidden";
const QByteArray kEnabled = "X-GNOME-Autostart-enabled";

/// Without lines for what is no plain file of a sensible size.
KeyFile readEntry(const QString &fileName) {
  const auto content = readPlainFile(QFile::encodeName(fileName), kLargestEntry);
  const auto *bytes = std::get_if<QByteArray>(&content);
  return KeyFile(bytes == nullptr ? QByteArray() : *bytes);
}

/// The program that an "Exec" line starts: its first word, which may stand in double quotes.
QString firstWord(QString exec) {
  exec.replace("\\\\"_L1, "\\"_L1);  // as `escaped` left it
  if (!exec.startsWith(u'"')) return exec.section(u' ', 0, 0);
  QString word;
  for (qsizetype index = 1; index < exec.size() && exec[index] != u'"'; ++index) {
    if (exec[index] == u'\\' && index + 1 < exec.size()) ++index;
    word += exec[index];
  }
  return word;
}

/// The escape of every value in such a file.
QString escaped(QString value) {
  return value.replace(u'\\', "\\\\"_L1);
}

/// `firstWord` the other way round. A "%" stands for itself only when it is doubled.
QString quotedForExec(QString program) {
  for (const char character : {'\\', '"', '`', '$'}) {
    program.replace(QLatin1Char(character), QString(u'\\') + QLatin1Char(character));
  }
  return u'"' + escaped(program.replace(u'%', "%%"_L1)) + u'"';
}

bool isSwitchedOff(const KeyFile &entry) {
  return entry.value(kGroup, kHidden) == "true" || entry.value(kGroup, kEnabled) == "false";
}

/// Also of an entry that is switched off.
std::optional<QString> programOf(const KeyFile &entry) {
  const QString exec = QString::fromUtf8(entry.value(kGroup, "Exec").value_or(QByteArray()));
  const QString word = firstWord(exec).replace("%%"_L1, "%"_L1);
  const QString program = word.startsWith(u'/') ? word : QStandardPaths::findExecutable(word);
  const QString canonical = word.isEmpty() ? QString() : QFileInfo(program).canonicalFilePath();
  if (canonical.isEmpty()) return std::nullopt;
  return canonical;
}

}  // namespace

XdgLoginItems::XdgLoginItems(QString folder, QString program)
    : _folder(std::move(folder)), _program(QFileInfo(program).canonicalFilePath()) {}

XdgLoginItems XdgLoginItems::ofThisUser() {
  const QString configuration =
      QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation);
  return {configuration + "/autostart"_L1, QCoreApplication::applicationFilePath()};
}

QString XdgLoginItems::ownLocation() const {
  return _program;
}

QStringList XdgLoginItems::entryNames() const {
  return QDir(_folder).entryList({u"*.desktop"_s}, QDir::Files | QDir::Readable, QDir::Name);
}

std::optional<QVector<LoginItems::Item>> XdgLoginItems::snapshot() const {
  QVector<Item> items;
  for (const QString &name : entryNames()) {
    const bool isDone = _leftAlone.contains(name);
    items.append(
        {name, isDone ? std::nullopt : programOf(readEntry(QDir(_folder).filePath(name)))});
  }
  return items;
}

bool XdgLoginItems::switchOn(const QString &name) {
  KeyFile entry = readEntry(QDir(_folder).filePath(name));
  if (!isSwitchedOff(entry) || programOf(entry) != _program) return false;
  entry.remove(kGroup, kHidden);
  entry.remove(kGroup, kEnabled);
  if (!PlainFileWriter(QDir(_folder).filePath(name)).write(entry.bytes())) _leftAlone.remove(name);
  return true;
}

void XdgLoginItems::insertOwnItem() {
  const bool fitsInALine = !_program.contains(u'\n') && !_program.contains(u'\r');
  if (_program.isEmpty() || !fitsInALine) return;
  for (const QString &name : entryNames()) {
    if (switchOn(name)) return;
  }
  const QDir folder(_folder);
  QString name = folder.filePath(u"keldra.desktop"_s);
  for (int number = 1; QFile::exists(name); ++number) {
    name = folder.filePath(u"keldra-%1.desktop"_s.arg(number));
  }
  const QString entry =
      u"[Desktop Entry]\nType=Application\nName=Keldra\n"
      u"Comment=EFI System Partitions one click away\nExec=%1\nTryExec=%2\n"
      u"Icon=com.brinmoor.Keldra\nX-GNOME-Autostart-enabled=true\n"_s.arg(quotedForExec(_program),
                                                                          escaped(_program));
  PlainFileWriter(name).write(entry.toUtf8());
}

void XdgLoginItems::remove(const Item &item) {
  const QString name = QDir(_folder).filePath(item.identifier);
  if (isSwitchedOff(readEntry(name))) {
    _leftAlone.insert(item.identifier);
  } else {
    QFile::remove(name);
  }
}
