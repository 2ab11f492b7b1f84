#include "Report.h"

#include <QTextStream>
#include <algorithm>
#include <cmath>

using namespace Qt::StringLiterals;

namespace {

constexpr int kNameWidth = 44;
constexpr int kColumnWidth = 10;

void printName(QTextStream &out, const QString &name) {
  out << name.leftJustified(kNameWidth);
}

void printNumber(QTextStream &out, double number) {
  out << QString::number(number, 'f', std::abs(number) < 1 ? 3 : 1).rightJustified(kColumnWidth);
}

}  // namespace

void Report::add(const QString &measure, int partitions, double milliseconds) {
  if (!_sizes.contains(partitions)) _sizes << partitions;
  _times[measure][partitions] << milliseconds;
}

double Report::median(const QString &measure, int partitions) const {
  QVector<double> times = _times[measure][partitions];
  const auto middle = times.begin() + times.size() / 2;
  std::nth_element(times.begin(), middle, times.end());
  return *middle;
}

void Report::printHead(QTextStream &out) const {
  printName(out, u"partitions"_s);
  for (const int size : _sizes) out << QString::number(size).rightJustified(kColumnWidth);
  out << '\n';
}

void Report::printMedians(QTextStream &out, const QString &measure) const {
  printName(out, measure);
  for (const int size : _sizes) printNumber(out, median(measure, size));
  out << '\n';
}

void Report::printRatios(QTextStream &out, const QString &measure, const QString &peer) const {
  printName(out, u"  as a share of "_s + peer);
  for (const int size : _sizes) printNumber(out, median(measure, size) / median(peer, size));
  out << '\n';
}
