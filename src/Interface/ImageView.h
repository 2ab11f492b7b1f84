#pragma once

// A small square picture, sharp at every scale of the screen.

#include <QImage>
#include <QWidget>

class ImageView : public QWidget {
  Q_OBJECT

 public:
  explicit ImageView(QWidget *parent = nullptr);

  QImage image() const { return _image; }

  /// A null image shows nothing. Large images are scaled down, keeping their proportions.
  void setImage(const QImage &image);

  QSize sizeHint() const override;

 protected:
  void paintEvent(QPaintEvent *event) override;

 private:
  QImage _image;
};
