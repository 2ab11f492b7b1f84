#pragma once

// What the program is and what it has found: facts for the user and for a bug report.

#include <QDialog>

#include "Platform/Desktop.h"

class QFormLayout;
class QPushButton;

class InfoWindow : public QDialog {
  Q_OBJECT

 public:
  explicit InfoWindow(QWidget *parent = nullptr);

  void setFacts(const Facts &facts);

  /// Shows the window in front of other windows and gives it the keyboard focus.
  void makeKeyAndOrderFront();
  /// Moves the window to the middle of its screen, if the desktop lets programs move windows.
  void center();

  /// All facts as plain text, a line for each; what the copy button puts on the clipboard.
  QString text() const;

 private:
  void makeContent();
  void fitContent();

  Facts _facts;
  QFormLayout *_rows = nullptr;
  QPushButton *_closeButton = nullptr;
};
