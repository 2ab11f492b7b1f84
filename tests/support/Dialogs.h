#pragma once

#include <QApplication>
#include <QMessageBox>
#include <QPushButton>
#include <QTest>
#include <QTimer>

/// While this object exists, it answers each dialog that opens with the next of these buttons, named by
/// title; "Escape" and "close" dismiss the dialog. A dialog without a next answer is closed.
class Dialogs : public QObject {
 public:
  explicit Dialogs(const QStringList &answers) : _answers(answers) {
    connect(&_timer, &QTimer::timeout, this, [this] {
      auto *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
      if (box != nullptr && box->isVisible()) answer(*box);
    });
    _timer.start(1);
  }

  /// The texts and button titles of each dialog.
  QStringList texts, informativeTexts, titles;
  /// Called before each answer.
  std::function<void()> meanwhile = [] {};

 private:
  void answer(QMessageBox &box) {
    const QString answer = _answers.value(texts.size(), "close");
    texts += box.text();
    informativeTexts += box.informativeText();
    QStringList buttons;
    for (const QAbstractButton *button : box.buttons()) buttons += button->text().remove(u'&');
    titles += buttons.join(u'|');
    meanwhile();
    for (QAbstractButton *button : box.buttons()) {
      if (button->text().remove(u'&') == answer) return button->click();
    }
    answer == "Escape" ? QTest::keyClick(&box, Qt::Key_Escape) : void(box.close());
  }

  QStringList _answers;
  QTimer _timer;
};
