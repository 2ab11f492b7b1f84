#include "Platform/linux/desktop/NotifierMenu.h"

#include <QEvent>
#include <QGuiApplication>
#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;

// The menu itself is number 0, its actions are numbered from 1 on.

void NotifierMenu::setMenu(QMenu *menu) {
  if (_menu) _menu->removeEventFilter(this);
  _menu = menu;
  if (_menu) _menu->installEventFilter(this);
  noteActions();
  tellPanels();
}

bool NotifierMenu::eventFilter(QObject * /*menu*/, QEvent *event) {
  const bool isChange = event->type() == QEvent::ActionAdded ||
                        event->type() == QEvent::ActionRemoved ||
                        event->type() == QEvent::ActionChanged;
  if (!isChange || std::exchange(_willTell, true)) return false;
  QMetaObject::invokeMethod(this, &NotifierMenu::tellPanels, Qt::QueuedConnection);
  return false;
}

void NotifierMenu::tellPanels() {
  _willTell = false;
  noteActions();
  emit LayoutUpdated(++_revision, 0);
}

void NotifierMenu::noteActions() {
  const QHash<const QAction *, int> before = std::exchange(_ids, {});
  if (!_menu) return;
  for (const QAction *action : _menu->actions()) {
    _ids[action] = before.contains(action) ? before[action] : ++_lastId;
  }
}

QString NotifierMenu::textDirection() const {
  return QGuiApplication::isRightToLeft() ? u"rtl"_s : u"ltr"_s;
}

QAction *NotifierMenu::action(int id) const {
  const QList<QAction *> actions = _menu ? _menu->actions() : QList<QAction *>();
  const auto found = std::find_if(actions.begin(), actions.end(),
                                  [&](const QAction *each) { return id > 0 && idOf(each) == id; });
  return found == actions.end() ? nullptr : *found;
}

MenuEntry NotifierMenu::entry(int id) const {
  if (id == 0) return {0, {{u"children-display"_s, u"submenu"_s}}};
  const QAction *action = this->action(id);
  if (action == nullptr) return {id, {}};
  if (action->isSeparator()) return {id, {{u"type"_s, u"separator"_s}}};
  QString label = action->text();
  // Qt marks an underlined character with "&", the protocol with "_".
  label.replace(u"&&"_s, u"&"_s).replace(u"_"_s, u"__"_s);
  return {id, {{u"label"_s, label}, {u"enabled"_s, action->isEnabled()}}};
}

MenuEntries NotifierMenu::entries() const {
  MenuEntries all;
  const QList<QAction *> actions = _menu ? _menu->actions() : QList<QAction *>();
  for (const QAction *each : actions) {
    if (const int id = idOf(each)) all.append(entry(id));
  }
  return all;
}

uint NotifierMenu::GetLayout(int parentId, int depth, const QStringList & /*names*/,
                             MenuLayout &layout) {
  layout = {entry(parentId), {}};
  if (parentId == 0 && depth != 0) {
    for (const MenuEntry &child : entries()) layout.children.append({child, {}});
  }
  return _revision;
}

MenuEntries NotifierMenu::GetGroupProperties(const QList<int> &ids, const QStringList & /*names*/) {
  if (ids.isEmpty()) return entries();
  MenuEntries wanted = entries();
  wanted.prepend(entry(0));
  // Each entry once, however often a panel asks: the bus disconnects a program that sends too much.
  wanted.removeIf([&ids](const MenuEntry &each) { return !ids.contains(each.id); });
  return wanted;
}

QDBusVariant NotifierMenu::GetProperty(int id, const QString &name) {
  return QDBusVariant(entry(id).properties.value(name, QString()));
}

void NotifierMenu::Event(int id, const QString &kind, const QDBusVariant & /*data*/,
                         uint /*timestamp*/) {
  QAction *action = this->action(id);
  if (action == nullptr || kind != "clicked"_L1) return;
  // Queued, because the action may quit the program while the panel waits for the reply.
  QMetaObject::invokeMethod(action, &QAction::trigger, Qt::QueuedConnection);
}

QList<int> NotifierMenu::EventGroup(const MenuEvents &events) {
  for (const MenuEvent &event : events) Event(event.id, event.kind, event.data, event.timestamp);
  return {};
}

bool NotifierMenu::AboutToShow(int /*id*/) {
  return false;  // panels need not fetch the menu again
}

QList<int> NotifierMenu::AboutToShowGroup(const QList<int> & /*ids*/, QList<int> &errors) {
  errors.clear();
  return {};
}

#include "moc_NotifierMenu.cpp"
