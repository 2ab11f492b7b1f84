#include "Platform/linux/XdgLoginItems.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QHash>
#include <QSaveFile>
#include <QStandardPaths>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

constexpr qint64 kLargestEntry = 64 * 1024;

/// The keys of the "Desktop Entry" group, without translations.
QHash<QString, QString> readEntry(const QString &fileName) {
  QHash<QString, QString> keys;
  QFile file(fileName);
  if (!QFileInfo(fileName).isFile() || !file.open(QIODevice::ReadOnly)) return keys;
  bool isInGroup = false;
  const QStringList lines = QString::fromUtf8(file.read(kLargestEntry)).split(u'\n');
  for (const QString &each : lines) {
    const QString line = each.trimmed();
    if (line.startsWith(u'[')) isInGroup = line == "[Desktop Entry]"_L1;
    const qsizetype equals = line.indexOf(u'=');
    if (!isInGroup || line.startsWith(u'#') || equals < 0) continue;
    keys.insert(line.first(equals).trimmed(), line.sliced(equals + 1).trimmed());
  }
  return keys;
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

bool isSwitchedOff(const QHash<QString, QString> &keys) {
  return keys.value(u"Hidden"_s) == "true"_L1 ||
         keys.value(u"X-GNOME-Autostart-enabled"_s) == "false"_L1;
}

std::optional<QString> programOf(const QHash<QString, QString> &keys) {
  const QString word = firstWord(keys.value(u"Exec"_s)).replace("%%"_L1, "%"_L1);
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

std::optional<QVector<LoginItems::Item>> XdgLoginItems::snapshot() const {
  const QDir folder(_folder);
  QVector<Item> items;
  for (const QString &name :
       folder.entryList({u"*.desktop"_s}, QDir::Files | QDir::Readable, QDir::Name)) {
    const auto keys = readEntry(folder.filePath(name));
    items.append({name, isSwitchedOff(keys) ? std::nullopt : programOf(keys)});
  }
  return items;
}

// An entry of that name may be somebody else's, or one of ours for a program that has moved since.
// One that starts this program may be switched off, and is written anew.
QString XdgLoginItems::fileNameForOwnItem() const {
  const QDir folder(_folder);
  QString name = folder.filePath(u"keldra.desktop"_s);
  for (int number = 1; QFile::exists(name) && programOf(readEntry(name)) != _program; ++number) {
    name = folder.filePath(u"keldra-%1.desktop"_s.arg(number));
  }
  return name;
}

void XdgLoginItems::insertOwnItem() {
  const QDir folder(_folder);
  const bool fitsInALine = !_program.contains(u'\n') && !_program.contains(u'\r');
  if (_program.isEmpty() || !fitsInALine || !folder.mkpath(u"."_s)) return;
  QSaveFile file(fileNameForOwnItem());
  if (!file.open(QIODevice::WriteOnly)) return;
  const QString entry =
      u"[Desktop Entry]\nType=Application\nName=Keldra\n"
      u"Comment=EFI System Partitions one click away\nExec=%1\nTryExec=%2\n"
      u"Icon=com.brinmoor.Keldra\nX-GNOME-Autostart-enabled=true\n"_s.arg(quotedForExec(_program),
                                                                          escaped(_program));
  file.write(entry.toUtf8());
  file.commit();
}

void XdgLoginItems::remove(const Item &item) {
  QFile::remove(QDir(_folder).filePath(item.identifier));
}
