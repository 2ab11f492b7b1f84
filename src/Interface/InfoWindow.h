#pragma once

// What the program is and what it has found: what a person wants to know, and a report of a fault
// needs.

#include <QDialog>

#include "Platform/Desktop.h"

class QFormLayout;
class QPushButton;

class InfoWindow : public QDialog {
  Q_OBJECT

 public:
  explicit InfoWindow(QWidget *parent = nullptr);

  void setFacts(const Facts &facts);

  /// Shows it in front of other windows, with the keyboard.
  void makeKeyAndOrderFront();
  /// Moves it to the middle of its screen, where the desktop lets windows be moved.
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
