#include <QGuiApplication>
#include <QIcon>
#include <QImageReader>
#include <QPixmap>
#include <QScreen>

#include "AppDelegate/AppDelegate.h"
#include "Interface/StatusItem.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int kSide = 18;
constexpr int kSideOnDenseScreens = 36;  // twice the size in points as well, deliberately

// The picture in the size for the menu bar, and in full size for panels that scale it themselves.
QIcon statusImage(const QString &resource, int side) {
  // With the format given, the reader does not load plugins to detect it.
  QImageReader reader(resource, "png");
  reader.setAutoDetectImageFormat(false);
  const QPixmap artwork = QPixmap::fromImageReader(&reader);
  QIcon image(artwork);
  image.addPixmap(artwork.scaled(side, side, Qt::KeepAspectRatio, Qt::SmoothTransformation));
  return image;
}

}  // namespace

bool isDarkInterfaceStyle(const QVariant &style) {
  return style.typeId() == QMetaType::QString &&
         style.toString().compare("dark"_L1, Qt::CaseInsensitive) == 0;
}

int statusImageSide(qreal scaleFactor) {
  return scaleFactor >= 2.0 ? kSideOnDenseScreens : kSide;
}

void AppDelegate::darkModeAndRetina() {
  const QScreen *screen = QGuiApplication::primaryScreen();
  const int side = statusImageSide(screen ? screen->devicePixelRatio() : 1.0);
  const bool dark = isDarkInterfaceStyle(_desktop.interfaceStyle());
  topBarItem->setImage(statusImage(dark ? u":/Dark.png"_s : u":/normal.png"_s, side));
}
