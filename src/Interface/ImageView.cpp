#include "Interface/ImageView.h"

#include <QPainter>
#include <QPixmapCache>

#include "Interface/Look.h"

using namespace Qt::StringLiterals;

namespace {

// Pictures are hundreds of pixels wide, many rows share one, and each is painted often.
QPixmap scaledPicture(const QImage &image, const QSize &pixels) {
  const QString key =
      u"ImageView %1 %2x%3"_s.arg(image.cacheKey()).arg(pixels.width()).arg(pixels.height());
  QPixmap pixmap;
  if (!QPixmapCache::find(key, &pixmap)) {
    pixmap =
        QPixmap::fromImage(image.scaled(pixels, Qt::KeepAspectRatio, Qt::SmoothTransformation));
    QPixmapCache::insert(key, pixmap);
  }
  return pixmap;
}

}  // namespace

ImageView::ImageView(QWidget *parent) : QWidget(parent) {}

void ImageView::setImage(const QImage &image) {
  if (image.cacheKey() == _image.cacheKey()) return;
  _image = image;
  update();
}

QSize ImageView::sizeHint() const {
  const int side = Look(this).imageSize();
  return {side, side};
}

void ImageView::paintEvent(QPaintEvent *) {
  if (_image.isNull()) return;
  const qreal ratio = devicePixelRatio();
  QPixmap pixmap = scaledPicture(_image, (QSizeF(size()) * ratio).toSize());
  pixmap.setDevicePixelRatio(ratio);
  const QSizeF shown = pixmap.deviceIndependentSize();
  QPainter(this).drawPixmap(QPointF((width() - shown.width()) / 2, (height() - shown.height()) / 2),
                            pixmap);
}

#include "moc_ImageView.cpp"
