#pragma once

// What may be shown of a text that came from elsewhere. Names of disks can hold control characters,
// line breaks, mark-up, marks that turn the direction of writing, and any number of them: none may
// upset what stands around them.

#include <QPoint>
#include <QString>

class QFontMetrics;
class QWidget;

/// The text in one line, each harmful character replaced by a visible one. A text of more than some
/// thousand characters loses its middle: painting it would take longer than all the rest.
QString printable(const QString &text);

/// Whether the whole text can be painted in a line of this width, in pixels.
bool fits(const QString &text, const QFontMetrics &metrics, int width);

/// The text as it may be handed to the desktop, part of which reads mark-up and part of which does
/// not, so that no escape would be right for all: characters that begin mark-up are replaced by
/// others that look like them.
QString withoutMarkup(const QString &text);

/// Shows plain texts as a tooltip, a line for each that is not empty, and never as rich text.
void showPlainToolTip(QWidget *widget, const QPoint &globalPosition, const QStringList &lines);
