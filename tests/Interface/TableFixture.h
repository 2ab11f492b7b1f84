#pragma once

// A table in a window, with a line edit after it, over rows that a test writes down.

#include <gtest/gtest.h>

#include <QLineEdit>
#include <QTest>
#include <QVBoxLayout>
#include <optional>

#include "ESPTableCellView.h"
#include "Interface/RowButton.h"
#include "Interface/RowTextField.h"
#include "Interface/TableView.h"

struct Row {
  QString name;  // a BSD name; empty for a row without a cell
  bool mounted = false;
  bool dead = false;
};

class TableFixture : public testing::Test, public TableViewDataSource, public TableViewDelegate {
 protected:
  TableFixture() {
    auto *layout = new QVBoxLayout(&window);
    layout->addWidget(table);
    layout->addWidget(after);
    table->setPrototype("MainCell", [](QWidget *parent) { return new ESPTableCellView(parent); });
    table->setDelegate(this);
    table->setDataSource(this);
  }

  void show(const QList<Row> &list) {
    reload(list);
    window.resize(window.sizeHint());
    window.show();
    window.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
  }

  void reload(const QList<Row> &list) {
    rows = list;
    table->reloadData();
  }

  static QList<Row> manyRows(int count) {
    QList<Row> list;
    for (int unit = 0; unit < count; ++unit) list.append({QString("disk%1s1").arg(unit)});
    return list;
  }

  ESPTableCellView *cell(qint64 row) const {
    return qobject_cast<ESPTableCellView *>(table->cellAtRow(row));
  }
  RowButton *mountButton(qint64 row) const { return cell(row)->mountButton(); }
  qsizetype cellsAlive() const { return table->findChildren<ESPTableCellView *>().size(); }

  QString focusedTitle() const {
    const auto *button = qobject_cast<RowButton *>(window.focusWidget());
    return button ? button->title() : QString();
  }
  void press(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) {
    QTest::keyClick(window.focusWidget(), key, modifiers);
  }

  qint64 numberOfRowsInTableView(TableView *) override { return rows.size(); }

  TableCellView *tableView(TableView *, const TableColumn &column, qint64 row) override {
    const Row &record = rows[row];
    auto *made = qobject_cast<ESPTableCellView *>(table->makeView(column.identifier));
    if (record.name.isEmpty()) return nullptr;
    made->textField()->setLines({"ESP on " + record.name, "parent of disk,", "A disk"});
    made->mountButton()->setTitle((record.mounted ? "umount " : "mount ") + record.name);
    made->mountButton()->setAction([this](RowButton *button) { clicked(button); });
    if (record.dead) made->mountButton()->setEnabled(false);
    made->openButton()->setTitle("open /" + record.name);
    made->openButton()->setEnabled(record.mounted);
    made->openButton()->setVisible(record.mounted);
    return made;
  }
  void tableView(TableView *, QWidget *, qint64) override {}
  void tableViewSelectionDidChange(TableView *) override { ++selectionChanges; }

  QList<Row> rows;
  std::function<void(RowButton *)> clicked = [](RowButton *) {};
  int selectionChanges = 0;

  QWidget window;
  TableView *table = new TableView;
  QLineEdit *after = new QLineEdit;
};
