#include "Platform/linux/desktop/StatusPictures.h"

#include <QFile>
#include <QPainter>
#include <QPixmap>

#include "Foundation/PlainFile.h"

using namespace Qt::StringLiterals;

// A linker drops the registration of a static library's resources unless it is called.
static void registerIcons() {
  Q_INIT_RESOURCE(icons);
}

namespace {

// The sizes of usual panels, also at 125, 150 and 200 percent.
constexpr int kSizes[] = {16, 18, 20, 22, 24, 28, 30, 32, 36, 44, 48, 64};

const QColor kLight(0xf4, 0xf4, 0xf4);
const QColor kDark(0x24, 0x24, 0x26);

// All edges are aligned to pixels.
void paintDisk(QPainter &painter, int side) {
  const int line = qMax(1, qRound(side / 18.0));
  const int left = qRound(side / 16.0);
  const int top = qRound(side / 8.0);
  const QRect body(left, top, side - 2 * left, side - 2 * top);
  const qreal radius = side / 8.0;
  painter.setBrush(kDark);
  painter.drawRoundedRect(body, radius, radius);
  painter.setBrush(kLight);
  painter.drawRoundedRect(body.adjusted(line, line, -line, -line), radius - line, radius - line);
  const int unit = qMax(2, qRound(side / 8.0));
  const int middle = body.top() + qRound(body.height() * 0.55);
  painter.fillRect(body.left(), middle, body.width(), line, kDark);
  painter.fillRect(body.left() + unit + line, body.top() + unit + line, 2 * unit, unit, kDark);
  painter.fillRect(body.right() - 2 * unit,
                   middle + line + (body.bottom() - middle - line - unit) / 2, unit, unit, kDark);
}

QPixmap picture(int side) {
  QPixmap result(side, side);
  result.fill(Qt::transparent);
  QPainter painter(&result);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(Qt::NoPen);
  paintDisk(painter, side);
  return result;
}

// MATE's panels do not colour symbolic pictures, Plasma 5 gives them the programs' colours in place of the panel's,
// and the protocol does not say which panels do it well.
bool panelsColorPictures() {
  const QStringList desktops = qEnvironmentVariable("XDG_CURRENT_DESKTOP").split(u':');
  return desktops.contains("GNOME"_L1) ||
         (desktops.contains("KDE"_L1) && qEnvironmentVariableIntValue("KDE_SESSION_VERSION") >= 6);
}

bool write(const QString &folder, const QString &name) {
  QFile resource(u":/status/%1.svg"_s.arg(name));
  if (!resource.open(QIODevice::ReadOnly)) return false;
  const QString path = u"%1/hicolor/symbolic/apps/%2.svg"_s.arg(folder, name);
  return !PlainFileWriter(path).write(resource.readAll());
}

}  // namespace

QIcon statusPicture() {
  QIcon icon;
  for (const int side : kSizes) icon.addPixmap(picture(side));
  return icon;
}

QString statusPictureName(bool highlighted) {
  return highlighted ? u"keldra-status-open-symbolic"_s : u"keldra-status-symbolic"_s;
}

QString statusPictureFolder() {
  registerIcons();
  const QString runtimeFolder = qEnvironmentVariable("XDG_RUNTIME_DIR");
  if (runtimeFolder.isEmpty() || !panelsColorPictures()) return {};
  const QString folder = runtimeFolder + u"/keldra/icons"_s;
  const bool complete =
      write(folder, statusPictureName(false)) && write(folder, statusPictureName(true));
  return complete ? folder : QString();
}
