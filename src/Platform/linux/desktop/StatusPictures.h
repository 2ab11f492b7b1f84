#pragma once

// The item's picture for panels. A program cannot find out a panel's colour. Panels that colour pictures
// themselves get names; the others get a picture that is visible on any background.

#include <QIcon>
#include <QString>

/// Light with dark lines, sharp in all usual sizes of panels.
QIcon statusPicture();

/// A name for panels that look up pictures by name and colour them.
QString statusPictureName(bool highlighted);

/// The folder with the files for these names, written to the session's runtime folder. Empty where that fails,
/// and on desktops whose panels do not colour pictures.
QString statusPictureFolder();
