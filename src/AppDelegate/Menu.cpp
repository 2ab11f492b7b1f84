#include <QMenu>

#include "AppDelegate/AppDelegate.h"
#include "Interface/PlainText.h"

using namespace Qt::StringLiterals;

// Some desktops open the item's menu at a click, so the menu offers the rows' actions under the
// same titles.

namespace {

// More would not fit the screen; the popover has all of them.
constexpr qsizetype kMostTitles = 24;

}  // namespace

QStringList AppDelegate::rowTitles() const {
  QStringList titles;
  for (const RowRecord &record : _tableViewContents) {
    if (titles.size() >= kMostTitles) break;
    if (record.canBeMountedOrUmounted()) titles += record.mountTitle();
    if (record.isMounted) titles += record.openTitle();
  }
  return titles;
}

void AppDelegate::updateMenu() {
  const QStringList titles = rowTitles();
  QStringList present;
  for (const QAction *action : std::as_const(_rowActions)) present += action->data().toString();
  if (!present.isEmpty()) present.removeLast();  // the separator
  if (titles == present) return;

  for (QAction *action : std::exchange(_rowActions, {})) {
    _menu->removeAction(action);
    action->deleteLater();
  }
  if (titles.isEmpty()) return;
  QAction *last = _menu->actions().constLast();
  for (const QString &title : titles) {
    // A single "&" would underline the character after it.
    auto *action = new QAction(printable(title).replace(u'&', u"&&"_s), _menu);
    action->setData(title);
    action->setEnabled(!_busyPartition);
    // Queued until the menu has closed, because the action may take long.
    connect(
        action, &QAction::triggered, this, [this, title] { chooseFromMenu(title); },
        Qt::QueuedConnection);
    _menu->insertAction(last, action);
    _rowActions += action;
  }
  _rowActions += _menu->insertSeparator(last);
}

void AppDelegate::chooseFromMenu(const QString &title) {
  _outcomeIsAwaited = !_popover->isShown();
  if (title.startsWith("open "_L1)) {
    openEsp(title);
  } else {
    mountOrUmount(title);
  }
}
