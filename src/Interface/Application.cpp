#include "Interface/Application.h"

#include <QMessageBox>
#include <QPushButton>

#include "Foundation/Error.h"
#include "Foundation/SystemLog.h"
#include "Interface/PlainText.h"

using namespace Qt::StringLiterals;

bool Application::presentError(const Error &error) {
  systemLog(error.description());
  QStringList reasons(withoutMarkup(error.localizedFailureReason));
  if (error.underlying) reasons += withoutMarkup(error.underlying->localizedDescription);
  reasons.removeAll(QString());
  runAlert(error.localizedDescription, reasons.join(u'\n'), {QMessageBox::tr("OK")});
  return false;
}

int Application::runAlert(const QString &message, const QString &informative,
                          const QStringList &buttons) {
  QMessageBox box(QMessageBox::Warning, {}, message);
  // The open popover is above ordinary windows.
  box.setWindowFlag(Qt::WindowStaysOnTopHint);
  box.setAccessibleName(message);
  box.setTextFormat(Qt::PlainText);
  box.setInformativeText(informative);
  QList<QAbstractButton *> shown;
  for (const QString &title : buttons) {
    const bool isFirst = shown.isEmpty();
    shown += box.addButton(title, isFirst ? QMessageBox::AcceptRole : QMessageBox::RejectRole);
  }
  box.setEscapeButton(shown.last());
  box.exec();
  const auto chosen = shown.indexOf(box.clickedButton());
  return kAlertFirstButtonReturn + static_cast<int>(chosen < 0 ? shown.size() - 1 : chosen);
}
