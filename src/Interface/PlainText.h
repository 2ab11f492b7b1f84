#pragma once

// What may be painted of a text that came from elsewhere. Names of disks can hold control
// characters, line separators and marks that turn the direction of writing: none of them may upset
// what stands around them.

#include <QPoint>
#include <QString>

class QWidget;

/// The text in one line, each harmful character replaced by a visible one.
QString printable(const QString &text);

/// Shows a plain text as a tooltip, line by line, and never as rich text.
void showPlainToolTip(QWidget *widget, const QPoint &globalPosition, const QString &text);
