#include <QRegularExpression>

#include "AppDelegate/AppDelegate.h"
#include "Interface/CheckBox.h"
#include "Platform/Platform.h"

namespace {

const QString kRunAtload = QStringLiteral("RunAtload");

/// A text is true by its first character that counts: blanks, a sign and zeros before it do not.
bool booleanValue(const QVariant &value) {
  if (value.typeId() != QMetaType::QString) return value.toBool();
  static const QRegularExpression isTrue(QStringLiteral("^\\s*[+-]?0*[YyTt1-9]"));
  return isTrue.match(value.toString()).hasMatch();
}

}  // namespace

void AppDelegate::restoreRunAtLoad() {
  // What the person chose is not known then, and nothing is changed.
  if (!_platform.userDefaults().canBeRead()) {
    return _runAtLoadCheck->setState(isLaunchAtStartup() ? CheckBox::kOn : CheckBox::kOff);
  }
  // On at the first start of all: that is deliberate.
  const QVariant stored = _platform.userDefaults().object(kRunAtload);
  _runAtLoadCheck->setState(!stored.isValid() || booleanValue(stored) ? CheckBox::kOn
                                                                      : CheckBox::kOff);
  runAtLoad(_runAtLoadCheck);
}

void AppDelegate::runAtLoad(CheckBox *sender) {
  UserDefaults &defaults = _platform.userDefaults();
  const int state = sender->state();
  if (state == CheckBox::kOn || state == CheckBox::kOff) {
    const bool isWanted = state == CheckBox::kOn;
    if (isLaunchAtStartup() != isWanted) toggleLaunchAtStartup();
    // Stored even if the list could not be changed: the next start tries again.
    defaults.setBool(kRunAtload, isWanted);
  }
  defaults.synchronize();
}

std::optional<LoginItems::Item> AppDelegate::itemRefInLoginItems() const {
  const LoginItems &loginItems = _platform.loginItems();
  const auto items = loginItems.snapshot().value_or(QVector<LoginItems::Item>());
  for (const LoginItems::Item &item : items) {
    if (item.location.has_value() && *item.location == loginItems.ownLocation()) return item;
  }
  return std::nullopt;
}

bool AppDelegate::isLaunchAtStartup() const {
  return itemRefInLoginItems().has_value();
}

void AppDelegate::toggleLaunchAtStartup() {
  LoginItems &loginItems = _platform.loginItems();
  if (const auto item = itemRefInLoginItems()) {
    loginItems.remove(*item);
  } else {
    loginItems.insertOwnItem();
  }
}
