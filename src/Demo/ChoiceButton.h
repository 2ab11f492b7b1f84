#pragma once

// A button that says what is chosen, and whose menu offers the choices.
//
//   ChoiceButton button(tr("Mishap"), {tr("none"), tr("service dies")});
//   button.setCurrent(tr("none"));  // it reads "Mishap: none"
//
// Unlike a combo box it holds no list of its own, so that whoever looks for the program's list
// through the accessibility interface finds one.

#include <QActionGroup>
#include <QMenu>
#include <QPushButton>

class ChoiceButton : public QPushButton {
  Q_OBJECT

 public:
  ChoiceButton(QString label, const QStringList &choices, QWidget *parent = nullptr);

  /// May be none of the choices.
  void setCurrent(const QString &current);

 signals:
  /// By a person; the index is that of the choices.
  void chosen(int index);

 private:
  QString _label;
  QMenu _menu;
  QActionGroup _choices;
};
