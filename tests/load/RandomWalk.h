#pragma once

// Does one random thing after another to a program on a simulated machine, and to a model of both.
//
//   RandomWalk walk(seed);
//   const QString what = walk.step();
//   differenceOf(walk.program(), walk.model().rows().values());  // empty, or the program is wrong

#include <QMap>

#include "load/Load.h"
#include "load/Model.h"
#include "support/OpenedFolders.h"
#include "support/TestMachine.h"

class RandomWalk {
 public:
  explicit RandomWalk(quint64 seed);

  /// Gives in words what it did.
  QString step();

  TestMachine &program() { return _program; }
  const Model &model() const { return _model; }
  /// How often each kind of thing was done, and what came of it.
  QString counts() const;
  /// What the model did not expect, apart from the table.
  QStringList surprises;

 private:
  // Something that happens to the machine, and to the model of it.
  struct Event {
    QString kind;
    QString words;
    std::function<void(SimulatedPlatform &)> toMachine;
    std::function<void(Model &)> toModel;
  };
  template <typename Act>
  static Event event(const QString &kind, const QString &words, Act act) {
    return {kind, words, act, act};
  }

  QString stepOfMachine();
  QString stepOfPerson();

  Event randomEvent();
  Event plugOrPull();
  Event changeOfService();
  Event changeOfAnswers(const QString &name);
  SimulatedDisk newDisk();
  QString anyPartition();
  QString anyRow();

  QString letHappen();
  QString clickMount();
  QString clickOpen();
  QString tickShowAll();
  QString tickForce();
  QString togglePopover();

  void tick(CheckBox *box);
  void settle();
  ESPTableCellView *cellOf(const QString &name);
  QString done(const QString &kind, const QString &more = {});

  Chance _chance;
  OpenedFolders _opened;
  TestMachine _program;
  Model _model;
  QMap<QString, int> _counts;
};
