#pragma once

// A flat menu for panels, which show it in their own way: the interface com.canonical.dbusmenu of
// the object that this adaptor is attached to.

#include <QDBusAbstractAdaptor>
#include <QHash>
#include <QMenu>
#include <QPointer>

#include "Platform/linux/desktop/NotifierTypes.h"

class NotifierMenu final : public QDBusAbstractAdaptor {
  Q_OBJECT
  Q_CLASSINFO("D-Bus Interface", "com.canonical.dbusmenu")
  Q_PROPERTY(uint Version READ version)
  Q_PROPERTY(QString Status READ status)
  Q_PROPERTY(QString TextDirection READ textDirection)
  Q_PROPERTY(QStringList IconThemePath READ iconThemePath)

 public:
  explicit NotifierMenu(QObject *object) : QDBusAbstractAdaptor(object) {}

  /// Not owned. Panels are notified of changes, of several at a time.
  void setMenu(QMenu *menu);
  bool eventFilter(QObject *watched, QEvent *event) override;

  uint version() const { return 3; }
  QString status() const { return QStringLiteral("normal"); }
  QString textDirection() const;
  QStringList iconThemePath() const { return {}; }

 public slots:
  uint GetLayout(int parentId, int depth, const QStringList &names, MenuLayout &layout);
  MenuEntries GetGroupProperties(const QList<int> &ids, const QStringList &names);
  QDBusVariant GetProperty(int id, const QString &name);
  void Event(int id, const QString &kind, const QDBusVariant &data, uint timestamp);
  QList<int> EventGroup(const MenuEvents &events);
  bool AboutToShow(int id);
  QList<int> AboutToShowGroup(const QList<int> &ids, QList<int> &errors);

 signals:
  void ItemsPropertiesUpdated(const MenuEntries &updated, const MenuEntries &removed);
  void LayoutUpdated(uint revision, int parentId);

 private:
  int idOf(const QAction *action) const { return _ids.value(action); }
  /// Null if no action has this number.
  QAction *action(int id) const;
  MenuEntry entry(int id) const;
  MenuEntries entries() const;
  void noteActions();
  void tellPanels();

  QPointer<QMenu> _menu;
  // Never reused for another action: a panel may ask for an action that has just been removed.
  QHash<const QAction *, int> _ids;
  int _lastId = 0;
  uint _revision = 1;
  bool _willTell = false;
};
