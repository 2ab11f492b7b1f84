#pragma once

// The text of a row: lines parted by "\n", the first of them semi-bold, the others smaller and
// dimmer. A line that is too long is shortened at its end. What is painted is a harmless copy:
// names come from disks that strangers have written.

#include <QStringList>
#include <QWidget>

class RowTextField : public QWidget {
  Q_OBJECT

 public:
  explicit RowTextField(QWidget *parent = nullptr);

  QString stringValue() const { return _stringValue; }
  void setStringValue(const QString &text);

  /// Whether any line is shortened at the present width.
  bool isShortened() const;

  QSize sizeHint() const override;

 signals:
  void stringValueChanged();

 protected:
  void paintEvent(QPaintEvent *event) override;

 private:
  struct Line {
    QString text;  // as it is painted when there is room
    QFont font;
  };
  QList<Line> lines() const;

  QString _stringValue;
};
