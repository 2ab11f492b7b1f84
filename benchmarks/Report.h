#pragma once

// The results: the times of all runs for each measure and number of partitions.

#include <QHash>
#include <QString>
#include <QVector>

class QTextStream;

class Report {
 public:
  void add(const QString &measure, int partitions, double milliseconds);

  /// The median of the added times. There must be at least one.
  double median(const QString &measure, int partitions) const;

  // Lines of a table, with a column for each number of partitions.
  void printHead(QTextStream &out) const;
  void printMedians(QTextStream &out, const QString &measure) const;
  void printRatios(QTextStream &out, const QString &measure, const QString &peer) const;

  const QVector<int> &sizes() const { return _sizes; }

 private:
  QVector<int> _sizes;
  QHash<QString, QHash<int, QVector<double>>> _times;
};
