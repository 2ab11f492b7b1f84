#include <QRegularExpression>

#include "AppDelegate/AppDelegate.h"
#include "Interface/CheckBox.h"
#include "Platform/Platform.h"

namespace {

const QString kRunAtload = QStringLiteral("RunAtload");

/// A text is true if it begins with Y, y, T, t or 1 to 9; blanks, a sign and zeros before that are
/// skipped.
bool booleanValue(const QVariant &value) {
  if (value.typeId() != QMetaType::QString) return value.toBool();
  static const QRegularExpression isTrue(QStringLiteral("^\\s*[+-]?0*[YyTt1-9]"));
  return isTrue.match(value.toString()).hasMatch();
}

}  // namespace

void AppDelegate::restoreRunAtLoad() {
  // When the stored choice cannot be read, the box shows the present state and nothing is changed.
  if (!_platform.userDefaults().canBeRead()) {
    return _runAtLoadCheck->setState(isLaunchAtStartup() ? CheckBox::kOn : CheckBox::kOff);
  }
  // The very first start turns it on, deliberately.
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
    // Stored even if the login items could not be changed: the next start tries again.
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
