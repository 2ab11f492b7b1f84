#pragma once

// The text of a row: a few lines, the first one semi-bold, the others smaller and dimmer. A line
// that is too long is shortened: the first in its middle, because its end distinguishes the rows,
// the others at their ends. The painted text is a harmless copy, because names on disks are not
// trusted; a line break in a name does not make a new line.

#include <QStringList>
#include <QWidget>

class RowTextField : public QWidget {
  Q_OBJECT

 public:
  explicit RowTextField(QWidget *parent = nullptr);

  /// The original lines, separated by "\n".
  QString stringValue() const { return _lines.join(u'\n'); }
  void setLines(const QStringList &lines);
  QStringList lines() const { return _lines; }

  /// The lines as they are painted when there is room for all characters.
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
