#include "Platform/linux/desktop/NotifierMenu.h"

#include <QGuiApplication>

using namespace Qt::StringLiterals;

// The menu itself is number 0, its actions are numbered from 1 on.

QString NotifierMenu::textDirection() const {
  return QGuiApplication::isRightToLeft() ? u"rtl"_s : u"ltr"_s;
}

MenuEntry NotifierMenu::entry(int id) const {
  if (id == 0) return {0, {{u"children-display"_s, u"submenu"_s}}};
  const QAction *action = _menu ? _menu->actions().value(id - 1) : nullptr;
  if (action == nullptr) return {id, {}};
  if (action->isSeparator()) return {id, {{u"type"_s, u"separator"_s}}};
  QString label = action->text();
  label.replace(u"_"_s, u"__"_s);  // a single one would underline what follows it
  return {id, {{u"label"_s, label}, {u"enabled"_s, action->isEnabled()}}};
}

MenuEntries NotifierMenu::entries() const {
  MenuEntries all;
  const qsizetype count = _menu ? _menu->actions().size() : 0;
  for (int id = 1; id <= count; ++id) all.append(entry(id));
  return all;
}

uint NotifierMenu::GetLayout(int parentId, int depth, const QStringList & /*names*/,
                             MenuLayout &layout) {
  layout = {entry(parentId), {}};
  if (parentId == 0 && depth != 0) {
    for (const MenuEntry &child : entries()) layout.children.append({child, {}});
  }
  return 1;  // the layout never changes
}

MenuEntries NotifierMenu::GetGroupProperties(const QList<int> &ids, const QStringList & /*names*/) {
  if (ids.isEmpty()) return entries();
  MenuEntries wanted;
  for (const int id : ids) wanted.append(entry(id));
  return wanted;
}

QDBusVariant NotifierMenu::GetProperty(int id, const QString &name) {
  return QDBusVariant(entry(id).properties.value(name, QString()));
}

void NotifierMenu::Event(int id, const QString &kind, const QDBusVariant & /*data*/,
                         uint /*timestamp*/) {
  QAction *action = _menu ? _menu->actions().value(id - 1) : nullptr;
  if (action == nullptr || kind != "clicked"_L1) return;
  // Later: the action may end the program, and the panel waits for our answer.
  QMetaObject::invokeMethod(action, &QAction::trigger, Qt::QueuedConnection);
}

QList<int> NotifierMenu::EventGroup(const MenuEvents &events) {
  for (const MenuEvent &event : events) Event(event.id, event.kind, event.data, event.timestamp);
  return {};
}

bool NotifierMenu::AboutToShow(int /*id*/) {
  return false;  // nothing has to be fetched anew
}

QList<int> NotifierMenu::AboutToShowGroup(const QList<int> & /*ids*/, QList<int> &errors) {
  errors.clear();
  return {};
}
