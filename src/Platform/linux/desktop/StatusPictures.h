#pragma once

// The item's picture for panels. Nobody tells a program what colour a panel has: its own style says nothing of that.
// Panels that colour pictures themselves are given names; the others, a picture that can be read on any ground.

#include <QIcon>
#include <QString>

/// Light with dark lines, sharp in each of the sizes that panels have.
QIcon statusPicture();

/// A name for panels that look pictures up by name and colour them.
QString statusPictureName(bool highlighted);

/// The folder where panels find these names; the files are written there, in the session's runtime folder. Empty
/// where that cannot be, and on desktops whose panels do not colour what they find.
QString statusPictureFolder();
