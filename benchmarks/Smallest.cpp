// The smallest Qt program with an item in the tray: the least that a program of this kind needs.

#include <QApplication>
#include <QIcon>
#include <QMenu>
#include <QPixmap>
#include <QSystemTrayIcon>

int main(int argc, char **argv) {
  QApplication application(argc, argv);
  QPixmap picture(22, 22);
  picture.fill(Qt::blue);
  QSystemTrayIcon item{QIcon(picture)};
  QMenu menu;
  menu.addAction(QStringLiteral("Quit"), &application, &QApplication::quit);
  item.setContextMenu(&menu);
  item.show();
  return QApplication::exec();
}
