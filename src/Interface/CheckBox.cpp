#include "Interface/CheckBox.h"

#include <QScopedValueRollback>

#include "Interface/Style.h"

namespace {

// From Qt 6.7 on this signal replaces `stateChanged`, which is deprecated later.
#if QT_VERSION < QT_VERSION_CHECK(6, 7, 0)
constexpr auto kStateChanged = &QCheckBox::stateChanged;
#else
constexpr auto kStateChanged = &QCheckBox::checkStateChanged;
#endif

}  // namespace

CheckBox::CheckBox(const QString &title, QWidget *parent) : QCheckBox(title, parent) {
  Style::applied(this);
  // Not `clicked`: a screen reader's Toggle changes the box without a click.
  connect(this, kStateChanged, this, [this] {
    if (!_settingState) emit acted();
  });
}

int CheckBox::state() const {
  if (checkState() == Qt::PartiallyChecked) return kMixed;
  return isChecked() ? kOn : kOff;
}

void CheckBox::setState(int state) {
  const QScopedValueRollback<bool> setting(_settingState, true);
  setCheckState(state == kOff     ? Qt::Unchecked
                : state == kMixed ? Qt::PartiallyChecked
                                  : Qt::Checked);
}

void CheckBox::nextCheckState() {
  // Only the program can set the mixed state.
  setCheckState(state() == kOn ? Qt::Unchecked : Qt::Checked);
}

bool CheckBox::hitButton(const QPoint &position) const {
  return rect().contains(position);
}

#include "moc_CheckBox.cpp"
