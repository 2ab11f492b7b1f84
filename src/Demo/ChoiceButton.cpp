#include "Demo/ChoiceButton.h"

#include <utility>

ChoiceButton::ChoiceButton(QString label, const QStringList &choices, QWidget *parent)
    : QPushButton(parent), _label(std::move(label)), _choices(this) {
  for (const QString &choice : choices) {
    QAction *action = _menu.addAction(choice);
    action->setCheckable(true);
    _choices.addAction(action);
  }
  connect(&_choices, &QActionGroup::triggered, this, [this](QAction *action) {
    emit chosen(static_cast<int>(_choices.actions().indexOf(action)));
  });
  setMenu(&_menu);
  setCurrent(choices.value(0));
}

void ChoiceButton::setCurrent(const QString &current) {
  setText(_label + QStringLiteral(": ") + current);
  for (QAction *action : _choices.actions()) action->setChecked(action->text() == current);
}
