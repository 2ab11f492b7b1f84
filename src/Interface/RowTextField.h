#pragma once

// The text of a row: a few lines, the first of them semi-bold, the others smaller and dimmer. A line
// that is too long is shortened: the first in its middle, because what tells the rows apart stands
// at its end, the others at their ends. What is painted is a harmless copy: names come from disks
// that strangers have written, and a line break in a name makes no line.

#include <QStringList>
#include <QWidget>

class RowTextField : public QWidget {
  Q_OBJECT

 public:
  explicit RowTextField(QWidget *parent = nullptr);

  /// The lines as they were given, parted by "\n".
  QString stringValue() const { return _lines.join(u'\n'); }
  void setLines(const QStringList &lines);
  QStringList lines() const { return _lines; }

  /// The lines as they are painted when there is room.
  QStringList printableLines() const;

  /// Whether any line is shortened at the present width.
  bool isShortened() const;

  QSize sizeHint() const override;

 signals:
  void stringValueChanged();

 protected:
  void paintEvent(QPaintEvent *event) override;

 private:
  QFont fontOfLine(qsizetype line) const;

  QStringList _lines;
};
