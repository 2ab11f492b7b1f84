#pragma once

// Makes texts from outside the program safe to show. Names of disks can hold control characters,
// line breaks, mark-up and marks that change the direction of writing, in any number. None of these
// may affect the text around them.

#include <QPoint>
#include <QString>

class QFontMetrics;
class QWidget;

/// The text in one line, each harmful character replaced by a visible one. A text of more than some
/// thousand characters loses its middle, because painting it would take too long.
QString printable(const QString &text);

/// Whether the whole text can be painted in a line of this width, in pixels.
bool fits(const QString &text, const QFontMetrics &metrics, int width);

/// The text for the desktop's own widgets. Some of these read mark-up and some do not, so no escape
/// is right for all: characters that begin mark-up are replaced by others that look like them.
QString withoutMarkup(const QString &text);

/// Shows plain texts as a tooltip, a line for each text that is not empty, never as rich text.
void showPlainToolTip(QWidget *widget, const QPoint &globalPosition, const QStringList &lines);
